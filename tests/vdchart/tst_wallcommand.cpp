#include "cabinetmodels.h"
#include "programtest.h"

#include <wallfile.h>
#include <wallpicture.h>

#include <QJsonDocument>
#include <QSet>

using namespace vardeno::testcharttools;
using namespace vardeno::walls;

/// Walls on the command line.
class TestWallCommand : public ProgramTest
{
    Q_OBJECT

private:
    static QByteArray wallJson(const QByteArray& members = {})
    {
        return R"({"format": "testwall", "version": 1,
                   "cabinets": {"columnWidths": [[2, 64], [1, 32]], "rowHeights": [[2, 64]]})" +
               members + '}';
    }

    static QByteArray chart(const QByteArray& members) { return R"(, "chart": )" + members; }

private Q_SLOTS:
    void newWalls()
    {
        const Outcome made = run({"wall", "new", "--cabinet", "128x64", "--size", "15x9", "--start",
                                  "bottom-left", "--back-and-forth", "--prefix", "C", "--digits", "2",
                                  "--name", "Main", "--watts", "200", "--bits", "10"});
        QCOMPARE(made.errors, QString());
        QCOMPARE(made.code, 0);
        const WallFile::Reading reading = WallFile::fromJson(made.output);
        QCOMPARE(reading.problems, QStringList());
        QCOMPARE(reading.unknown, QStringList());
        const WallDocument& wall = reading.wall;
        QCOMPARE(wall.name, std::string("Main"));
        QCOMPARE(wall.columnWidths.pixels, std::vector<int>(15, 128));
        QCOMPARE(wall.rowHeights.pixels, std::vector<int>(9, 64));
        QVERIFY(wall.data.path.corner == Corner::BottomLeft);
        QVERIFY(wall.data.path.pattern == Pattern::BackAndForth);
        QVERIFY(wall.numbering.backAndForth && wall.numbering.corner == Corner::BottomLeft);
        QCOMPARE(wall.data.bitDepth, 10);
        QCOMPARE(wall.physical.watts, 200);
        QVERIFY(wall.layers.powerRuns);
        QCOMPARE(WallFile::toJson(wall, reading.document), made.output);

        write("main.wall.json", made.output);
        const Outcome checked = run({"check", "main.wall.json"});
        QCOMPARE(checked.output, QByteArray());
        QCOMPARE(checked.code, 0);
    }

    void newWallsOfPresets()
    {
        QSet<QString> names;
        for (const CabinetModel& model : cabinetModels()) {
            names.insert(model.name);
            const Outcome made = run({"wall", "new", "--cabinet", model.name, "--size", "4x3"});
            QCOMPARE(made.code, 0);
            const WallDocument wall = WallFile::fromJson(made.output).wall;
            QCOMPARE(wall.columnWidths.total(), 4 * model.pixels.width());
            QCOMPARE(wall.physical.height, model.millimeters.height());
            write("preset.wall.json", made.output);
            const Outcome checked = run({"check", "preset.wall.json"});
            QVERIFY2(checked.code == 0, checked.output);
            QVERIFY(run({"wall", "cabinets"}).output.contains(model.name.toUtf8() + ' '));
        }
        QCOMPARE(names.size(), int(cabinetModels().size()));
    }

    void wrongNewWalls_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("problem");
        QTest::newRow("too wide")
            << QStringList{"--size", "300x3"}
            << "vdchart: cabinets.columnWidths: 38400 pixels in all are not in 16..32768\n";
        QTest::newRow("no size") << QStringList{"--size", "large"}
                                 << "vdchart: --size: \"large\" is not two numbers, such as 16x9\n";
        QTest::newRow("no cabinet")
            << QStringList{"--cabinet", "500x500-77"}
            << "vdchart: --cabinet: \"500x500-77\" is not two numbers, such as 16x9\n";
    }

    void wrongNewWalls()
    {
        QFETCH(QStringList, arguments);
        const Outcome made = run(QStringList{"wall", "new"} + arguments);
        QTEST(made.errors, "problem");
        QCOMPARE(made.code, 2);
        QCOMPARE(made.output, QByteArray());
    }

    void checks()
    {
        write("bad.wall.json", wallJson(R"(, "data": {"bitDepth": 7, "bitdepth": 8})"));
        const Outcome bad = run({"check", "bad.wall.json"});
        QCOMPARE(bad.output,
                 QByteArray(
                     "bad.wall.json: error: data.bitDepth: 7 is not in 8..16\n"
                     "bad.wall.json: warning: data.bitdepth: unknown member, did you mean data.bitDepth?\n"));
        QCOMPARE(bad.code, 1);

        write("port.wall.json", wallJson(R"(, "data": {"portPixels": 4000})"));
        const Outcome port = run({"check", "port.wall.json"});
        QVERIFY2(
            port.output.contains("port.wall.json: warning: data.portPixels: port 1 has 4096 pixels, 96 more"),
            port.output);
        QCOMPARE(run({"check", "--errors", "port.wall.json"}).code, 0);

        write("path.wall.json", wallJson(chart(R"({"path": "missing.json"})")));
        const Outcome path = run({"check", "path.wall.json"});
        QVERIFY2(path.output.contains("error: chart.path: "), path.output);
        QVERIFY(path.output.contains("missing.json: No such file or directory"));
    }

    /// From a file, from the standard input, and in a batch with a record.
    void pictures()
    {
        TestChartToolsData record = smallRecord();
        record.logoData.showLogo = false;
        record.selfData.showResolution = false;
        QCOMPARE(ChartRecordFile::write(path("chart.json"), record), QString());
        const QByteArray json =
            wallJson(chart(R"({"path": "chart.json"})") + R"(, "layers": {"outlines": true})");
        write("a.wall.json", json);
        QCOMPARE(run({"render", "a.wall.json", "-o", "a.png"}).code, 0);
        const QImage picture(path("a.png"));
        QCOMPARE(picture.size(), QSize(160, 128));
        QCOMPARE(picture.pixelColor(0, 5), QColor(Qt::white)); // an outline
        QCOMPARE(picture.text("testchart-record"), QString());

        QCOMPARE(run({"batch", "a.wall.json", "chart.json", "-o", "made"}).code, 0);
        QVERIFY(files("made").contains("a.wall.png"));
        VD_COMPARE_IMAGES(QImage(path("made/a.wall.png")), picture);
        QCOMPARE(QImage(path("made/chart.png")).size(), QSize(320, 180));

        const Outcome again =
            run({"batch", "a.wall.json", "chart.json", "-o", "made", "--resume", "-f", "json"});
        QCOMPARE(again.code, 0);
        write("a.wall.json", QByteArray(json).replace(R"("outlines")", R"("frames")"));
        QCOMPARE(run({"batch", "a.wall.json", "chart.json", "-o", "made", "--resume"}).code, 0);
        QVERIFY(QImage(path("made/a.wall.png")) != picture);
    }

    /// A picture stands alone, wherever it is taken to: with the record, its changes and its language.
    void picturesCarryTheirWall_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<int>("code");
        const QString away = QStringLiteral("mkdir away && mv w.png away && rm -f carried.json && ");
        const QString render = QStringLiteral("$vdchart render carried.wall.json -o w.png ");
        QTest::newRow("verified") << render + "&& " + away + "$vdchart verify away/w.png" << 0;
        QTest::newRow("of a batch") << "$vdchart batch carried.wall.json -o away && rm carried.json && "
                                       "$vdchart verify away/carried.wall.png"
                                    << 0;
        QTest::newRow("changed") << render + "-s publicData.brightness=50 && " + away +
                                        "$vdchart verify away/w.png"
                                 << 0;
        QTest::newRow("against another brightness")
            << render + "&& $vdchart verify w.png -s publicData.brightness=50" << 1;
        QTest::newRow("with changes of the wall") << render + "&& $vdchart verify w.png -s width=320" << 2;
        QTest::newRow("in its language") << render + "-l de && $vdchart verify w.png" << 0;
        QTest::newRow("in another language") << render + "-l de && $vdchart verify w.png -l en" << 1;
        QTest::newRow("without") << render + "--no-record && $vdchart verify w.png" << 3;
        QTest::newRow("checked") << render + "&& " + away + "$vdchart check --errors away/w.png" << 0;
        QTest::newRow("checked without") << render + "--no-record && $vdchart check w.png" << 3;
        QTest::newRow("rendered again")
            << render + "&& " + away + "$vdchart render away/w.png -o b.png && cmp away/w.png b.png" << 0;
        QTest::newRow("with its logo")
            << "mkdir here && $vdchart render carried.wall.json -o w.png && cp w.png here/logo.png && "
               "$vdchart render carried.wall.json -s logoData.picturePath=here/logo.png "
               "-s logoData.showLogo=true -o here/w.png && mv here there && $vdchart verify there/w.png"
            << 0;
    }

    void picturesCarryTheirWall()
    {
        QFETCH(QString, script);
        TestChartToolsData record = smallRecord();
        record.logoData.showLogo = false;
        record.selfData.showResolution = true;
        QCOMPARE(ChartRecordFile::write(path("carried.json"), record), QString());
        write("carried.wall.json", wallJson(chart(R"({"path": "carried.json"})")));
        for (const char* folder : {"away", "here", "there"})
            QDir(path(folder)).removeRecursively();
        const Outcome outcome = runInShell(script);
        QTEST(outcome.code, "code");
        QCOMPARE(outcome.errors.contains(QLatin1String("carries no record")), outcome.code == 3);
    }

    /// What stands in the picture is a document that can be taken out of it.
    void aCarriedWallIsADocument()
    {
        write("a.wall.json", wallJson(R"(, "wall": {"name": "Main"})"));
        QCOMPARE(run({"render", "a.wall.json", "-o", "a.png"}).code, 0);
        const QImage picture(path("a.png"));
        const auto wall = vardeno::walls::WallFile::fromJson(picture.text("testchart-wall").toUtf8());
        QCOMPARE(wall.problems, QStringList());
        QCOMPARE(wall.wall.name, std::string("Main"));
        QVERIFY(wall.wall.chart.path.empty() && !wall.wall.chart.record.document.isEmpty());
        QCOMPARE(picture.text("testchart-language"), QString("en"));
    }

    void changes()
    {
        write("a.wall.json", wallJson());
        QCOMPARE(run({"render", "a.wall.json", "-o", "b.png", "--set", "publicData.brightness=0"}).code, 0);
        QCOMPARE(QImage(path("b.png")).pixelColor(80, 20), QColor(Qt::black));
        const Outcome wider = run({"render", "a.wall.json", "-o", "b.png", "--set", "width=320"});
        QCOMPARE(wider.errors,
                 QString("vdchart: a.wall.json: resolution, rows and columns are those of the wall\n"));
        QCOMPARE(wider.code, 2);
        QCOMPARE(run({"render", "a.wall.json", "-o", "b.png", "--grid", "2x2"}).code, 2);
    }

    /// Cabinets are called by the wall's names, and several of one cable are told as that cable.
    void verification()
    {
        const QByteArray json = R"({"format": "testwall", "version": 1,
            "cabinets": {"columnWidths": [[2, 64], [2, 96]], "rowHeights": [[3, 64]],
                         "exceptions": [{"column": 1, "row": 1, "missing": true},
                                        {"column": 3, "row": 2, "columns": 2, "name": "Center"}]},
            "numbering": {"style": "numbers", "prefix": "C"},
            "data": {"portPixels": 20480, "pattern": "each-line"},
            "layers": {"names": true, "coordinates": true}})";
        write("v.wall.json", json);
        QCOMPARE(run({"render", "v.wall.json", "-o", "v.png"}).code, 0);
        const Outcome good = run({"verify", "v.png", "v.wall.json"});
        QCOMPARE(good.output, QByteArray("v.png: this is the chart, pixel for pixel\n"));
        QCOMPARE(good.code, 0);

        QImage picture(path("v.png"));
        const auto darken = [&picture](const QRect& rect) {
            for (int y = rect.top(); y <= rect.bottom(); ++y) {
                for (int x = rect.left(); x <= rect.right(); ++x)
                    picture.setPixelColor(x, y, Qt::black);
            }
        };
        darken({128, 64, 192, 64});
        QVERIFY(picture.convertToFormat(QImage::Format_RGB32).save(path("one.png")));
        const Outcome one = run({"verify", "one.png", "v.wall.json"});
        QVERIFY2(one.output.contains("Center"), one.output);
        QVERIFY2(!one.output.contains("pulled"), one.output);

        darken({64, 128, 256, 64}); // the last three of the lowest row, whose port feeds all four
        QVERIFY(picture.convertToFormat(QImage::Format_RGB32).save(path("run.png")));
        const Outcome bad = run({"verify", "run.png", "v.wall.json"});
        QCOMPARE(bad.code, 1);
        QVERIFY2(
            bad.output.contains("run.png: port 3 from cabinet C8 on: 3 cabinets are wrong, which is what a "
                                "pulled data cable looks like\n"),
            bad.output);
        const QJsonObject told =
            QJsonDocument::fromJson(run({"verify", "-f", "json", "run.png", "v.wall.json"}).output).object();
        QVERIFY(told.contains("pulledCables"));
    }

    void reports()
    {
        write("r.wall.json", wallJson());
        QCOMPARE(run({"wall", "report", "r.wall.json", "-o", "r.csv"}).code, 0);
        QCOMPARE(read("r.csv").split('\n').size(), 6 + 2); // a head, six cabinets, and nothing
        QVERIFY(read("r.csv").startsWith("name,"));
        QCOMPARE(run({"wall", "report", "--cables", "r.wall.json", "-o", "c.csv"}).code, 0);
        QVERIFY(read("c.csv").contains("\r\nport,1,"));
        QCOMPARE(run({"wall", "report", "--cables", "r.wall.json", "-o", "r.pdf"}).code, 2);
        QCOMPARE(run({"wall", "report", "r.wall.json", "-o", "r.pdf"}).code, 0);
        QVERIFY(read("r.pdf").startsWith("%PDF"));
    }

    void wrongReports_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("problem");
        QTest::newRow("no wall") << QStringList{"-o", "r.pdf"} << 2
                                 << "wall report: WALL and -o FILE are needed";
        QTest::newRow("no report") << QStringList{"r.wall.json"} << 2
                                   << "wall report: WALL and -o FILE are needed";
        QTest::newRow("a picture") << QStringList{"r.wall.json", "-o", "r.png"} << 2
                                   << "r.png: a report ends in .pdf or .csv";
        QTest::newRow("a record") << QStringList{"record.json", "-o", "r.pdf"} << 3
                                  << "record.json: a record, not a wall";
        QTest::newRow("over the wall")
            << QStringList{"own.csv", "-o", "own.csv"} << 2 << "own.csv: is the wall of the report";
        QTest::newRow("no folder") << QStringList{"r.wall.json", "-o", "none/r.pdf"} << 4
                                   << "none/r.pdf: No such file or directory";
    }

    void wrongReports()
    {
        QFETCH(QStringList, arguments);
        write("r.wall.json", wallJson());
        write("own.csv", wallJson());
        write("record.json", ChartRecordFile::toJson({}));
        const Outcome outcome = run(QStringList{"wall", "report"} + arguments);
        QTEST(outcome.code, "code");
        QFETCH(QString, problem);
        QCOMPARE(outcome.errors, "vdchart: " + problem + '\n');
    }

    /// A picture is not written over the record that the wall names.
    void theRecordIsProtected()
    {
        QCOMPARE(ChartRecordFile::write(path("own.png"), smallRecord()), QString());
        write("own.wall.json", wallJson(chart(R"({"path": "own.png"})")));
        const Outcome outcome = run({"render", "own.wall.json", "-o", "own.png"});
        QCOMPARE(outcome.errors, QString("vdchart: own.png: is the record that is drawn\n"));
        QCOMPARE(outcome.code, 2);
    }

    /// The walls that are examples.
    void examples_data()
    {
        QTest::addColumn<QString>("file");
        for (const char* name : {"main", "stage", "ribbon"})
            QTest::newRow(name) << sourcePath("examples/walls/") + name + ".wall.json";
    }

    void examples()
    {
        QFETCH(QString, file);
        const Outcome checked = run({"check", file});
        QCOMPARE(checked.output, QByteArray());
        QCOMPARE(checked.code, 0);
        const WallFile::Reading reading = WallFile::read(file);
        QFile json(file);
        QVERIFY(json.open(QIODevice::ReadOnly));
        QCOMPARE(WallFile::toJson(reading.wall, reading.document), json.readAll());
    }
};

VD_TEST_MAIN(TestWallCommand)
#include "tst_wallcommand.moc"
