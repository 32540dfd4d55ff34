#include "testcase.h"

#include <chartrecordfile.h>
#include <wallfile.h>

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

using namespace vardeno::testcharttools;
using namespace vardeno::walls;

namespace {

/// A wall's document with `members` besides the head.
QByteArray document(const QByteArray& members)
{
    return R"({"format": "testwall", "version": 1)" + (members.isEmpty() ? "" : ", " + members) + '}';
}

QByteArray cabinets(const QByteArray& members)
{
    return document(R"("cabinets": {"columnWidths": [[4, 32]], "rowHeights": [[3, 32]], )" + members + '}');
}

} // namespace

class TestWallFile : public TestCase
{
    Q_OBJECT

private:
    // What is wrong, and what is told of it.

    static void addDocuments()
    {
        QTest::newRow("empty") << QByteArray() << "not JSON: empty";
        QTest::newRow("a record") << QByteArray(R"({"format": "testchart", "version": 1})")
                                  << "format: testwall expected";
        QTest::newRow("newer") << QByteArray(R"({"format": "testwall", "version": 2})")
                               << "version: 2 is newer than 1, the newest that is known";
        QTest::newRow("twice") << document(R"("wall": {"name": "a", "name": "b"})")
                               << "wall.name: stands twice";
        QTest::newRow("the schema's name") << document(R"("$schema": 5)") << "$schema: 5 is not a text";
        QTest::newRow("a group") << document(R"("data": 5)") << "data: 5 is not an object";
    }

    static void addCabinets()
    {
        QTest::newRow("no widths") << document(R"("cabinets": {"columnWidths": []})")
                                   << "cabinets.columnWidths: [] is not a list of [count, pixels]";
        QTest::newRow("a width without its count")
            << document(R"("cabinets": {"columnWidths": [[1, 64], 128]})")
            << "cabinets.columnWidths: 128 (item 2) is not [count, pixels] of numbers in 1..32768";
        QTest::newRow("a width of nothing")
            << document(R"("cabinets": {"columnWidths": [[1, 0]]})")
            << "cabinets.columnWidths: [1, 0] (item 1) is not [count, pixels] of numbers in 1..32768";
        QTest::newRow("too many columns") << document(R"("cabinets": {"columnWidths": [[1, 8], [1000, 8]]})")
                                          << "cabinets.columnWidths: 1001 are more than 1000";
        QTest::newRow("too wide") << document(R"("cabinets": {"columnWidths": [[257, 128]]})")
                                  << "cabinets.columnWidths: 32896 pixels in all are not in 16..32768";
        QTest::newRow("too low") << document(R"("cabinets": {"rowHeights": [[3, 5]]})")
                                 << "cabinets.rowHeights: 15 pixels in all are not in 16..32768";
        QTest::newRow("no list") << cabinets(R"("exceptions": {})")
                                 << "cabinets.exceptions: {} is not a list of cabinets";
        QTest::newRow("no cabinet") << cabinets(R"("exceptions": [5])")
                                    << "cabinets.exceptions: (cabinet 1) 5 is not an object";
        QTest::newRow("no place") << cabinets(R"("exceptions": [{"column": 1}])")
                                  << "cabinets.exceptions: (cabinet 1) row: is missing";
        QTest::newRow("an odd turn")
            << cabinets(R"("exceptions": [{"column": 1, "row": 1, "turned": 45}])")
            << "cabinets.exceptions: (cabinet 1) turned: 45 is not 0, 90, 180 or 270";
        QTest::newRow("a turn of half a degree")
            << cabinets(R"("exceptions": [{"column": 1, "row": 1, "turned": 90.5}])")
            << "cabinets.exceptions: (cabinet 1) turned: 90.5 is not 0, 90, 180 or 270";
        QTest::newRow("right of the grid") << cabinets(R"("exceptions": [{"column": 5, "row": 1}])")
                                           << "cabinets.exceptions: (cabinet 1) column 5 is not in 1..4";
        QTest::newRow("spans beyond the grid")
            << cabinets(R"("exceptions": [{"column": 1, "row": 2, "rows": 3}])")
            << "cabinets.exceptions: (cabinet 1) rows 2..4 are not in 1..3";
        QTest::newRow("on one another")
            << cabinets(R"("exceptions": [{"column": 2, "row": 2, "missing": true},
                                          {"column": 1, "row": 1, "columns": 2, "rows": 2}])")
            << "cabinets.exceptions: (cabinet 2) has column 2, row 2, which cabinet 1 of the list has";
        QTest::newRow("nothing left")
            << cabinets(
                   R"("exceptions": [{"column": 1, "row": 1, "columns": 4, "rows": 3, "missing": true}])")
            << "cabinets.exceptions: no cabinet is left";
    }

    static void addRuns()
    {
        QTest::newRow("a choice") << document(R"("data": {"corner": "top"})")
                                  << "data.corner: \"top\" is not one of top-left, top-right, bottom-left, "
                                     "bottom-right";
        QTest::newRow("a number") << document(R"("data": {"bitDepth": 7})")
                                  << "data.bitDepth: 7 is not in 8..16";
        QTest::newRow("runs") << document(R"("data": {"runs": 5})") << "data.runs: 5 is not a list of runs";
        QTest::newRow("an empty run") << document(R"("data": {"runs": [[[1, 1]], []]})")
                                      << "data.runs: [] (run 2) is not a list of cabinets";
        QTest::newRow("a stretch that is not straight")
            << document(R"("power": {"runs": [[[1, 1, 2, 2]]]})")
            << "power.runs: [[1, 1, 2, 2]] (run 1) has [1, 1, 2, 2], which is neither [column, row] nor a "
               "straight stretch [column, row, column, row] in 1..1000";
        QTest::newRow("a run outside")
            << document(R"("data": {"runs": [[[1, 1, 16, 1]]]})")
            << "data.runs: (run 1) column 16, row 1 is outside of the grid of 15 columns and 9 rows";
        QTest::newRow("a cabinet in two runs")
            << document(R"("data": {"runs": [[[1, 1]], [[2, 1], [1, 1]]]})")
            << "data.runs: (run 2) column 1, row 1 is in run 1 already";
        QTest::newRow("a run to a hole")
            << document(R"("cabinets": {"exceptions": [{"column": 2, "row": 1, "missing": true}]},
                           "power": {"runs": [[[1, 1, 3, 1]]]})")
            << "power.runs: (run 1) column 2, row 1 has no cabinet";
    }

    static void addCharts()
    {
        QTest::newRow("a record that is none") << document(R"("chart": {"record": {"format": "testchart"}})")
                                               << "chart.record.version: 1 expected";
        QTest::newRow("a field of the record")
            << document(R"("chart": {"record": {"format": "testchart", "version": 1,
                                                "publicData": {"brightness": 101}}})")
            << "chart.record.publicData.brightness: 101 is not in 0..100";
        QTest::newRow("two charts")
            << document(R"("chart": {"path": "a.json", "record": {"format": "testchart", "version": 1}})")
            << "chart.path: \"a.json\" stands beside chart.record; only one of them can be drawn";
    }

private Q_SLOTS:
    void aFullDocumentIsWrittenAsItWasRead()
    {
        QFile file(sourcePath("tests/walls/everything.wall.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray json = file.readAll();
        const WallFile::Reading reading = WallFile::fromJson(json);
        QCOMPARE(reading.problems, QStringList());
        QCOMPARE(reading.unknown.join('\n'),
                 QString("venue: unknown member\n"
                         "data.portpixels: unknown member, did you mean data.portPixels?\n"
                         "cabinets.exceptions: (cabinet 3) turnt: unknown member, did you mean turned?\n"
                         "chart.record.publicData.boxrow: unknown member, did you mean publicData.boxRow?"));
        QCOMPARE(QString::fromUtf8(WallFile::toJson(reading.wall, reading.document)),
                 QString::fromUtf8(json));
        QCOMPARE(reading.wall.exceptions.list.size(), std::size_t(4));
        QCOMPARE(reading.wall.columnWidths.pixels, (std::vector<int>{96, 64, 64, 64, 64, 96}));
        QCOMPARE(reading.wall.data.path.byHand.runs.at(0).size(), std::size_t(6));
        QVERIFY(reading.wall.data.path.byHand.runs.at(0).back() == (Place{5, 0}));
        QVERIFY(reading.wall.power.path.pattern == Pattern::EachLine);
        QVERIFY(reading.wall.power.path.corner == Corner::BottomRight);
    }

    /// What the defaults are, a document of the head alone has.
    void equalWallsHaveEqualDocuments()
    {
        const WallDocument wall;
        WallDocument other;
        QVERIFY(wall == other);
        other.exceptions.list.push_back({{1, 1}, false, 90, 1, 1, {}, {}});
        QVERIFY(wall != other);
        WallDocument turned = other;
        QVERIFY(turned == other);
        turned.exceptions.list.front().turned = 180;
        QVERIFY(turned != other);
        other = wall;
        other.layers.nameColor.blue = 1;
        QVERIFY(wall != other);
    }

    void theHeadIsEnough()
    {
        const WallFile::Reading reading = WallFile::fromJson(document(""));
        QCOMPARE(reading.problems, QStringList());
        QCOMPARE(reading.unknown, QStringList());
        QCOMPARE(WallFile::toJson(reading.wall), WallFile::toJson(WallDocument()));
        QCOMPARE(reading.wall.columnWidths.total(), 1920);
        QCOMPARE(reading.wall.rowHeights.total(), 1152);
    }

    void aLargeWallIsShort()
    {
        WallDocument wall;
        wall.columnWidths.pixels.assign(200, 160);
        wall.rowHeights.pixels.assign(100, 80);
        const QByteArray json = WallFile::toJson(wall);
        QVERIFY2(json.contains(R"("columnWidths": [[200, 160]],)"), json);
        QVERIFY(json.size() < 4000);
    }

    void problems_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("problem");
        addDocuments();
        addCabinets();
        addRuns();
        addCharts();
    }

    void problems()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, problem);
        QCOMPARE(WallFile::fromJson(json).problems.join('\n'), problem);
    }

    /// Runs that would need more memory than any wall are refused before they take it.
    void endlessRuns()
    {
        QByteArray run;
        for (int i = 0; i < 1001; ++i)
            run += "[1, 1, 1000, 1],";
        const QByteArray json = document(R"("data": {"runs": [[)" + run.chopped(1) + "]]}");
        const QString problem = WallFile::fromJson(json).problems.join('\n');
        QVERIFY2(problem.endsWith(" (run 1) has more than 1000000 cabinets"), qPrintable(problem));
    }

    void onlyWallsAreWalls()
    {
        QVERIFY(WallFile::isWall(document("")));
        QVERIFY(WallFile::isWall(document(R"("data": 5)")));
        QVERIFY(!WallFile::isWall(R"({"format": "testchart", "version": 1})"));
        QVERIFY(!WallFile::isWall("testwall"));
    }

    void filesAreWrittenAndRead()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("main.wall.json");
        WallDocument wall;
        wall.name = "Bühne";
        wall.exceptions.list.push_back({{3, 4}, true, 0, 1, 1, {}, {}});
        QCOMPARE(WallFile::write(path, wall), QString());
        const WallFile::Reading reading = WallFile::read(path);
        QCOMPARE(reading.problems, QStringList());
        QCOMPARE(WallFile::toJson(reading.wall, reading.document), WallFile::toJson(wall));

        wall.columnWidths.pixels = {8};
        QCOMPARE(WallFile::write(path, wall),
                 path + ": cabinets.columnWidths: 8 pixels in all are not in 16..32768");
        QCOMPARE(WallFile::toJson(WallFile::read(path).wall), WallFile::toJson(reading.wall));
        const QString missing = folder.filePath("missing.wall.json");
        QCOMPARE(WallFile::read(missing).problems.join('\n'), missing + ": No such file or directory");
        QCOMPARE(WallFile::read("/dev/zero").problems.join('\n'), QString("/dev/zero: not a regular file"));
    }

    void theChartHasTheSizeOfTheWall()
    {
        const QTemporaryDir folder;
        TestChartToolsData record;
        record.publicData.brightness = 50;
        QCOMPARE(ChartRecordFile::write(folder.filePath("chart.json"), record), QString());
        WallDocument wall;
        wall.columnWidths.pixels = {100, 200};
        wall.rowHeights.pixels = {128, 128, 64};
        wall.chart.path = "chart.json";
        const WallFile::Chart chart = WallFile::chartOf(wall, folder.path());
        QCOMPARE(chart.problems, QStringList());
        QCOMPARE(chart.file, folder.filePath("chart.json"));
        record.publicData.resolutionWidth = 300;
        record.publicData.resolutionHeight = 320;
        record.publicData.boxCol = 2;
        record.publicData.boxRow = 3;
        QVERIFY(chart.record == record);

        wall.chart.path = "missing.json";
        QCOMPARE(WallFile::chartOf(wall, folder.path()).problems.join('\n'),
                 "chart.path: " + folder.filePath("missing.json") + ": No such file or directory");
        wall.chart.path.clear();
        record.publicData.brightness = 100;
        QVERIFY(WallFile::chartOf(wall, folder.path()).record == record);
        wall.chart.record.document = QJsonDocument::fromJson(ChartRecordFile::toJson(record)).object();
        QVERIFY(WallFile::chartOf(wall, folder.path()).record == record);
    }
};

VD_TEST_MAIN(TestWallFile)
#include "tst_wallfile.moc"
