#include "programtest.h"

#include <cabinetmarkers.h>

#include <QImage>

using namespace vardeno::testcharttools;

/// The switch of a record's document on its way through the commands.
class TestMarkers : public ProgramTest
{
    Q_OBJECT

private:
    static TestChartToolsData record()
    {
        TestChartToolsData record = smallRecord();
        record.publicData.boxCol = 4;
        record.publicData.boxRow = 2;
        record.inLineData.showSerialNumber = false;
        record.logoData.showLogo = record.selfData.showSelfText = record.selfData.showResolution = false;
        return record;
    }

    /// How many of the cabinets show their markers.
    static int shown(const QImage& chart)
    {
        const std::vector<CabinetMarker> markers = cabinetMarkers(record());
        return int(std::count_if(markers.begin(), markers.end(), [&](const CabinetMarker& marker) {
            const int module = marker.square.width() / markerModules;
            for (int row = 0; row < markerModules; ++row) {
                for (int column = 0; column < markerModules; ++column) {
                    const QRgb pixel = chart.pixel(marker.square.topLeft() + QPoint(column, row) * module);
                    const bool isWhite = isMarkerWhite(marker.marker, row, column);
                    if (pixel != (isWhite ? qRgb(255, 255, 255) : qRgb(0, 0, 0)))
                        return false;
                }
            }
            return true;
        }));
    }

    int shownIn(const QString& name) const { return shown(QImage(path(name))); }

private Q_SLOTS:
    void initTestCase()
    {
        write("plain.json", ChartRecordFile::toJson(record()));
        write("marked.json", ChartRecordFile::toJson(record(), ChartRecordFile::withMarkers({}, {true})));
        write("wall.json", R"({"format": "testwall", "version": 1, "chart": {"path": "marked.json"},
            "cabinets": {"columnWidths": [[4, 80]], "rowHeights": [[2, 90]]}})");
        write("show.json", R"({"format": "testshow", "version": 1,
            "show": {"outputs": [{"name": "one", "width": 320, "height": 180}],
                     "walls": [{"name": "a", "path": "wall.json"}],
                     "placements": [{"wall": "a", "output": "one"}]}})");
    }

    void rendered_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("count");
        QTest::newRow("without") << QStringList{"plain.json"} << 0;
        QTest::newRow("with") << QStringList{"marked.json"} << 8;
        QTest::newRow("switched on") << QStringList{"plain.json", "-s", "markerData.showMarkers=true"} << 8;
        QTest::newRow("switched off")
            << QStringList{"marked.json", "-s", "markerData.showMarkers=false"} << 0;
        QTest::newRow("a wall") << QStringList{"wall.json"} << 8;
        QTest::newRow("a wall, switched off")
            << QStringList{"wall.json", "-s", "markerData.showMarkers=false"} << 0;
        QTest::newRow("a show") << QStringList{"show.json"} << 8;
    }

    void rendered()
    {
        QFETCH(QStringList, arguments);
        const Outcome outcome = run(QStringList{"render", "-o", "out.png"} + arguments);
        QVERIFY2(outcome.code == 0, qPrintable(outcome.errors));
        QTEST(shownIn("out.png"), "count");
        // what the picture carries has them as well
        QCOMPARE(run({"render", "-o", "again.png", "out.png"}).code, 0);
        QTEST(shownIn("again.png"), "count");
        QCOMPARE(run({"verify", "out.png"}).code, 0);
    }

    void batched()
    {
        const Outcome outcome = run({"batch", "plain.json", "marked.json", "-o", "batch"});
        QVERIFY2(outcome.code == 0, qPrintable(outcome.errors));
        QCOMPARE(shownIn("batch/plain.png"), 0);
        QCOMPARE(shownIn("batch/marked.png"), 8);
        const QStringList again = {"batch", "plain.json", "marked.json", "-o",
                                   "batch", "--resume",   "-s",          "markerData.showMarkers=true"};
        QCOMPARE(run(again).output, QByteArray("1 of 2 pictures written, 1 kept\n"));
        QCOMPARE(shownIn("batch/plain.png"), 8);
    }

    void aChartWithoutThemIsAnother()
    {
        QCOMPARE(run({"render", "-o", "out.png", "plain.json"}).code, 0);
        QCOMPARE(run({"verify", "out.png", "plain.json"}).code, 0);
        QCOMPARE(run({"verify", "out.png", "marked.json"}).code, 1);
    }

    void begun()
    {
        const auto made = ChartRecordFile::fromJson(run({"new", "-p", "tags"}).output);
        QVERIFY(made.problems.isEmpty());
        QVERIFY(ChartRecordFile::markersOf(made.document).showMarkers);
        QVERIFY(!run({"new", "-p", "numbering-top-left"}).output.contains("markerData"));
        QVERIFY(!run({"new", "-p", "tags", "-p", "bars"}).output.contains("markerData")); // the last one wins
    }

    void checked()
    {
        QCOMPARE(run({"check", "marked.json"}).output, QByteArray());
        const Outcome outcome = run({"check", "marked.json", "--grid", "20x10"});
        QCOMPARE(outcome.code, 1);
        QCOMPARE(
            outcome.output,
            QByteArray("marked.json: warning: markerData.showMarkers: cabinets of 16 x 18 pixels have no "
                       "room of 24 pixels for a marker; none is drawn\n"));
    }
};

VD_TEST_MAIN(TestMarkers)
#include "tst_markers.moc"
