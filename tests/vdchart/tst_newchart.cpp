#include "chartfont.h"
#include "languages.h"
#include "newchart.h"
#include "presets.h"
#include "testcase.h"

#include <chartcheck.h>
#include <chartink.h>

#include <QRandomGenerator>

using namespace vardeno::testcharttools;

Q_DECLARE_METATYPE(const Preset*)

class TestNewChart : public TestCase
{
    Q_OBJECT

private:
    static PublicChartData wall(int width, int height, int columns, int rows)
    {
        PublicChartData wall;
        wall.resolutionWidth = width;
        wall.resolutionHeight = height;
        wall.boxCol = columns;
        wall.boxRow = rows;
        return wall;
    }

    static TestChartToolsData withPreset(TestChartToolsData record, const Preset& preset)
    {
        preset.apply(record, preset);
        return record;
    }

    static QString warnings(const TestChartToolsData& record, const MarkerData& markers = {})
    {
        return ChartCheck::warnings(record, markers).join(QLatin1Char('\n'));
    }

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setFont(chartFont());
        chooseLanguage(QStringLiteral("en"));
    }

    void everyPresetPassesTheCheck_data()
    {
        QTest::addColumn<const Preset*>("wall");
        QTest::newRow("no wall") << static_cast<const Preset*>(nullptr);
        for (const Preset& preset : presets()) {
            if (preset.isWall())
                QTest::newRow(qPrintable(preset.name)) << &preset;
        }
    }

    /// Each wall alone and with each picture, and each picture alone.
    void everyPresetPassesTheCheck()
    {
        QFETCH(const Preset*, wall);
        const TestChartToolsData start = wall ? withPreset({}, *wall) : TestChartToolsData();
        const TestChartToolsData made = newChart(start.publicData);
        QCOMPARE(warnings(made), QString());
        int pictures = 0;
        for (const Preset& picture : presets()) {
            if (picture.isWall())
                continue;
            ++pictures;
            QCOMPARE(picture.name + warnings(withPreset(made, picture), picture.markers), picture.name);
        }
        QVERIFY(pictures > 10);
    }

    /// Whose line with the resolution is wider or higher.
    void inEveryLanguage()
    {
        const TestChartToolsData made = newChart(wall(1920, 1080, 16, 9));
        const TestChartToolsData large = newChart(wall(3840, 2160, 10, 10));
        for (const QString& code : languageCodes()) {
            chooseLanguage(code);
            QCOMPARE(warnings(made), QString());
            QCOMPARE(warnings(large), QString());
        }
        chooseLanguage(QStringLiteral("en"));
    }

    void theUsualChart()
    {
        const TestChartToolsData made = newChart();
        QCOMPARE(made.publicData.resolutionWidth, 1920);
        QCOMPARE(made.inLineData.serialSize, 20);
        QCOMPARE(made.inLineData.circleSize, 540);
        QCOMPARE(made.inLineData.diagonalWidth, 10);
        QVERIFY(made.inLineData.showSerialNumber && made.logoData.showLogo && made.selfData.showResolution);
        QVERIFY(made.selfData.resolutionTextSize >= made.inLineData.serialSize);
    }

    void itScales()
    {
        const TestChartToolsData made = newChart(wall(3840, 2160, 16, 9));
        QCOMPARE(made.publicData.outBorderWidth, 4);
        QCOMPARE(made.inLineData.circleSize, 1080);
        QCOMPARE(made.inLineData.circleWidth, 4);
        QCOMPARE(made.inLineData.diagonalWidth, 20);
        QCOMPARE(made.inLineData.serialSize, 40);
        const TestChartToolsData usual = newChart();
        const int height = ChartInk::logo(usual).height();
        QVERIFY(std::abs(ChartInk::logo(made).height() - 2 * height) < height / 4);
    }

    void bothTextsWhereThereIsRoom()
    {
        const SelfChartData texts = newChart(wall(1920, 1152, 10, 6)).selfData;
        QVERIFY(texts.showSelfText && texts.showResolution);
        QVERIFY(texts.selfTextSize > 40 && texts.resolutionTextSize > 40);
    }

    void numbersForManyCabinets()
    {
        QVERIFY(newChart(wall(2600, 1000, 26, 10)).inLineData.letterMode);
        const InLineChartData labels = newChart(wall(2700, 1000, 27, 10)).inLineData;
        QVERIFY(!labels.letterMode && labels.numMode);
    }

    void noLabelsInTinyCabinets()
    {
        QVERIFY(!newChart(wall(320, 180, 16, 9)).inLineData.showSerialNumber);
        QVERIFY(newChart(wall(640, 360, 16, 9)).inLineData.showSerialNumber);
    }

    void anyWall()
    {
        QRandomGenerator random(7);
        for (int i = 0; i < 40; ++i) {
            const int columns = random.bounded(1, 41);
            const int rows = random.bounded(1, 31);
            const int most = std::min(4320 / std::max(columns, rows), 600);
            const int width = random.bounded(std::min(most, 20), most + 1);
            const int height = random.bounded(std::min(most, 20), most + 1);
            const PublicChartData wanted =
                wall(std::max(16, columns * width), std::max(16, rows * height), columns, rows);
            const QString found = warnings(newChart(wanted)).replace(QLatin1Char('\n'), QLatin1Char(' '));
            QVERIFY2(found.isEmpty() || found.startsWith(QLatin1String("publicData.box")),
                     qPrintable(QStringLiteral("%1 x %2, %3 x %4: %5")
                                    .arg(wanted.resolutionWidth)
                                    .arg(wanted.resolutionHeight)
                                    .arg(columns)
                                    .arg(rows)
                                    .arg(found)));
        }
    }

    void theSmallestChart()
    {
        const TestChartToolsData made = newChart(wall(16, 16, 1, 1));
        QVERIFY(!made.selfData.showSelfText && !made.selfData.showResolution && !made.logoData.showLogo);
        QCOMPARE(made.publicData.outBorderWidth, 1);
        QCOMPARE(warnings(made), QString());
    }
};

VD_TEST_MAIN(TestNewChart)
#include "tst_newchart.moc"
