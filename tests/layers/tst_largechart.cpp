#include "randomrecords.h"
#include "testcase.h"

#include <chartpicture.h>

#include <QTemporaryDir>

#include <cmath>

using namespace vardeno::testcharttools;

namespace {

constexpr int editorsLongest = 4320;
const RecordLimits largeLimits = {QSize(4320, 4320), 60, 200, 16384};

QSize resolutionOf(const TestChartToolsData& record)
{
    return {record.publicData.resolutionWidth, record.publicData.resolutionHeight};
}

QString describedWall(const TestChartToolsData& record)
{
    return QStringLiteral("%1 x %2 pixels, %3 x %4 cabinets")
        .arg(record.publicData.resolutionWidth)
        .arg(record.publicData.resolutionHeight)
        .arg(record.publicData.boxCol)
        .arg(record.publicData.boxRow);
}

/// What is wrong with the rows of `picture` when they are drawn `height` at a time.
QString stripDifference(const ChartPicture& picture, const QImage& whole, int height)
{
    for (int top = 0; top < whole.height(); top += height) {
        const int count = std::min(height, whole.height() - top);
        const QString difference =
            imageDifference(picture.rows(top, count), whole.copy(0, top, whole.width(), count));
        if (!difference.isEmpty())
            return QStringLiteral("strip of %1 rows from %2: %3").arg(height).arg(top).arg(difference);
    }
    return {};
}

/// A gradient alone.
TestChartToolsData gradientAlone(int width, const std::vector<QColor>& colors)
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = width;
    record.publicData.resolutionHeight = 16;
    record.publicData.showOutBorder = false;
    record.basicData.chessChecked = false;
    record.basicData.colorBarChecked = record.basicData.gradientChecked = true;
    for (const QColor& color : colors)
        record.basicData.colorStripeColors.emplace(int(record.basicData.colorStripeColors.size()), color);
    record.inLineData.showCircle = record.inLineData.showDiagonal = record.inLineData.showSerialNumber =
        false;
    record.logoData.showLogo = record.selfData.showSelfText = record.selfData.showResolution = false;
    return record;
}

} // namespace

/// Charts that are drawn in parts.
class TestLargeChart : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::vector<std::string> m_pictures;

private Q_SLOTS:
    void initTestCase()
    {
        QImage logo(300, 210, QImage::Format_ARGB32);
        logo.fill(QColor(200, 100, 0, 120));
        m_pictures = {m_folder.filePath("logo.png").toStdString()};
        QVERIFY(logo.save(QString::fromStdString(m_pictures.front())));
    }

    void whichAreDrawnInParts_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("inParts");
        QTest::newRow("largest of the editor") << QSize(editorsLongest, editorsLongest) << false;
        QTest::newRow("wider") << QSize(editorsLongest + 1, 16) << true;
        QTest::newRow("higher") << QSize(16, editorsLongest + 1) << true;
    }

    void whichAreDrawnInParts()
    {
        QFETCH(QSize, size);
        TestChartToolsData record;
        record.publicData.resolutionWidth = size.width();
        record.publicData.resolutionHeight = size.height();
        QTEST(ChartPicture(record).isDrawnInParts(), "inParts");
    }

    void stripsAreThePicture_data()
    {
        QTest::addColumn<QSize>("least");
        QTest::addColumn<QSize>("most");
        QTest::addColumn<int>("count");
        QTest::newRow("drawn whole") << QSize(16, 16) << QSize(300, 200) << 40;
        QTest::newRow("wide, drawn at once") << QSize(editorsLongest + 1, 16) << QSize(9000, 64) << 40;
        QTest::newRow("wide") << QSize(editorsLongest + 1, 65) << QSize(6000, 300) << 15;
        QTest::newRow("high") << QSize(16, editorsLongest + 1) << QSize(200, 9000) << 15;
    }

    void stripsAreThePicture()
    {
        QFETCH(QSize, least);
        QFETCH(QSize, most);
        QFETCH(int, count);
        RandomRecords records(20261122, m_pictures, largeLimits);
        for (int i = 0; i < count; ++i) {
            TestChartToolsData record = records.next();
            record.publicData.resolutionWidth = records.number(least.width(), most.width());
            record.publicData.resolutionHeight = records.number(least.height(), most.height());
            const ChartPicture picture(record, {QStringLiteral("Resolution"), QStringLiteral("Cabinets")});
            const QImage whole = picture.image();
            QCOMPARE(whole.size(), resolutionOf(record));
            const int part = std::max(1, whole.height() / records.number(2, 9));
            for (const int height : {part, 64, 100}) {
                const QString difference = stripDifference(picture, whole, height);
                QVERIFY2(
                    difference.isEmpty(),
                    qPrintable(
                        QStringLiteral("record %1, %2: %3").arg(i).arg(describedWall(record), difference)));
            }
        }
    }

    void everyRowAlone()
    {
        TestChartToolsData record;
        record.publicData.resolutionWidth = 5000;
        record.publicData.resolutionHeight = 90;
        record.inLineData.circleSize = 45;
        record.logoData.textLogo = true;
        const ChartPicture picture(record);
        const QString difference = stripDifference(picture, picture.image(), 1);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }

    /// All that is straight stands where it stands in a chart that is drawn whole.
    void theSamePlacesAsInASmallerChart()
    {
        TestChartToolsData record = gradientAlone(editorsLongest, {});
        record.basicData.chessChecked = true;
        record.basicData.colorBarChecked = false;
        record.publicData.showOutBorder = true;
        record.publicData.outBorderWidth = 5;
        record.publicData.resolutionHeight = 90;
        record.publicData.boxRow = 3;
        record.publicData.boxCol = 54; // cabinets of 80 pixels
        record.inLineData.showSerialNumber = true;
        const QImage small = ChartPicture(record).image();
        record.publicData.resolutionWidth += 80;
        record.publicData.boxCol += 1;
        const QImage large = ChartPicture(record).image();
        const int same = editorsLongest - 80;
        VD_COMPARE_IMAGES(large.copy(0, 0, same, 90), small.copy(0, 0, same, 90));
    }

    void theGradientIsExact()
    {
        const int width = 32768;
        const QImage row = ChartPicture(gradientAlone(width, {Qt::black, Qt::white})).rows(0, 1);
        for (int x = 0; x < width; ++x) {
            const double expected = 255.0 * x / width;
            QVERIFY2(std::abs(qRed(row.pixel(x, 0)) - expected) <= 1.5, qPrintable(QString::number(x)));
        }
    }

    void manyCabinets()
    {
        TestChartToolsData record;
        record.publicData.resolutionWidth = 32768;
        record.publicData.resolutionHeight = 32768;
        record.publicData.boxRow = record.publicData.boxCol = 1000;
        const ChartPicture picture(record);
        const QImage last = picture.rows(32768 - 40, 40);
        QCOMPARE(last.size(), QSize(32768, 40));
        const QRgb odd = toQColor(record.basicData.oddColor).rgb();
        const QRgb even = toQColor(record.basicData.evenColor).rgb();
        const int inside = 40 - 2 - record.publicData.outBorderWidth;
        QVERIFY(last.pixel(32768 / 2 + 40, inside) == odd || last.pixel(32768 / 2 + 40, inside) == even);
        for (const int x : {0, 7, 4095, 4096, 32766, 32767})
            QCOMPARE(last.pixel(x, 39), toQColor(record.publicData.outBorderColor).rgb());
    }
};

VD_TEST_MAIN(TestLargeChart)
#include "tst_largechart.moc"
