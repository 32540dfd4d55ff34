#include "presets.h"
#include "testcase.h"

#include <chartrecordfile.h>

#include <QMap>
#include <QSet>

#include <algorithm>

using namespace vardeno::testcharttools;

class TestPresets : public TestCase
{
    Q_OBJECT

private:
    static TestChartToolsData record(const QString& preset)
    {
        TestChartToolsData record;
        findPreset(preset)->apply(record, *findPreset(preset));
        return record;
    }

private Q_SLOTS:
    void eachIsARecord()
    {
        QSet<QString> names;
        for (const Preset& preset : presets()) {
            const TestChartToolsData made = record(preset.name);
            const auto reading = ChartRecordFile::fromJson(ChartRecordFile::toJson(made));
            QVERIFY2(reading.problems.isEmpty(),
                     qPrintable(preset.name + reading.problems.join(QLatin1Char('\n'))));
            QVERIFY2(reading.record == made, qPrintable(preset.name));
            QVERIFY2(!names.contains(preset.name), qPrintable(preset.name));
            QVERIFY2(!preset.description.isEmpty(), qPrintable(preset.name));
            names.insert(preset.name);
        }
    }

    void wallsAreOfWholeCabinets()
    {
        for (const Preset& preset : presets()) {
            if (preset.resolution.isEmpty())
                continue;
            const PublicChartData made = record(preset.name).publicData;
            QCOMPARE(QSize(made.resolutionWidth, made.resolutionHeight), preset.resolution);
            QVERIFY2(made.resolutionWidth % made.boxCol == 0, qPrintable(preset.name));
            QVERIFY2(made.resolutionHeight % made.boxRow == 0, qPrintable(preset.name));
        }
    }

    void picturesLeaveTheWall()
    {
        TestChartToolsData made = record(QStringLiteral("portrait-uhd"));
        const Preset& bars = *findPreset(QStringLiteral("bars"));
        bars.apply(made, bars);
        QCOMPARE(made.publicData.resolutionWidth, 2160);
        QCOMPARE(made.publicData.boxRow, 16);
    }

    void floods_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::newRow("red") << QColor(255, 0, 0);
        QTest::newRow("green") << QColor(0, 255, 0);
        QTest::newRow("blue") << QColor(0, 0, 255);
        QTest::newRow("white") << QColor(255, 255, 255);
        QTest::newRow("black") << QColor(0, 0, 0);
        QTest::newRow("grey") << QColor(128, 128, 128);
    }

    void floods()
    {
        QFETCH(QColor, color);
        const TestChartToolsData made =
            record(QStringLiteral("flood-") + QLatin1String(QTest::currentDataTag()));
        QCOMPARE(toQColor(made.basicData.oddColor), color);
        QCOMPARE(toQColor(made.basicData.evenColor), color);
        QVERIFY(made.basicData.chessChecked);
        QVERIFY(!made.publicData.showOutBorder && !made.inLineData.showCircle &&
                !made.inLineData.showDiagonal);
        QVERIFY(!made.inLineData.showSerialNumber && !made.logoData.showLogo);
        QVERIFY(!made.selfData.showSelfText && !made.selfData.showResolution);
    }

    void ramps_data()
    {
        QTest::addColumn<int>("steps");
        QTest::newRow("ramp-8") << 8;
        QTest::newRow("ramp-16") << 16;
    }

    void ramps()
    {
        QFETCH(int, steps);
        const auto colors = record(QString::fromLatin1(QTest::currentDataTag())).basicData.colorStripeColors;
        QCOMPARE(int(colors.size()), steps);
        QCOMPARE(colors.at(0), QColor(Qt::black));
        QCOMPARE(colors.at(steps - 1), QColor(Qt::white));
        for (int step = 0; step < steps; ++step) {
            QCOMPARE(colors.at(step).red(), qRound(255.0 * step / (steps - 1)));
            QCOMPARE(colors.at(step),
                     QColor(colors.at(step).red(), colors.at(step).red(), colors.at(step).red()));
        }
    }

    /// Nothing is left over at the right edge, and no step is much wider than another.
    void rampsOfAnyWidth_data()
    {
        QTest::addColumn<int>("width");
        for (const int width : {16, 17, 1000, 1009, 1080, 1366, 1919, 4320})
            QTest::addRow("%d pixels", width) << width;
    }

    void rampsOfAnyWidth()
    {
        QFETCH(int, width);
        TestChartToolsData made;
        made.publicData.resolutionWidth = width;
        const Preset& ramp = *findPreset(QStringLiteral("ramp-16"));
        ramp.apply(made, ramp);
        const int stripes = int(made.basicData.colorStripeColors.size());
        QCOMPARE(width % stripes, 0);
        QMap<int, int> widths; // of each level
        for (const auto& [row, color] : made.basicData.colorStripeColors)
            widths[color.red()] += width / stripes;
        QCOMPARE(widths.size(), 16);
        const auto ends = std::minmax_element(widths.cbegin(), widths.cend());
        QVERIFY(*ends.second - *ends.first <= std::max(1, *ends.first / 4));
    }

    void bars()
    {
        const auto colors = record(QStringLiteral("bars")).basicData.colorStripeColors;
        QStringList names;
        for (const auto& [row, color] : colors)
            names.append(color.name());
        QCOMPARE(names.join(QLatin1Char(' ')),
                 QStringLiteral("#ffffff #bfbf00 #00bfbf #00bf00 #bf00bf #bf0000 #0000bf #000000"));
    }

    void numberings_data()
    {
        QTest::addColumn<int>("sort");
        QTest::newRow("numbering-top-left") << 0;
        QTest::newRow("numbering-top-right") << 1;
        QTest::newRow("numbering-bottom-left") << 2;
        QTest::newRow("numbering-bottom-right") << 3;
    }

    void numberings()
    {
        QFETCH(int, sort);
        const InLineChartData labels = record(QString::fromLatin1(QTest::currentDataTag())).inLineData;
        QVERIFY(labels.showSerialNumber && labels.numMode && !labels.letterMode && !labels.combinationMode);
        QCOMPARE(labels.serialSort, sort);
    }

    void unknown() { QVERIFY(!findPreset(QStringLiteral("flood-mauve"))); }
};

VD_TEST_MAIN(TestPresets)
#include "tst_presets.moc"
