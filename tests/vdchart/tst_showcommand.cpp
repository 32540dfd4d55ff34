#include "programtest.h"

#include <showfile.h>

#include <QDir>
#include <QPainter>

using namespace vardeno::walls;

/// Shows on the command line.
class TestShowCommand : public ProgramTest
{
    Q_OBJECT

private:
    static QByteArray quietWall(const QByteArray& name, const QByteArray& cabinets,
                                const QByteArray& members = {})
    {
        QByteArray wall =
            R"({"format": "testwall", "version": 1, "wall": {"name": "NAME"}, "cabinets": {CABINETS},
            "numbering": {"style": "numbers", "prefix": "C"},
            "chart": {"record": {"format": "testchart", "version": 1,
                "basicData": {"oddColor": [20, 40, 60, 255], "evenColor": [80, 60, 40, 255]},
                "inLineData": {"showCircle": false, "showDiagonal": false},
                "logoData": {"showLogo": false},
                "selfData": {"showSelfText": false, "showResolution": false}}} MEMBERS})";
        return wall.replace("NAME", name).replace("CABINETS", cabinets).replace("MEMBERS", members);
    }

    void writeWalls() const
    {
        write("main.wall.json", quietWall("Main", R"("columnWidths": [[4, 64]], "rowHeights": [[3, 64]])",
                                          R"(, "data": {"pattern": "each-line"})"));
        write("side.wall.json", quietWall("Side", R"("columnWidths": [[2, 64]], "rowHeights": [[6, 64]])"));
    }

    void makeShow(const QStringList& options) const
    {
        writeWalls();
        const Outcome made = run(
            QStringList{"show", "new", "main.wall.json", "side.wall.json", "-o", "a.show.json"} + options);
        QCOMPARE(made.errors, QString());
        QCOMPARE(made.code, 0);
    }

    ShowDocument show() const { return ShowFile::read(path("a.show.json")).show; }

private Q_SLOTS:
    /// There is nothing to warn of, and they are written as they were read.
    void examples_data()
    {
        QTest::addColumn<QString>("file");
        for (const char* name : {"festival", "sides", "belt"})
            QTest::newRow(name) << sourcePath("examples/shows/") + name + ".show.json";
    }

    void examples()
    {
        QFETCH(QString, file);
        const Outcome checked = run({"check", file});
        QVERIFY2(checked.code == 0, checked.output);
        QFile source(file);
        QVERIFY(source.open(QIODevice::ReadOnly));
        const QByteArray json = source.readAll();
        const ShowFile::Reading reading = ShowFile::fromJson(json);
        QCOMPARE(QString::fromUtf8(ShowFile::toJson(reading.show, reading.document)),
                 QString::fromUtf8(json));
    }

    void newShows()
    {
        makeShow({"-n", "Festival", "--on", "Left=512x384@50", "--on", "400x400"});
        const ShowDocument made = show();
        QCOMPARE(made.name, std::string("Festival"));
        QCOMPARE(made.outputs.list.size(), std::size_t(2));
        QCOMPARE(made.outputs.list[0].name, std::string("Left"));
        QCOMPARE(made.outputs.list[0].frameRate, 50);
        QCOMPARE(made.outputs.list[1].name, std::string("out2"));
        QCOMPARE(made.walls.list[1].name, std::string("Side"));
        QCOMPARE(made.walls.list[1].path, std::string("side.wall.json"));
        QCOMPARE(made.placements.list[1].output, std::string("out2"));
        const Outcome checked = run({"check", "a.show.json"});
        QCOMPARE(checked.output, QByteArray());
        QCOMPARE(checked.code, 0);
    }

    /// Paths are relative to the show, not to where the command was given.
    void showsOfOtherFolders()
    {
        writeWalls();
        QVERIFY(QDir(path("")).mkpath("shows/inner"));
        QCOMPARE(
            run({"show", "new", "main.wall.json", "main.wall.json", "-o", "shows/inner/b.show.json"}).code,
            0);
        const ShowDocument made = ShowFile::read(path("shows/inner/b.show.json")).show;
        QCOMPARE(made.walls.list[0].path, std::string("../../main.wall.json"));
        QCOMPARE(made.walls.list[1].name, std::string("Main 2"));
        QCOMPARE(run({"check", "--errors", "shows/inner/b.show.json"}).code, 0);
    }

    void packedAutomatically()
    {
        makeShow({"--on", "400x400", "--auto-pack"});
        QCOMPARE(show().outputs.list.size(), std::size_t(1));
        QCOMPARE(run({"check", "a.show.json"}).code, 0);
        makeShow({"--on", "384x512", "--auto-pack"});
        QCOMPARE(show().outputs.list.size(), std::size_t(1));
        makeShow({"--on", "130x1000", "--auto-pack"}); // in which the main wall is cut
        QCOMPARE(run({"check", "a.show.json"}).output, QByteArray());
        makeShow({"--on", "384x256", "--auto-pack", "--turn"});
        QCOMPARE(run({"check", "a.show.json"}).output, QByteArray());
        QVERIFY(show().placements.list.at(1).turned.degrees == 90);
    }

    void wrongCommandLines_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("no output")
            << QStringList{"new", "main.wall.json", "-o", "b.show.json", "--on", "large"} << 2
            << "--on: \"large\" is not an output, such as 3840x2160 or Left=3840x2160@50";
        QTest::newRow("too small") << QStringList{"new", "main.wall.json", "-o", "b.show.json", "--on", "8x8"}
                                   << 2 << "show.outputs: (output 1) width: 8 is not in 16..32768";
        QTest::newRow("a record") << QStringList{"new", "record.json", "-o", "b.show.json"} << 3
                                  << "record.json: not a wall";
        QTest::newRow("over its wall") << QStringList{"new", "main.wall.json", "-o", "main.wall.json"} << 2
                                       << "main.wall.json: is a wall of the show";
        QTest::newRow("turning by hand")
            << QStringList{"new", "main.wall.json", "-o", "b.show.json", "--turn"} << 2
            << "--turn requires --auto-pack";
        QTest::newRow("packing a wall")
            << QStringList{"pack", "main.wall.json", "-o", "b.zip"} << 3 << "main.wall.json: not a show";
        QTest::newRow("packing two") << QStringList{"pack", "a", "b", "-o", "b.zip"} << 2
                                     << "show pack: one file at a time";
        QTest::newRow("packing a pipe") << QStringList{"pack", "-", "-o", "b.zip"} << 2
                                        << "show pack: a file is needed, for its paths are relative to it";
    }

    void wrongCommandLines()
    {
        QFETCH(QStringList, arguments);
        writeWalls();
        write("record.json", vardeno::testcharttools::ChartRecordFile::toJson(smallRecord()));
        const Outcome outcome = run(QStringList{"show"} + arguments);
        QTEST(outcome.code, "code");
        QFETCH(QString, message);
        QVERIFY2(outcome.errors.contains(message), qPrintable(outcome.errors));
        QVERIFY(!QFile::exists(path("b.show.json")) && !QFile::exists(path("b.zip")));
    }

    void checksTellOfWallsAndPlacements()
    {
        makeShow({"--on", "200x400", "--on", "400x400"});
        const Outcome checked = run({"check", "a.show.json"});
        QCOMPARE(checked.code, 1);
        QVERIFY2(checked.output.contains(
                     "a.show.json: warning: show.placements: (placement 1) wall \"Main\" at 0, 0 "
                     "is 256 x 192 pixels large and lies partly outside of output \"out1\", "
                     "which is 200 x 400: pixels beyond it: 56 right\n"),
                 checked.output);
        QFile::remove(path("side.wall.json"));
        const Outcome missing = run({"check", "a.show.json"});
        QVERIFY2(missing.output.contains("a.show.json: error: show.walls: (wall 2) side.wall.json: "),
                 missing.output);
        const Outcome changed = run({"check", "a.show.json", "--set", "width=320"});
        QCOMPARE(changed.errors,
                 QString("vdchart: a.show.json: a show has several records; change those of its walls\n"));
        QCOMPARE(changed.code, 2);
    }

    /// All outputs, or one of them; in a batch, too.
    void pictures()
    {
        makeShow({"--on", "Left=300x200", "--on", "Right=160x400"});
        QCOMPARE(run({"render", "a.show.json", "-o", "show.v1.png"}).code, 0);
        const QImage left(path("show.v1-Left.png"));
        const QImage right(path("show.v1-Right.png"));
        QCOMPARE(left.size(), QSize(300, 200));
        QCOMPARE(right.size(), QSize(160, 400));
        QVERIFY(!QFile::exists(path("show.v1.png")));
        QCOMPARE(run({"render", "a.show.json", "--of", "Right", "-o", "one.png"}).code, 0);
        VD_COMPARE_IMAGES(QImage(path("one.png")), right);

        ShowDocument plain = show();
        plain.layers.wallColors = false;
        QCOMPARE(ShowFile::write(path("plain.show.json"), plain), QString());
        QCOMPARE(run({"render", "plain.show.json", "--of", "Left", "-o", "plain.png"}).code, 0);
        QCOMPARE(run({"render", "main.wall.json", "-o", "main.png"}).code, 0);
        VD_COMPARE_IMAGES(QImage(path("plain.png")).copy(0, 0, 256, 192), QImage(path("main.png")));
        QVERIFY(left.copy(0, 0, 256, 192) != QImage(path("main.png")));

        QCOMPARE(run({"batch", "a.show.json", "main.wall.json", "-o", "made"}).code, 0);
        QCOMPARE(files("made"),
                 QStringList({"a.show-Left.png", "a.show-Right.png", "main.wall.png", "manifest.json"}));
        VD_COMPARE_IMAGES(QImage(path("made/a.show-Left.png")), left);
        QVERIFY(run({"batch", "a.show.json", "main.wall.json", "-o", "made", "--resume"})
                    .output.contains("3 kept"));
        write("side.wall.json", quietWall("Side", R"("columnWidths": [[3, 32]], "rowHeights": [[3, 32]])"));
        QVERIFY(run({"batch", "a.show.json", "main.wall.json", "-o", "made", "--resume"})
                    .output.contains("1 kept"));
    }

    /// Each picture of a show stands alone: with the whole show, and with the output that it is of.
    void picturesCarryTheirShow()
    {
        makeShow({"--on", "Left=300x200", "--on", "Right=160x400"});
        QCOMPARE(run({"render", "a.show.json", "-o", "show.png"}).code, 0);
        QCOMPARE(run({"batch", "a.show.json", "-o", "alone"}).code, 0);
        for (const char* name : {"a.show.json", "main.wall.json", "side.wall.json"})
            QVERIFY(QFile::remove(path(name)));
        for (const char* name : {"show-Left.png", "show-Right.png", "alone/a.show-Right.png"}) {
            const Outcome outcome = run({"verify", name});
            QCOMPARE(outcome.errors, QString());
            QVERIFY2(outcome.output.endsWith(": this is the chart, pixel for pixel\n"), outcome.output);
        }
        QCOMPARE(run({"verify", "show-Left.png", "--of", "Right"}).code, 1);
        QCOMPARE(run({"verify", "show-Left.png", "--of", "Middle"}).code, 2);
        QCOMPARE(run({"verify", "show-Left.png", "-s", "rows=3"}).code, 2);

        const Outcome checked = run({"check", "show-Right.png"});
        QCOMPARE(checked.code, 0);
        QCOMPARE(run({"render", "show-Right.png", "-o", "again.png"}).code, 0);
        VD_COMPARE_IMAGES(QImage(path("again-Left.png")), QImage(path("show-Left.png")));

        QImage dark = QImage(path("show-Left.png")).convertToFormat(QImage::Format_RGB32);
        const QString show = dark.text("testchart-show");
        QVERIFY(!show.isEmpty() && dark.text("testchart-wall-2").contains("\"Side\""));
        QPainter(&dark).fillRect(192, 64, 64, 64, Qt::black);
        QVERIFY(dark.save(path("dark.png"))); // with its texts
        const Outcome bad = run({"verify", "dark.png"});
        QCOMPARE(bad.code, 1);
        QVERIFY2(bad.output.contains("Main C8"), bad.output);
    }

    /// A show whose picture lacks a wall tells which.
    void aPictureThatLacksAWall()
    {
        makeShow({"--on", "Left=300x200", "--on", "Right=160x400"});
        QCOMPARE(run({"render", "a.show.json", "-o", "show.png"}).code, 0);
        const QImage whole(path("show-Left.png"));
        QImage less = QImage(whole.size(), QImage::Format_RGB32);
        less.fill(Qt::black);
        for (const QString& key : whole.textKeys()) {
            if (key != "testchart-wall-2")
                less.setText(key, whole.text(key));
        }
        QVERIFY(less.save(path("less.png")));
        const Outcome outcome = run({"verify", "less.png"});
        QCOMPARE(outcome.code, 3);
        QVERIFY2(outcome.errors.contains("less.png: show.walls: (wall 2) "), qPrintable(outcome.errors));
    }

    void wrongPictures_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        QTest::newRow("several on the standard output")
            << QStringList{"render", "a.show.json", "-o", "-"}
            << "the show has several outputs; name one with --of, or a file";
        QTest::newRow("no such output")
            << QStringList{"render", "a.show.json", "--of", "Rihgt", "-o", "a.png"}
            << "a.show.json: --of: one of the show's outputs is needed: Left, Right";
        QTest::newRow("an output of a wall")
            << QStringList{"render", "main.wall.json", "--of", "Left", "-o", "a.png"}
            << "main.wall.json: --of: only a show has outputs";
        QTest::newRow("over a wall") << QStringList{"render", "a.show.json", "--of", "Left", "-o", "link.png"}
                                     << "link.png: is a wall of the show";
        QTest::newRow("for a table of walls")
            << QStringList{"batch", "a.show.json", "-w", "walls.csv", "-o", "none"}
            << "a show is not drawn for a table of walls";
    }

    void wrongPictures()
    {
        QFETCH(QStringList, arguments);
        makeShow({"--on", "Left=300x200", "--on", "Right=160x400"});
        write("walls.csv", "name,width\nleft,160\n");
        QFile::link(path("main.wall.json"), path("link.png"));
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.code, 2);
        QFETCH(QString, message);
        QVERIFY2(outcome.errors.contains(message), qPrintable(outcome.errors));
    }

    /// Cabinets are called by wall and name, wherever the wall lies and however it is turned.
    void verification()
    {
        makeShow({"--on", "Only=500x500"});
        ShowDocument changed = show();
        changed.outputs.list.resize(1);
        changed.placements.list[0].x = 200;
        changed.placements.list[0].y = 100;
        changed.placements.list[0].turned.degrees = 90;
        changed.placements.list[0].mirrored = true;
        changed.placements.list[1].output = "Only";
        QCOMPARE(ShowFile::write(path("a.show.json"), changed), QString());
        QCOMPARE(run({"render", "a.show.json", "-o", "only.png"}).code, 0);
        const Outcome good = run({"verify", "only.png", "a.show.json"});
        QCOMPARE(good.output, QByteArray("only.png: this is the chart, pixel for pixel\n"));

        QImage picture = QImage(path("only.png")).convertToFormat(QImage::Format_RGB32);
        QPainter painter(&picture);
        painter.fillRect(200 + 128, 100, 64, 128,
                         Qt::black); // mirrored and turned: C4 and C3 of the first row
        painter.end();
        QVERIFY(picture.save(path("only.png")));
        const Outcome bad = run({"verify", "only.png", "a.show.json"});
        QCOMPARE(bad.code, 1);
        QVERIFY2(bad.output.contains("Main C3") && bad.output.contains("Main C4"), bad.output);
        QVERIFY2(bad.output.contains(
                     "Main: port 1 from cabinet C3 on: 2 cabinets are wrong, which is what a pulled "
                     "data cable looks like"),
                 bad.output);
    }
};

VD_TEST_MAIN(TestShowCommand)
#include "tst_showcommand.moc"
