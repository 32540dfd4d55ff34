#include "chartfiles.h"
#include "chartshelf.h"
#include "testcase.h"
#include "walldocuments.h"

#include <showfile.h>

#include <QTemporaryDir>

using namespace chartfiles;
using namespace vardeno::testcharttools;
using namespace vardeno::walls;

/// Walls and shows from elsewhere, taken into the desk's folder.
class TestWallShelf : public TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QTemporaryDir> m_elsewhere;

    QString here(const QString& name) const { return m_folder->filePath(name); }
    QString there(const QString& name) const { return m_elsewhere->filePath(name); }
    ChartShelf::Outcome take(const QString& name) const
    {
        return ChartShelf::take(m_folder->path(), there(name), {});
    }

    /// A wall with its record in a file, and in that a member of somebody else's and a logo.
    void writeWall(const QString& name) const
    {
        QVERIFY(writePicture(there(QStringLiteral("art/logo.png")), Qt::blue));
        QVERIFY(writeFile(there(QStringLiteral("records/chart.json")),
                          R"({"format": "testchart", "version": 1, "stage": "left",
                              "publicData": {"brightness": 70},
                              "logoData": {"picturePath": "../art/logo.png", "showLogo": true}})"));
        QVERIFY(writeFile(there(name), R"({"format": "testwall", "version": 1, "crew": "B",
                                           "wall": {"name": "Main"}, "chart": {"path": "records/chart.json"}})"));
    }

    void writeShow(const QByteArray& walls) const
    {
        QVERIFY(writeFile(there(QStringLiteral("tour.show.json")),
                          R"({"format": "testshow", "version": 1, "crew": "B", "show": {
                              "outputs": [{"name": "Out", "width": 1920, "height": 1152}],
                              "walls": [)" +
                              walls + R"(], "placements": [{"wall": "A", "output": "Out"}]}})"));
    }

    QImage pictureOf(const QString& path) const { return WallDocuments::picture(path, {480, 480}); }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
        m_elsewhere = std::make_unique<QTemporaryDir>();
    }

    void aWallStandsAlone()
    {
        writeWall(QStringLiteral("main.wall.json"));
        const QImage picture = pictureOf(there(QStringLiteral("main.wall.json")));
        const ChartShelf::Outcome taken = take(QStringLiteral("main.wall.json"));
        QCOMPARE(taken.problem, QString());
        QCOMPARE(taken.image, here(QStringLiteral("main.wall.json")));
        QCOMPARE(taken.note, "Taken in, with its chart:");
        m_elsewhere.reset(); // with all that it referred to

        QCOMPARE(tree(m_folder->path()), (QStringList{"main.wall.json", "pictures/", "pictures/logo.png"}));
        const WallFile::Reading wall = WallFile::read(taken.image);
        QCOMPARE(wall.problems, QStringList());
        QCOMPARE(wall.wall.name, std::string("Main"));
        QCOMPARE(wall.wall.chart.path, std::string());
        QCOMPARE(wall.document.value("crew").toString(), QString("B"));
        QCOMPARE(wall.wall.chart.record.document.value("stage").toString(), QString("left"));
        const TestChartToolsData record = WallFile::chartOf(wall.wall, m_folder->path()).record;
        QCOMPARE(record.publicData.brightness, 70);
        QCOMPARE(QString::fromStdString(record.logoData.picturePath),
                 here(QStringLiteral("pictures/logo.png")));
        VD_COMPARE_IMAGES(pictureOf(taken.image), picture);
    }

    /// Told apart by what is in it.
    void underAnotherName()
    {
        writeWall(QStringLiteral("stage.json"));
        QCOMPARE(take(QStringLiteral("stage.json")).image, here(QStringLiteral("stage.wall.json")));
        writeShow(R"({"name": "A", "path": "stage.json"})");
        QVERIFY(QFile::rename(there(QStringLiteral("tour.show.json")), there(QStringLiteral("tour.json"))));
        QCOMPARE(take(QStringLiteral("tour.json")).image, here(QStringLiteral("tour.show.json")));
    }

    void nothingIsWrittenOver()
    {
        writeWall(QStringLiteral("main.wall.json"));
        QVERIFY(writeFile(here(QStringLiteral("main.wall.json")), "of somebody"));
        QVERIFY(writeFile(here(QStringLiteral("pictures/logo.png")), "of somebody"));
        const ChartShelf::Outcome taken = take(QStringLiteral("main.wall.json"));
        QCOMPARE(taken.image, here(QStringLiteral("main 2.wall.json")));
        QCOMPARE(take(QStringLiteral("main.wall.json")).image, here(QStringLiteral("main 3.wall.json")));
        QCOMPARE(readFile(here(QStringLiteral("main.wall.json"))), QByteArray("of somebody"));
        QCOMPARE(readFile(here(QStringLiteral("pictures/logo.png"))), QByteArray("of somebody"));
        const WallDocument wall = WallFile::read(taken.image).wall;
        QCOMPARE(
            QString::fromStdString(WallFile::chartOf(wall, m_folder->path()).record.logoData.picturePath),
            here(QStringLiteral("pictures/logo 2.png")));
    }

    void whatIsHereAlreadyStays()
    {
        QCOMPARE(WallFile::write(here(QStringLiteral("own.wall.json")), WallDocument()), QString());
        const ChartShelf::Outcome taken = ChartShelf::take(m_folder->path() + QLatin1Char('/'),
                                                           here(QStringLiteral("./own.wall.json")), {});
        QCOMPARE(taken.image, here(QStringLiteral("own.wall.json")));
        QVERIFY(!taken.note);
        QCOMPARE(tree(m_folder->path()), QStringList{"own.wall.json"});
    }

    /// Two names for one wall are one file; two walls of one file name are two.
    void aShowComesWithItsWalls()
    {
        writeWall(QStringLiteral("main.wall.json"));
        QVERIFY(writeFile(there(QStringLiteral("other/main.wall.json")),
                          R"({"format": "testwall", "version": 1})"));
        writeShow(R"({"name": "A", "path": "main.wall.json"}, {"name": "B", "path": "other/main.wall.json"},
                     {"name": "C", "path": "./main.wall.json", "color": [1, 2, 3, 255]})");
        const QImage picture = pictureOf(there(QStringLiteral("tour.show.json")));
        const ChartShelf::Outcome taken = take(QStringLiteral("tour.show.json"));
        QCOMPARE(taken.problem, QString());
        QCOMPARE(taken.image, here(QStringLiteral("tour.show.json")));
        QCOMPARE(taken.note, "Taken in, with its walls:");
        m_elsewhere.reset();
        QCOMPARE(tree(m_folder->path()), (QStringList{"main 2.wall.json", "main.wall.json", "pictures/",
                                                      "pictures/logo.png", "tour.show.json"}));
        const ShowFile::Reading show = ShowFile::read(taken.image);
        QCOMPARE(show.problems, QStringList());
        QCOMPARE(show.document.value("crew").toString(), QString("B"));
        QCOMPARE(show.show.walls.list.at(1).path, std::string("main 2.wall.json"));
        QCOMPARE(show.show.walls.list.at(2).path, std::string("main.wall.json"));
        QVERIFY(show.show.walls.list.at(2).color.isGiven);
        QVERIFY(!picture.isNull());
        VD_COMPARE_IMAGES(pictureOf(taken.image), picture);
    }

    void whatIsBadIsToldAndNotTaken_data()
    {
        QTest::addColumn<QByteArray>("wall");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("message");
        QTest::newRow("a value out of range")
            << QByteArray(R"({"format": "testwall", "version": 1, "data": {"bitDepth": 7}})")
            << "bad.wall.json"
            << "bad.wall.json: data.bitDepth: 7 is not in 8..16";
        QTest::newRow("a record that is missing")
            << QByteArray(R"({"format": "testwall", "version": 1, "chart": {"path": "none.json"}})")
            << "bad.wall.json"
            << "bad.wall.json: chart.path: ";
        QTest::newRow("a show of a bad wall")
            << QByteArray(R"({"format": "testwall", "version": 1, "data": {"bitDepth": 7}})")
            << "tour.show.json"
            << "tour.show.json: bad.wall.json: data.bitDepth: 7 is not in 8..16";
        QTest::newRow("a show of a missing wall") << QByteArray() << "tour.show.json"
                                                  << "tour.show.json: bad.wall.json: ";
    }

    void whatIsBadIsToldAndNotTaken()
    {
        QFETCH(QByteArray, wall);
        QFETCH(QString, file);
        QFETCH(QString, message);
        writeWall(QStringLiteral("main.wall.json"));
        writeShow(R"({"name": "A", "path": "main.wall.json"}, {"name": "B", "path": "bad.wall.json"})");
        if (!wall.isEmpty())
            QVERIFY(writeFile(there(QStringLiteral("bad.wall.json")), wall));
        const ChartShelf::Outcome taken = take(file);
        QCOMPARE(taken.image, QString());
        QVERIFY2(taken.problem.startsWith(message), qPrintable(taken.problem));
        QCOMPARE(tree(m_folder->path()), QStringList());
    }

    void aFolderThatCannotBeMadeIsTold()
    {
        writeWall(QStringLiteral("main.wall.json"));
        const ChartShelf::Outcome taken =
            ChartShelf::take(QStringLiteral("/dev/null/charts"), there(QStringLiteral("main.wall.json")), {});
        QCOMPARE(taken.image, QString());
        QCOMPARE(taken.problem, QString("/dev/null/charts"));
    }
};

VD_TEST_MAIN(TestWallShelf)
#include "tst_wallshelf.moc"
