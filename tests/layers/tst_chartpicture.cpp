#include "charttool.h"
#include "randomrecords.h"

#include <chartlanguages.h>
#include <chartpicture.h>
#include <pngencoder.h>
#include <translatemanager1.h>

#include <QPainter>
#include <QTemporaryDir>

using namespace charttool;

namespace {

constexpr RecordLimits pictureLimits = {QSize(700, 500), 40, 100, 700};

QImage halfTransparent()
{
    QImage image(90, 61, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgba(x * 2, y * 3, x + y, (x * 7 + y * 3) % 256));
    }
    return image;
}

/// Of every pixel the palette's colour, of which one is translucent.
QImage withPalette()
{
    QImage image(40, 30, QImage::Format_Indexed8);
    image.setColorTable({qRgba(255, 0, 0, 255), qRgba(0, 0, 200, 99)});
    image.fill(0);
    return image;
}

} // namespace

class TestChartPicture : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    std::vector<std::string> pictures() const
    {
        return {m_folder.filePath("translucent.png").toStdString(),
                m_folder.filePath("palette.png").toStdString(), m_folder.filePath("opaque.jpg").toStdString(),
                m_folder.filePath("missing.png").toStdString()};
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(halfTransparent().save(m_folder.filePath("translucent.png")));
        QVERIFY(withPalette().save(m_folder.filePath("palette.png")));
        QVERIFY(
            halfTransparent().convertToFormat(QImage::Format_RGB32).save(m_folder.filePath("opaque.jpg")));
    }

    void captionsBeforeALanguageAreEmpty()
    {
        TranslateManager1::instance().switchLanguage(QString());
        QCOMPARE(ChartCaptions::current().resolution, QString());
        QCOMPARE(ChartCaptions::current().cabinets, QString());
    }

    /// The editor, which shows its layers one by one, gives the same pixels.
    void drawsWhatTheEditorShows()
    {
        VTestChartTools tool;
        ChartLanguages::load();
        tool.switchLanguage(QStringLiteral("en"));
        const ChartCaptions captions = ChartCaptions::current();
        QCOMPARE(captions.cabinets, QStringLiteral("Cabinets"));
        RandomRecords records(20241122, pictures(), pictureLimits);
        for (int i = 0; i < 300; ++i) {
            const TestChartToolsData record = records.next();
            tool.applyRecord(record);
            const ChartPicture picture(record, captions);
            QCOMPARE(picture.size(),
                     QSize(record.publicData.resolutionWidth, record.publicData.resolutionHeight));
            const QString difference = imageDifference(picture.image(), tool.chartImage());
            QVERIFY2(difference.isEmpty(),
                     qPrintable(QStringLiteral("record %1: %2").arg(i).arg(difference)));
        }
    }

    /// Small charts, of which each layer is drawn once, and one that is drawn in parts.
    void stripsAreTheSamePicture()
    {
        RandomRecords records(7, pictures(), pictureLimits);
        for (int i = 0; i < 40; ++i) {
            TestChartToolsData record = records.next();
            if (i == 0)
                record.publicData.resolutionWidth = 4400;
            const ChartPicture picture(record);
            const QImage whole = picture.image();
            const PictureRows strips = picture.strips();
            QCOMPARE(strips.size, picture.size());
            const int height = 1 + i * 3;
            for (int top = 0; top < whole.height(); top += height) {
                const int count = qMin(height, whole.height() - top);
                const QString difference =
                    imageDifference(strips.rows(top, count), whole.copy(0, top, whole.width(), count));
                QVERIFY2(
                    difference.isEmpty(),
                    qPrintable(QStringLiteral("record %1, from %2: %3").arg(i).arg(top).arg(difference)));
            }
        }
    }

    /// Whose strips are of whole blocks: a file does not depend on how its rows are asked for.
    void stripsEncodeAsTheWholePicture()
    {
        TestChartToolsData record;
        record.publicData.resolutionWidth = 3000;
        record.publicData.resolutionHeight = 1000;
        const ChartPicture picture(record);
        QVERIFY(picture.strips().stripHeight() < picture.size().height());
        QByteArray file;
        encodePng(picture.strips(), {},
                  [&file](const char* bytes, qint64 count) { file.append(bytes, int(count)); });
        QVERIFY(file == encodePng(picture.image(), {}));
    }

    void theDisplayDoesNotMatter_data()
    {
        QTest::addColumn<int>("hinting");
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("no hinting") << int(QFont::PreferNoHinting) << false;
        QTest::newRow("the display's own") << int(QFont::PreferDefaultHinting) << false;
        QTest::newRow("from right to left") << int(QFont::PreferFullHinting) << true;
    }

    void theDisplayDoesNotMatter()
    {
        QFETCH(int, hinting);
        QFETCH(bool, rightToLeft);
        TestChartToolsData record;
        record.logoData.textLogo = true;
        record.selfData.selfText = "(1) wall A, 70 %!";
        const QImage expected = ChartPicture(record).image();
        const QFont before = QApplication::font();
        const auto restore = qScopeGuard([&] {
            QApplication::setFont(before);
            QApplication::setLayoutDirection(Qt::LeftToRight);
        });
        QFont font = before;
        font.setHintingPreference(QFont::HintingPreference(hinting));
        QApplication::setFont(font);
        QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        VD_COMPARE_IMAGES(ChartPicture(record).image(), expected);
        VTestChartTools tool;
        tool.applyRecord(record);
        VD_COMPARE_IMAGES(tool.chartImage(), ChartPicture(record, ChartCaptions::current()).image());
    }

    void choices_data()
    {
        QTest::addColumn<bool>("chess");
        QTest::addColumn<bool>("bar");
        QTest::addColumn<bool>("pictureLogo");
        QTest::addColumn<bool>("textLogo");
        QTest::newRow("none") << false << false << false << false;
        QTest::newRow("all") << true << true << true << true;
        QTest::newRow("bar and text") << false << true << false << true;
    }

    /// Where a record chooses none or several of what excludes one another.
    void choices()
    {
        QFETCH(bool, chess);
        QFETCH(bool, bar);
        QFETCH(bool, pictureLogo);
        QFETCH(bool, textLogo);
        TestChartToolsData record;
        record.publicData.resolutionWidth = 320;
        record.publicData.resolutionHeight = 200;
        record.basicData.chessChecked = chess;
        record.basicData.colorBarChecked = bar;
        record.basicData.colorStripeColors = {{0, Qt::red}, {1, Qt::blue}};
        record.logoData.pictureLogo = pictureLogo;
        record.logoData.textLogo = textLogo;
        record.logoData.scale = 10;
        record.inLineData.letterMode = false;
        VTestChartTools tool;
        tool.applyRecord(record);
        VD_COMPARE_IMAGES(ChartPicture(record, ChartCaptions::current()).image(), tool.chartImage());
    }

    /// A picture is a value: what it was made from may change.
    void keepsItsRecord()
    {
        TestChartToolsData record = smallRecord();
        const ChartPicture picture(record);
        const ChartPicture copy = picture; // NOLINT(performance-unnecessary-copy-initialization)
        record.basicData.oddColor = {0, 0, 0, 255};
        VD_COMPARE_IMAGES(copy.image(), expectedChart(smallRecord()));
        QCOMPARE(copy.image().format(), QImage::Format_RGB32);
    }

    /// A logo of which the file changes is read anew.
    void looksAtTheLogosFile()
    {
        TestChartToolsData record = smallRecord();
        const QString path = m_folder.filePath("changing.png");
        record.logoData.showLogo = true;
        record.logoData.picturePath = path.toStdString();
        for (const QSize& size : {QSize(20, 10), QSize(30, 31)}) {
            QImage logo(size, QImage::Format_RGB32);
            logo.fill(Qt::green);
            QVERIFY(logo.save(path));
            const QImage chart = ChartPicture(record).image();
            QImage expected = expectedChart(smallRecord());
            const QPoint at(80 - size.width() / 2, 45 - size.height() / 2);
            QPainter(&expected).drawImage(at, logo);
            VD_COMPARE_IMAGES(chart, expected);
        }
    }
};

VD_TEST_MAIN(TestChartPicture)
#include "tst_chartpicture.moc"
