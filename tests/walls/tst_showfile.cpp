#include "testcase.h"
#include "testwalls.h"

#include <showfile.h>

#include <QFile>
#include <QTemporaryDir>

using namespace vardeno::walls;

namespace {

QByteArray showWith(const QByteArray& members)
{
    return R"({"format": "testshow", "version": 1, )" + members + '}';
}

/// Two outputs and a wall, and what is placed.
QByteArray placing(const QByteArray& placements)
{
    return showWith(R"("show": {"outputs": [{"name": "A", "width": 100, "height": 100}],
                                "walls": [{"name": "Main", "path": "main.wall.json"}],
                                "placements": [)" +
                    placements + "]}");
}

} // namespace

class TestShowFile : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const char* name) const { return m_folder.filePath(name); }

private Q_SLOTS:
    void aFullDocumentIsWrittenAsItWasRead()
    {
        QFile file(sourcePath("tests/walls/everything.show.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray json = file.readAll();
        const ShowFile::Reading reading = ShowFile::fromJson(json);
        QCOMPARE(reading.problems, QStringList());
        QCOMPARE(
            reading.unknown,
            QStringList({"venue: unknown member",
                         "show.outputs: (output 2) framerate: unknown member, did you mean frameRate?"}));
        QCOMPARE(QString::fromUtf8(ShowFile::toJson(reading.show, reading.document)),
                 QString::fromUtf8(json));
        const WallPlacement& placement = reading.show.placements.list.at(0);
        QCOMPARE(placement.part.rect, QRect(0, 128, 1920, 640));
        QCOMPARE(placement.turned.degrees, 270);
        QVERIFY(placement.mirrored);
        QCOMPARE(placement.x, -100);
        QVERIFY(reading.show.placements.list.at(1).part.rect.isEmpty());
        QCOMPARE(reading.show.outputs.list.at(1).frameRate, 60);
    }

    void whatIsMissingTakesItsDefault()
    {
        const ShowFile::Reading reading = ShowFile::fromJson(R"({"format": "testshow", "version": 1})");
        QCOMPARE(reading.problems, QStringList());
        QVERIFY(reading.show.outputs.list.empty());
        QVERIFY(!reading.show.layers.wallColors);
        QCOMPARE(ShowFile::toJson(reading.show, reading.document), ShowFile::toJson(ShowDocument()));
    }

    void tellsItsFormat()
    {
        QVERIFY(ShowFile::isShow(ShowFile::toJson(ShowDocument())));
        QVERIFY(!ShowFile::isShow(WallFile::toJson(WallDocument())));
        QVERIFY(!WallFile::isWall(ShowFile::toJson(ShowDocument())));
        QVERIFY(!ShowFile::isShow("{"));
    }

    void problems_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("problem");
        QTest::newRow("a wall") << WallFile::toJson(WallDocument()) << "format: testshow expected";
        QTest::newRow("no list") << showWith(R"("show": {"outputs": {}})")
                                 << "show.outputs: {} is not a list of outputs";
        QTest::newRow("no object") << showWith(R"("show": {"walls": [5]})")
                                   << "show.walls: (wall 1) 5 is not an object";
        QTest::newRow("without a width") << showWith(R"("show": {"outputs": [{"name": "A", "height": 100}]})")
                                         << "show.outputs: (output 1) width: is missing";
        QTest::newRow("too wide")
            << showWith(R"("show": {"outputs": [{"name": "A", "width": 32769, "height": 100}]})")
            << "show.outputs: (output 1) width: 32769 is not in 16..32768";
        QTest::newRow("one name for two")
            << showWith(R"("show": {"outputs": [{"name": "A", "width": 16, "height": 16},
                                                {"name": "a", "width": 16, "height": 16}]})")
            << R"(show.outputs: (output 2) is called "a", as another one is)";
        QTest::newRow("without a name") << showWith(R"("show": {"walls": [{"name": " ", "path": "a"}]})")
                                        << "show.walls: (wall 1) has no name";
        QTest::newRow("without a path") << showWith(R"("show": {"walls": [{"name": "A", "path": ""}]})")
                                        << "show.walls: (wall 1) has no path";
        QTest::newRow("no such wall") << placing(R"({"wall": "Mian", "output": "A"})")
                                      << R"(show.placements: (placement 1) there is no wall "Mian")";
        QTest::newRow("no such output") << placing(R"({"wall": "Main", "output": "B"})")
                                        << R"(show.placements: (placement 1) there is no output "B")";
        QTest::newRow("an odd turn") << placing(R"({"wall": "Main", "output": "A", "turned": 45})")
                                     << "show.placements: (placement 1) turned: 45 is not 0, 90, 180 or 270";
        QTest::newRow("an empty part") << placing(R"({"wall": "Main", "output": "A", "part": [0, 0, 0, 5]})")
                                       << "show.placements: (placement 1) part: [0, 0, 0, 5] is not [x, y, "
                                          "width, height] of pixels, up to 32768";
        QTest::newRow("a part of three numbers")
            << placing(R"({"wall": "Main", "output": "A", "part": [0, 0, 5]})")
            << "show.placements: (placement 1) part: [0, 0, 5] is not [x, y, width, height] of pixels, up to "
               "32768";
        QTest::newRow("far away") << placing(R"({"wall": "Main", "output": "A", "x": -32769})")
                                  << "show.placements: (placement 1) x: -32769 is not in -32768..32768";
        QTest::newRow("a color")
            << showWith(R"("show": {"walls": [{"name": "A", "path": "a", "color": 5}]})")
            << "show.walls: (wall 1) color: 5 is not a color [r, g, b, a] of numbers in 0..255";
    }

    void problems()
    {
        QFETCH(QByteArray, json);
        const ShowFile::Reading reading = ShowFile::fromJson(json);
        QTEST(reading.problems.join('\n'), "problem");
    }

    void tooManyPlacements()
    {
        ShowDocument show;
        show.placements.list.resize(1001);
        QCOMPARE(ShowFile::fromJson(ShowFile::toJson(show)).problems,
                 QStringList("show.placements: 1001 placements are more than 1000"));
    }

    void filesAreWrittenAndRead()
    {
        const ShowFile::Reading reading = ShowFile::read(sourcePath("tests/walls/everything.show.json"));
        QCOMPARE(ShowFile::write(path("a.show.json"), reading.show, reading.document), QString());
        const ShowFile::Reading again = ShowFile::read(path("a.show.json"));
        QCOMPARE(ShowFile::toJson(again.show, again.document),
                 ShowFile::toJson(reading.show, reading.document));

        ShowDocument bad = reading.show;
        bad.placements.list.front().wall = "none";
        QCOMPARE(ShowFile::write(path("a.show.json"), bad),
                 path("a.show.json") + R"(: show.placements: (placement 1) there is no wall "none")");
        QVERIFY(ShowFile::read(path("missing.show.json")).problems.join(';').contains("No such file"));
    }

    /// Their own problems stand behind their place and path.
    void wallsAreReadFromTheShowsFolder()
    {
        QVERIFY(QDir(m_folder.path()).mkpath("sub"));
        QCOMPARE(WallFile::write(path("sub/good.wall.json"), smallWall()), QString());
        ShowDocument show;
        show.walls.list = {{"A", "sub/good.wall.json", {}, {}}, {"B", "sub/none.wall.json", {}, {}}};
        const ShowFile::Walls walls = ShowFile::wallsOf(show, m_folder.path());
        QCOMPARE(walls.list.size(), std::size_t(2));
        QCOMPARE(walls.list[0].file, path("sub/good.wall.json"));
        QCOMPARE(walls.list[0].wall.columnWidths.total(), 128);
        QCOMPARE(walls.list[0].record.publicData.resolutionWidth, 128);
        QCOMPARE(walls.problems.size(), 1);
        QVERIFY2(walls.problems[0].startsWith("show.walls: (wall 2) sub/none.wall.json: "),
                 qPrintable(walls.problems[0]));
    }

    void colorsAreGivenOrCounted()
    {
        ShowDocument show;
        show.walls.list.resize(14);
        show.walls.list[1].color = {true, {1, 2, 3, 255}};
        QCOMPARE(colorOf(show, 1), QColor(1, 2, 3));
        QVERIFY(colorOf(show, 0) != colorOf(show, 2));
        QCOMPARE(colorOf(show, 0), colorOf(show, 12)); // they begin anew
    }
};

VD_TEST_MAIN(TestShowFile)
#include "tst_showfile.moc"
