#include "exitcode.h"
#include "programtest.h"
#include "showpack.h"
#include "ziparchive.h"

#include <showfile.h>

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <sys/stat.h>

using namespace vardeno::testcharttools;
using namespace vardeno::walls;

namespace {

using Files = std::vector<PackedFile>;

/// An archive as an attacker makes it: any paths, with a manifest that fits them, or another one.
QByteArray archiveOf(const Files& files, const QByteArray& manifest = {})
{
    QJsonArray list;
    for (const PackedFile& file : files)
        list.append(QJsonObject{
            {"path", file.path},
            {"bytes", file.bytes.size()},
            {"sha256",
             QString::fromLatin1(QCryptographicHash::hash(file.bytes, QCryptographicHash::Sha256).toHex())}});
    const QJsonObject told{{"format", "testshow-pack"},
                           {"version", 1},
                           {"show", files.empty() ? QString() : files.front().path},
                           {"files", list}};
    ZipWriter archive;
    archive.add("pack.json", manifest.isEmpty() ? QJsonDocument(told).toJson() : manifest);
    for (const PackedFile& file : files)
        archive.add(file.path, file.bytes);
    return archive.finish();
}

/// Marks the last file of an archive as a symbolic link, as other programs do: in the directory at the end.
QByteArray withLink(QByteArray archive)
{
    const int entry = archive.lastIndexOf("PK\x01\x02");
    archive[entry + 5] = 3; // made on Unix
    const quint32 attributes = quint32(S_IFLNK | 0777) << 16;
    for (int i = 0; i < 4; ++i)
        archive[entry + 38 + i] = char(attributes >> (8 * i));
    return archive;
}

QString unpackProblem(const QByteArray& archive)
{
    try {
        unpackShow(archive, "a.zip");
    } catch (const Failure& failure) {
        return failure.message;
    }
    return {};
}

} // namespace

class TestShowPack : public ProgramTest
{
    Q_OBJECT

private:
    /// A show with walls and a record in other folders, and the picture of a logo.
    void writeShow() const
    {
        QVERIFY(QDir(path("")).mkpath("tour/shows"));
        QVERIFY(QDir(path("")).mkpath("tour/walls/charts"));
        QImage logo(20, 10, QImage::Format_RGB32);
        logo.fill(Qt::red);
        QVERIFY(logo.save(path("tour/logo.png")));
        write("tour/walls/charts/c.json", R"({"format": "testchart", "version": 1,
            "logoData": {"showLogo": true, "pictureLogo": true, "picturePath": "../../logo.png"}})");
        write("tour/walls/main.wall.json",
              R"({"format": "testwall", "version": 1, "chart": {"path": "charts/c.json"}, "venue": "kept"})");
        write("tour/shows/a.show.json", R"({"format": "testshow", "version": 1, "show": {
            "outputs": [{"name": "A", "width": 1920, "height": 1152}],
            "walls": [{"name": "Main", "path": "../walls/main.wall.json"},
                      {"name": "Again", "path": "../walls/main.wall.json"}],
            "placements": [{"wall": "Main", "output": "A"}]}})");
    }

    QMap<QString, QByteArray> tree(const QString& folder) const
    {
        QMap<QString, QByteArray> files;
        QDirIterator entries(path(folder), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString file = QDir(path("")).relativeFilePath(entries.next());
            files.insert(file.mid(folder.size() + 1), read(file));
        }
        return files;
    }

private Q_SLOTS:
    void thereAndBackByteForByte()
    {
        writeShow();
        const Outcome packed = run({"show", "pack", "tour/shows/a.show.json", "-o", "a.zip"});
        QVERIFY(packed.errors.startsWith("vdchart: warning: tour/shows/a.show.json: show.walls: (wall 1) "
                                         "../walls/main.wall.json: venue: unknown member\n"));
        QCOMPARE(packed.code, 0);
        const Outcome unpacked = run({"show", "unpack", "a.zip", "-o", "copy"});
        QCOMPARE(unpacked.errors, QString());
        QCOMPARE(unpacked.output, QByteArray("copy/shows/a.show.json\n"));
        QCOMPARE(tree("copy").keys(), QStringList({"logo.png", "shows/a.show.json", "walls/charts/c.json",
                                                   "walls/main.wall.json"}));
        QCOMPARE(tree("copy"), tree("tour"));
        QCOMPARE(files().filter("copy"), QStringList());

        QCOMPARE(run({"render", "tour/shows/a.show.json", "-o", "one.png"}).code, 0);
        QCOMPARE(run({"render", "copy/shows/a.show.json", "-o", "two.png"}).code, 0);
        VD_COMPARE_IMAGES(QImage(path("one.png")), QImage(path("two.png")));
    }

    /// On any day, and of a copy.
    void theSameShowMakesTheSameBytes()
    {
        writeShow();
        QCOMPARE(run({"show", "pack", "tour/shows/a.show.json", "-o", "1.zip"}).code, 0);
        QCOMPARE(run({"show", "unpack", "1.zip", "-o", "twin"}).code, 0);
        QCOMPARE(run({"show", "pack", "twin/shows/a.show.json", "-o", "2.zip"}).code, 0);
        QCOMPARE(read("1.zip"), read("2.zip"));
        QVERIFY(!read("1.zip").isEmpty());
    }

    void aPackGoesIntoANewFolderOnly()
    {
        writeShow();
        QCOMPARE(run({"show", "pack", "tour/shows/a.show.json", "-o", "b.zip"}).code, 0);
        const auto before = tree("tour");
        const Outcome outcome = run({"show", "unpack", "b.zip", "-o", "tour"});
        QCOMPARE(outcome.code, 2);
        QVERIFY(outcome.errors.contains("tour: it is there already; a pack goes into a new folder"));
        QCOMPARE(tree("tour"), before);
        QFile::link(path("nowhere"), path("dangling"));
        QCOMPARE(run({"show", "unpack", "b.zip", "-o", "dangling"}).code, 2);
        QVERIFY(!QFile::exists(path("nowhere")));
    }

    void absolutePathsAreRefused()
    {
        writeShow();
        const QByteArray wall =
            R"({"format": "testwall", "version": 1, "chart": {"path": "FOLDER/walls/charts/c.json"}})";
        write("tour/walls/main.wall.json", QByteArray(wall).replace("FOLDER", path("tour").toUtf8()));
        const Outcome outcome = run({"show", "pack", "tour/shows/a.show.json", "-o", "c.zip"});
        QCOMPARE(outcome.code, 3);
        QVERIFY2(outcome.errors.contains("main.wall.json: chart.path: \"/"), qPrintable(outcome.errors));
        QVERIFY(outcome.errors.contains("is an absolute path, which leads nowhere on another machine"));

        const QByteArray drawn = R"({"format": "testwall", "version": 1, "chart": {"record":
            {"format": "testchart", "version": 1, "logoData": {"picturePath": "FOLDER/logo.png"}}}})";
        write("tour/walls/main.wall.json", QByteArray(drawn).replace("FOLDER", path("tour").toUtf8()));
        const Outcome logo = run({"show", "pack", "tour/shows/a.show.json", "-o", "c.zip"});
        QVERIFY2(logo.errors.contains("main.wall.json: logoData.picturePath: \"/"), qPrintable(logo.errors));
        QVERIFY(!QFile::exists(path("c.zip")));
    }

    void hostilePaths_data()
    {
        QTest::addColumn<QString>("path");
        for (const char* name : {"../a.show.json", "/etc/a.show.json", "a/../../b", "a//b", "./a", "a/.",
                                 "..", "a\\..\\b", "C:/a", "NUL", "a/con.json", ".bashrc", "a/", "a\nb"})
            QTest::newRow(name) << QString(name);
    }

    void hostilePaths()
    {
        QFETCH(QString, path);
        const QString problem = unpackProblem(archiveOf({{path, "{}"}}));
        QVERIFY2(problem.startsWith("a.zip: \"" + path + "\": "), qPrintable(problem));
    }

    void hostileArchives_data()
    {
        QTest::addColumn<QByteArray>("archive");
        QTest::addColumn<QString>("problem");
        const Files good = {{"a.show.json", "{}"}};
        QTest::newRow("good") << archiveOf(good) << "";
        QTest::newRow("no archive") << QByteArray("PK but no more")
                                    << "a.zip: not a pack of a show: Not a zip archive";
        QTest::newRow("empty") << QByteArray() << "a.zip: not a pack of a show: ";
        QTest::newRow("cut off") << archiveOf(good).chopped(5) << "a.zip: not a pack of a show: ";
        QTest::newRow("a link") << withLink(archiveOf(good))
                                << "a.zip: \"a.show.json\": it is a link or something else that is no file";
        QTest::newRow("too large") << archiveOf({{"a.show.json", QByteArray(64 * 1024 * 1024 + 1, ' ')}})
                                   << "a.zip: \"a.show.json\": its 67108865 bytes are too many";
        QTest::newRow("one name in two cases") << archiveOf({{"a.show.json", "{}"}, {"A.show.json", "{}"}})
                                               << "a.zip: \"A.show.json\": there are two files of that name";
        QTest::newRow("another manifest") << archiveOf(good, R"({"format": "other"})")
                                          << "a.zip: not a pack of a show: its manifest is none";
        QTest::newRow("a newer manifest") << archiveOf(good, R"({"format": "testshow-pack", "version": 2})")
                                          << "a.zip: its manifest is of a version that is not known";
        QTest::newRow("a manifest without a show")
            << archiveOf(good,
                         R"({"format": "testshow-pack", "version": 1, "files": [{"path": "a.show.json"}]})")
            << "a.zip: its manifest names no show";
        QTest::newRow("a file too many")
            << archiveOf(
                   {{"a.show.json", "{}"}, {"b", ""}},
                   R"({"format": "testshow-pack", "version": 1, "show": "b", "files": [{"path": "b"}]})")
            << "a.zip: \"a.show.json\": the manifest does not name it";
        QTest::newRow("another checksum")
            << archiveOf(good, R"({"format": "testshow-pack", "version": 1, "show": "a.show.json",
                                   "files": [{"path": "a.show.json", "bytes": 2, "sha256": "00"}]})")
            << "a.zip: \"a.show.json\": it is not as the manifest says";
        QTest::newRow("a damaged file") << archiveOf(good).replace("{}", "[]") << "a.zip: ";
    }

    void hostileArchives()
    {
        QFETCH(QByteArray, archive);
        QFETCH(QString, problem);
        const QString told = unpackProblem(archive);
        QVERIFY2(problem.isEmpty() ? told.isEmpty() : told.startsWith(problem), qPrintable(told));
    }

    /// Where the archive says that a file is small, no more of it is inflated.
    void aFileThatIsLargerThanItSays()
    {
        QByteArray archive = archiveOf({{"a.show.json", QByteArray(1000000, ' ')}});
        for (const char* header : {"PK\x01\x02", "PK\x03\x04"}) {
            const int entry = archive.lastIndexOf(header);
            const int size = entry + (header[2] == 1 ? 24 : 22);
            for (int i = 0; i < 4; ++i)
                archive[size + i] = char(i == 0 ? 2 : 0);
        }
        const QString told = unpackProblem(archive);
        QVERIFY2(told.startsWith("a.zip: ") && told.contains("damaged"), qPrintable(told));
    }

    void tooManyFiles()
    {
        Files files;
        for (int i = 0; i < 1025; ++i)
            files.push_back({QStringLiteral("f%1").arg(i), {}});
        QCOMPARE(unpackProblem(archiveOf(files)), QString("a.zip: 1026 files are more than 1025"));
    }

    /// Nothing of it is left.
    void aBadPackWritesNothing()
    {
        write("bad.zip", archiveOf({{"a.show.json", "{}"}, {"../out", "{}"}}));
        const Outcome outcome = run({"show", "unpack", "bad.zip", "-o", "new"});
        QCOMPARE(outcome.code, 3);
        QVERIFY(!QFile::exists(path("new")) && !QFile::exists(path("out")));
        QCOMPARE(QDir(path("")).entryList({"new*"}, QDir::AllEntries | QDir::Hidden), QStringList());
    }
};

VD_TEST_MAIN(TestShowPack)
#include "tst_showpack.moc"
