#include "changes.h"
#include "fields.h"
#include "testcase.h"

#include <testcharttoolsdata.h>

using namespace vardeno::testcharttools;

class TestChanges : public TestCase
{
    Q_OBJECT

private:
    static QString messageOf(const Changes& changes)
    {
        TestChartToolsData record;
        try {
            MarkerData markers;
            applyChanges(record, markers, changes);
        } catch (const Failure& failure) {
            return failure.code == ExitCode::Usage ? failure.message : QStringLiteral("another code");
        }
        return QString();
    }

private Q_SLOTS:
    void walls_data()
    {
        QTest::addColumn<QString>("grid");
        QTest::addColumn<QString>("cabinet");
        QTest::addColumn<QSize>("resolution");
        QTest::addColumn<QSize>("cabinets");
        QTest::newRow("neither") << ""
                                 << "" << QSize(1920, 1080) << QSize(16, 9);
        QTest::newRow("a grid") << "15x8"
                                << "" << QSize(1920, 1080) << QSize(15, 8);
        QTest::newRow("cabinets") << ""
                                  << "128x64" << QSize(2048, 576) << QSize(16, 9);
        QTest::newRow("both") << "15x9"
                              << "128x128" << QSize(1920, 1152) << QSize(15, 9);
        QTest::newRow("other signs") << "15X9" << QString::fromUtf8("128×128") << QSize(1920, 1152)
                                     << QSize(15, 9);
    }

    void walls()
    {
        QFETCH(QString, grid);
        QFETCH(QString, cabinet);
        TestChartToolsData record;
        MarkerData markers;
        applyChanges(record, markers, {{}, grid.toStdString(), cabinet.toStdString()});
        QTEST(QSize(record.publicData.resolutionWidth, record.publicData.resolutionHeight), "resolution");
        QTEST(QSize(record.publicData.boxCol, record.publicData.boxRow), "cabinets");
    }

    void fieldsWin()
    {
        TestChartToolsData record;
        MarkerData markers;
        applyChanges(record, markers,
                     {{"columns=12", "publicData.boxCol=10", "basicData.oddColor=#ff8000",
                       "markerData.showMarkers=true"},
                      "15x9",
                      ""});
        QVERIFY(markers.showMarkers);
        QCOMPARE(record.publicData.boxCol, 10);
        QCOMPARE(record.publicData.boxRow, 9);
        QCOMPARE(toQColor(record.basicData.oddColor), QColor(255, 128, 0));
    }

    void refused_data()
    {
        QTest::addColumn<QString>("grid");
        QTest::addColumn<QString>("cabinet");
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QString>("message");
        QTest::newRow("one number") << "15"
                                    << ""
                                    << ""
                                    << "--grid: \"15\" is not two numbers, such as 16x9";
        QTest::newRow("more") << ""
                              << "1x2x3"
                              << ""
                              << "--cabinet: \"1x2x3\" is not two numbers, such as 16x9";
        QTest::newRow("too many") << "1001x9"
                                  << ""
                                  << ""
                                  << "--grid: publicData.boxCol: 1001 is not in 1..1000";
        QTest::newRow("too large")
            << "400x9"
            << "128x128"
            << ""
            << "--cabinet: 400 x 9 of them: publicData.resolutionWidth: 51200 is not in "
               "16..32768";
        QTest::newRow("a short name") << ""
                                      << ""
                                      << "rows=0"
                                      << "--set: publicData.boxRow: 0 is not in 1..1000";
        QTest::newRow("no value") << ""
                                  << ""
                                  << "rows"
                                  << "--set: rows: \"=\" and a value expected";
    }

    void refused()
    {
        QFETCH(QString, grid);
        QFETCH(QString, cabinet);
        QFETCH(QString, setting);
        Changes changes{{}, grid.toStdString(), cabinet.toStdString()};
        if (!setting.isEmpty())
            changes.settings.push_back(setting.toStdString());
        QTEST(messageOf(changes), "message");
    }

    void names()
    {
        QCOMPARE(fieldOf(QStringLiteral("rows")), QStringLiteral("publicData.boxRow"));
        QCOMPARE(fieldOf(QStringLiteral("brightness")), QStringLiteral("brightness"));
        QVERIFY(isField(QStringLiteral("selfData.selfText")) && !isField(QStringLiteral("selfData")));
        QVERIFY(fieldNames().contains(QStringLiteral("height")));
        QCOMPARE(fieldNames().size(), 50 + 4);
    }
};

VD_TEST_MAIN(TestChanges)
#include "tst_changes.moc"
