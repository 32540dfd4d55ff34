#include "testcase.h"

#include <chartcabinets.h>
#include <chartcomparison.h>
#include <chartpicture.h>
#include <presets.h>

#include <QBuffer>
#include <QPainter>

#include <cmath>
#include <functional>

using namespace vardeno::testcharttools;
using ChartComparison::CabinetGrid;
using ChartComparison::compare;
using ChartComparison::Kind;
using ChartComparison::Result;

namespace {

/// A chart as capture cards get to see it, and its cabinets.
struct CapturedChart
{
    QImage image;
    CabinetGrid grid;
};

CapturedChart chartOf(const TestChartToolsData& record)
{
    CapturedChart chart{ChartPicture(record).image(), {record.publicData.boxCol, {}}};
    for (int row = 0; row < record.publicData.boxRow; ++row) {
        for (int column = 0; column < record.publicData.boxCol; ++column)
            chart.grid.cabinets.push_back(
                {ChartCabinets::rect(record, row, column), ChartCabinets::label(record, row, column)});
    }
    return chart;
}

TestChartToolsData wallRecord(const QSize& size, int rows, int columns)
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = size.width();
    record.publicData.resolutionHeight = size.height();
    record.publicData.boxRow = rows;
    record.publicData.boxCol = columns;
    return record;
}

TestChartToolsData preset(const char* name, const QSize& size)
{
    TestChartToolsData record = wallRecord(size, 9, 16);
    for (const Preset& candidate : presets()) {
        if (candidate.name == QLatin1String(name))
            candidate.apply(record, candidate);
    }
    return record;
}

QImage jpegOf(const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", quality);
    return QImage::fromData(bytes, "JPG");
}

const CapturedChart& standard()
{
    static const CapturedChart chart = chartOf(wallRecord({640, 360}, 9, 16));
    return chart;
}

TestChartToolsData bare(TestChartToolsData record)
{
    record.publicData.showOutBorder = false;
    record.inLineData.showCircle = false;
    record.inLineData.showDiagonal = false;
    record.inLineData.showSerialNumber = false;
    record.logoData.showLogo = false;
    record.selfData.showSelfText = false;
    record.selfData.showResolution = false;
    return record;
}

/// Labels on two greys.
const CapturedChart& grey()
{
    static const CapturedChart chart = [] {
        TestChartToolsData record = bare(wallRecord({960, 540}, 9, 16));
        record.inLineData.showSerialNumber = true;
        record.inLineData.serialColor = {255, 255, 255, 255};
        record.basicData.oddColor = {64, 64, 64, 255};
        record.basicData.evenColor = {96, 96, 96, 255};
        return chartOf(record);
    }();
    return chart;
}

/// Eight bars of the usual colours, and nothing else.
const CapturedChart& bars()
{
    static const CapturedChart chart = [] {
        CapturedChart made = chartOf(bare(wallRecord({640, 360}, 9, 16)));
        QPainter painter(&made.image);
        int left = 0;
        for (const Qt::GlobalColor color :
             {Qt::white, Qt::yellow, Qt::cyan, Qt::green, Qt::magenta, Qt::red, Qt::blue, Qt::black}) {
            painter.fillRect(left, 0, 80, 360, color);
            left += 80;
        }
        return made;
    }();
    return chart;
}

template <typename Map>
QImage mappedColors(QImage image, Map map)
{
    image = image.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, map(image.pixel(x, y)));
    }
    return image;
}

QImage curvedColors(const QImage& image, const std::function<double(int)>& curve)
{
    const auto level = [&](int old) { return qBound(0, int(std::lround(curve(old))), 255); };
    return mappedColors(image,
                        [&](QRgb c) { return qRgb(level(qRed(c)), level(qGreen(c)), level(qBlue(c))); });
}

struct Matrix
{
    double red;
    double blue;
};
constexpr Matrix bt601{0.299, 0.114};
constexpr Matrix bt709{0.2126, 0.0722};

/// As a player encodes by one matrix and a display decodes by another, in 8 bits.
QImage mixedUp(const QImage& image, const Matrix& encoded, const Matrix& decoded)
{
    const auto level = [](double value) { return qBound(0, int(std::lround(value)), 255); };
    return mappedColors(image, [&](QRgb c) {
        const double green = 1 - encoded.red - encoded.blue;
        const int y = level(encoded.red * qRed(c) + green * qGreen(c) + encoded.blue * qBlue(c));
        const double exactY = encoded.red * qRed(c) + green * qGreen(c) + encoded.blue * qBlue(c);
        const int cb = level(128 + (qBlue(c) - exactY) / (2 * (1 - encoded.blue)));
        const int cr = level(128 + (qRed(c) - exactY) / (2 * (1 - encoded.red)));
        const double red = y + 2 * (1 - decoded.red) * (cr - 128);
        const double blue = y + 2 * (1 - decoded.blue) * (cb - 128);
        return qRgb(level(red),
                    level((y - decoded.red * red - decoded.blue * blue) / (1 - decoded.red - decoded.blue)),
                    level(blue));
    });
}

QImage placedOn(const QSize& size, const QImage& image, const QPoint& at)
{
    QImage canvas(size, QImage::Format_RGB32);
    canvas.fill(Qt::black);
    QPainter painter(&canvas);
    painter.drawImage(at, image);
    return canvas;
}

QImage underscanned(const QImage& image, const QSize& size)
{
    const QImage small = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return placedOn(image.size(), small,
                    {(image.width() - size.width()) / 2, (image.height() - size.height()) / 2});
}

QImage tilted(const QImage& image, double degrees)
{
    QImage canvas(image.size(), QImage::Format_RGB32);
    canvas.fill(Qt::black);
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(image.width() / 2.0, image.height() / 2.0);
    painter.rotate(degrees);
    painter.drawImage(QPointF(-image.width() / 2.0, -image.height() / 2.0), image);
    return canvas;
}

QImage darkAt(QImage image, const QRect& rect)
{
    QPainter painter(&image);
    painter.fillRect(rect, Qt::black);
    return image;
}

} // namespace

/// What happens to charts between a player and a capture card, told by its name.
class TestCapturedCharts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void matrixMixups_data()
    {
        QTest::addColumn<QImage>("chart");
        QTest::addColumn<bool>("by601");
        QTest::newRow("default, 601 shown as 709") << standard().image << true;
        QTest::newRow("default, 709 shown as 601") << standard().image << false;
        QTest::newRow("bars, 601 shown as 709") << bars().image << true;
        QTest::newRow("bars, 709 shown as 601") << bars().image << false;
    }

    void matrixMixups()
    {
        QFETCH(QImage, chart);
        QFETCH(bool, by601);
        const QImage shown = by601 ? mixedUp(chart, bt601, bt709) : mixedUp(chart, bt709, bt601);
        QCOMPARE(compare(chart, shown, standard().grid).sentences(),
                 QStringList(by601 ? "encoded by BT.601, decoded by BT.709"
                                   : "encoded by BT.709, decoded by BT.601"));
    }

    void aMatrixMixupHidesNoFault()
    {
        const QImage shown =
            darkAt(mixedUp(standard().image, bt601, bt709), standard().grid.cabinets[20].rect);
        QCOMPARE(compare(standard().image, shown, standard().grid).sentences(),
                 (QStringList{"encoded by BT.601, decoded by BT.709", "B-E is missing, all #000000"}));
    }

    void underscan_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("a tenth") << QSize(576, 324);
        QTest::newRow("a fiftieth") << QSize(628, 354);
        QTest::newRow("two pixels") << QSize(636, 356);
    }

    void underscan()
    {
        QFETCH(QSize, size);
        for (const CapturedChart* chart : {&bars(), &standard()}) {
            const Result result = compare(chart->image, underscanned(chart->image, size), chart->grid);
            QVERIFY2(result.findings.front().kind == Kind::Scaled, qPrintable(result.sentences().join('\n')));
        }
    }

    /// Bars look the same however far they are moved up.
    void theSmallestMoveWins_data()
    {
        QTest::addColumn<QPoint>("by");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("1 right") << QPoint(1, 0) << "shifted 1 pixel to the right,";
        QTest::newRow("1 left") << QPoint(-1, 0) << "shifted 1 pixel to the left,";
        QTest::newRow("7 left") << QPoint(-7, 0) << "shifted 7 pixels to the left,";
        QTest::newRow("30 right") << QPoint(30, 0) << "shifted 30 pixels to the right,";
        QTest::newRow("a bar") << QPoint(80, 0) << "shifted 80 pixels to the right,";
    }

    void theSmallestMoveWins()
    {
        QFETCH(QPoint, by);
        QFETCH(QString, sentence);
        QImage moved(bars().image.size(), QImage::Format_RGB32);
        QPainter painter(&moved);
        for (const int around : {-640, 0, 640})
            painter.drawImage(by + QPoint(around, 0), bars().image);
        painter.end();
        const QStringList told = compare(bars().image, moved, bars().grid).sentences();
        QVERIFY2(told.front().startsWith(sentence), qPrintable(told.join('\n')));
    }

    void roundingOfAGreyChartIsNoColorChange_data()
    {
        QTest::addColumn<int>("steps");
        QTest::newRow("up") << 1;
        QTest::newRow("down") << -1;
        QTest::newRow("down twice") << -2;
    }

    void roundingOfAGreyChartIsNoColorChange()
    {
        QFETCH(int, steps);
        const QImage shown =
            curvedColors(grey().image, [steps](int v) { return v == 255 || v == 0 ? v : v + steps; });
        const QStringList told = compare(grey().image, shown, grey().grid).sentences();
        for (const char* wrong : {"grey", "swapped", "shows as green", "missing", "percent"})
            QVERIFY2(!told.join('\n').contains(QLatin1String(wrong)), qPrintable(told.join('\n')));
    }

    void aSwapInALossyGreyChartIsNoColorChange()
    {
        const CapturedChart chart = chartOf(preset("numbering-top-left", {1920, 1080}));
        QImage shown = chart.image.copy();
        QPainter painter(&shown);
        painter.drawImage(chart.grid.cabinets[18].rect.topLeft(),
                          chart.image.copy(chart.grid.cabinets[52].rect));
        painter.drawImage(chart.grid.cabinets[52].rect.topLeft(),
                          chart.image.copy(chart.grid.cabinets[18].rect));
        painter.end();
        for (const auto& finding : compare(chart.image, jpegOf(shown, 85), chart.grid).findings)
            QVERIFY2(finding.kind != Kind::ColorsChanged, qPrintable(sentence(finding)));
    }

    void aLittleTurnIsNoShift_data()
    {
        QTest::addColumn<double>("degrees");
        for (const double degrees : {1.0, -1.0})
            QTest::addRow("%g degrees", degrees) << degrees;
    }

    void aLittleTurnIsNoShift()
    {
        QFETCH(double, degrees);
        for (const auto& finding : compare(grey().image, tilted(grey().image, degrees), grey().grid).findings)
            QVERIFY2(finding.kind != Kind::Shifted, qPrintable(sentence(finding)));
    }

    void limitedAndDarker_data()
    {
        QTest::addColumn<int>("percent");
        for (const int percent : {50, 80})
            QTest::addRow("%d percent", percent) << percent;
    }

    void limitedAndDarker()
    {
        QFETCH(int, percent);
        for (const CapturedChart* chart : {&standard(), &grey(), &bars()}) {
            const QImage shown =
                curvedColors(chart->image, [percent](int v) { return 16 + v * percent / 100.0 * 219 / 255; });
            QCOMPARE(compare(chart->image, shown, chart->grid).sentences(),
                     QStringList(QStringLiteral("brightness at %1 percent and in the limited range, 0..255 "
                                                "shows as 16..235")
                                     .arg(percent)));
        }
    }

    void tolerance_data()
    {
        QTest::addColumn<int>("off");
        QTest::addColumn<int>("tolerance");
        QTest::addColumn<bool>("equal");
        QTest::newRow("1 of 0") << 1 << 0 << false;
        QTest::newRow("1 of 1") << 1 << 1 << true;
        QTest::newRow("3 of 2") << 3 << 2 << false;
        QTest::newRow("3 of 255") << 3 << 255 << true;
    }

    void tolerance()
    {
        QFETCH(int, off);
        QFETCH(int, tolerance);
        const QImage shown =
            mappedColors(grey().image, [off](QRgb c) { return qRgb(qRed(c), qGreen(c) ^ off, qBlue(c)); });
        const Result result = compare(grey().image, shown, grey().grid, tolerance);
        QTEST(result.equal, "equal");
        QCOMPARE(result.tolerated, result.equal ? off : 0);
        QCOMPARE(result.findings.empty(), result.equal);
    }

    void faultsBesideWhatIsTolerated()
    {
        const QRect missing = standard().grid.cabinets[20].rect;
        const QImage noisy =
            mappedColors(standard().image, [](QRgb c) { return c ^ (c * 2654435761U >> 31U); });
        QCOMPARE(compare(standard().image, darkAt(noisy, missing), standard().grid, 1).sentences(),
                 QStringList("B-E is missing, all #000000"));
    }

    void aMovedChartIsFoundWithTolerance()
    {
        const QImage noisy = curvedColors(bars().image, [](int v) { return v ^ 1; });
        const QImage moved = placedOn(noisy.size(), noisy, {13, 0});
        const QStringList told = compare(bars().image, moved, bars().grid, 1).sentences();
        QVERIFY2(told.front().startsWith("shifted 13 pixels to the right, what leaves"),
                 qPrintable(told.front()));
    }
};

VD_TEST_MAIN(TestCapturedCharts)
#include "tst_capturedcharts.moc"
