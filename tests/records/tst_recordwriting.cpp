#include "chartrecordfile.h"
#include "testcase.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace vardeno::testcharttools;

namespace {

const auto logoGroup = QStringLiteral("logoData");
const auto pathField = QStringLiteral("picturePath");

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).absolutePath()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

QByteArray documentWith(const QByteArray& members)
{
    return "{\"format\": \"testchart\", \"version\": 1, " + members + "}";
}

QByteArray documentWithPicture(const QString& path)
{
    return documentWith("\"logoData\": {\"picturePath\": \"" + path.toUtf8() + "\"}");
}

QString storedPicture(const QString& recordPath)
{
    const QJsonObject document = QJsonDocument::fromJson(bytesOf(recordPath)).object();
    return document.value(logoGroup).toObject().value(pathField).toString();
}

/// A record that differs from the default one.
TestChartToolsData changedRecord()
{
    TestChartToolsData record;
    record.publicData.boxRow = 4;
    record.selfData.selfText = "changed";
    return record;
}

/// The most that the process has held at once, in KiB.
long peakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/// No file of the process may grow beyond `bytes` while this lives.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small = {bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    void (*m_handler)(int);
    rlimit m_before{};
};

} // namespace

/// Record files on the disk, and what of a document is kept when it is written again.
class TestRecordWriting : public TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString inFolder(const QString& name) const { return m_folder->filePath(name); }
    QStringList entries() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void unknownMembersAreKept()
    {
        const QByteArray json = documentWith(
            R"("$schema": "../chart-record.schema.json", "by": {"name": "标志", "on": [1, {"a": null}]},
               "publicData": {"boxRow": 3, "later": 9007199254740993, "half": 0.5},
               "logoData": {"zzz": "\ud83d\ude42"})");
        const auto reading = ChartRecordFile::fromJson(json);
        QCOMPARE(reading.problems, QStringList());
        QCOMPARE(reading.document, QJsonDocument::fromJson(json).object());

        const QByteArray again = ChartRecordFile::toJson(changedRecord(), reading.document);
        const QJsonObject document = QJsonDocument::fromJson(again).object();
        QCOMPARE(document.value("$schema").toString(), QStringLiteral("../chart-record.schema.json"));
        QCOMPARE(document.value("by"), reading.document.value("by"));
        QVERIFY(again.contains("\"later\": 9007199254740993"));
        QVERIFY(again.contains("\"half\": 0.5"));
        QCOMPARE(document.value(logoGroup).toObject().value("zzz").toString(), QStringLiteral("🙂"));
        QCOMPARE(document.value("publicData").toObject().value("boxRow").toInt(), 4);
        QVERIFY(ChartRecordFile::fromJson(again).record == changedRecord());
        QCOMPARE(ChartRecordFile::toJson(changedRecord(), document), again);
    }

    void unknownMembersStandLast()
    {
        const QJsonObject original = {{QStringLiteral("a"), 1}};
        QVERIFY(ChartRecordFile::toJson({}, original).endsWith("  },\n  \"a\": 1\n}\n"));
    }

    void unknownNestingIsWrittenAndReadAgain()
    {
        const QByteArray deep = QByteArray("[0, ").repeated(400) + "1" + QByteArray(", 0]").repeated(400);
        const auto reading = ChartRecordFile::fromJson(documentWith("\"x\": " + deep));
        QCOMPARE(reading.problems, QStringList());
        const QByteArray again = ChartRecordFile::toJson(reading.record, reading.document);
        QVERIFY(again.size() < deep.size() + 5000);
        QCOMPARE(ChartRecordFile::fromJson(again).document.value("x"), reading.document.value("x"));
    }

    void newRecordHasNothingUnknown()
    {
        const auto reading = ChartRecordFile::fromJson(ChartRecordFile::toJson({}));
        QCOMPARE(ChartRecordFile::toJson({}, reading.document), ChartRecordFile::toJson({}));
    }

    void documentOfABadRecord()
    {
        QVERIFY(ChartRecordFile::fromJson("[1]").document.isEmpty());
        QCOMPARE(ChartRecordFile::fromJson(documentWith("\"publicData\": {\"boxRow\": 0}")).document.size(),
                 3);
    }

    void pictureIsRelativeToTheRecord_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("beside it") << "logo.png"
                                   << "%1/logo.png";
        QTest::newRow("below it") << "pictures/标志.png"
                                  << "%1/pictures/标志.png";
        QTest::newRow("above it") << "../logo.png"
                                  << "%2/logo.png";
        QTest::newRow("roundabout") << "./a/../logo.png"
                                    << "%1/logo.png";
        QTest::newRow("absolute") << "/somewhere/./logo.png"
                                  << "/somewhere/./logo.png";
        QTest::newRow("built into the program") << ":/logo.png"
                                                << ":/logo.png";
        QTest::newRow("none") << ""
                              << "";
    }

    void pictureIsRelativeToTheRecord()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        expected.replace(QStringLiteral("%1"), inFolder("records"));
        expected.replace(QStringLiteral("%2"), m_folder->path());
        const QString path = inFolder("records/record.json");
        QVERIFY(writeFile(path, documentWithPicture(text)));
        auto reading = ChartRecordFile::read(path);
        QCOMPARE(reading.problems, QStringList());
        QCOMPARE(QString::fromStdString(reading.record.logoData.picturePath), expected);

        const QByteArray json = documentWithPicture(text);
        QCOMPARE(ChartRecordFile::fromJson(json).record.logoData.picturePath, text.toStdString());
        QCOMPARE(ChartRecordFile::fromJson(json, inFolder("records")).record.logoData.picturePath,
                 expected.toStdString());

        QCOMPARE(ChartRecordFile::write(path, reading.record, reading.document), QString());
        QCOMPARE(storedPicture(path), text);
        QVERIFY(ChartRecordFile::read(path).record == reading.record);
    }

    void recordNamedFromItsOwnFolder()
    {
        QVERIFY(writeFile(inFolder("record.json"), documentWithPicture("logo.png")));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder->path()));
        const auto reading = ChartRecordFile::read(QStringLiteral("record.json"));
        QDir::setCurrent(before);
        QCOMPARE(reading.record.logoData.picturePath, inFolder("logo.png").toStdString());
    }

    void otherPictureIsStoredAsItIs()
    {
        const QString path = inFolder("record.json");
        QVERIFY(writeFile(path, documentWithPicture("logo.png")));
        auto reading = ChartRecordFile::read(path);
        reading.record.logoData.picturePath = inFolder("other.png").toStdString();
        QCOMPARE(ChartRecordFile::write(path, reading.record, reading.document), QString());
        QCOMPARE(storedPicture(path), inFolder("other.png"));
        reading.record.logoData.picturePath.clear();
        QCOMPARE(ChartRecordFile::write(path, reading.record, reading.document), QString());
        QCOMPARE(storedPicture(path), QString());
    }

    void recordInAnotherFolderLeadsToTheSamePicture()
    {
        QVERIFY(writeFile(inFolder("a/record.json"), documentWithPicture("logo.png")));
        const auto reading = ChartRecordFile::read(inFolder("a/record.json"));
        QVERIFY(writeFile(inFolder("b/other.json"), "x"));
        QCOMPARE(ChartRecordFile::write(inFolder("b/record.json"), reading.record, reading.document),
                 QString());
        QCOMPARE(storedPicture(inFolder("b/record.json")), inFolder("a/logo.png"));
    }

    void samePictureByAnotherWay()
    {
        QVERIFY(writeFile(inFolder("a/logo.png"), "picture"));
        QVERIFY(QFile::link(inFolder("a"), inFolder("link")));
        QVERIFY(writeFile(inFolder("a/record.json"), documentWithPicture("logo.png")));
        auto reading = ChartRecordFile::read(inFolder("link/record.json"));
        QCOMPARE(reading.record.logoData.picturePath, inFolder("link/logo.png").toStdString());
        QCOMPARE(ChartRecordFile::write(inFolder("a/record.json"), reading.record, reading.document),
                 QString());
        QCOMPARE(storedPicture(inFolder("a/record.json")), QStringLiteral("logo.png"));
    }

    void hostileFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("problem");
        const QString special = QStringLiteral("not a regular file");
        QTest::newRow("a pipe that nobody writes to") << "pipe" << special;
        QTest::newRow("a link to one") << "link" << special;
        QTest::newRow("a folder") << "folder" << special;
        QTest::newRow("an endless device") << "/dev/zero" << special;
        QTest::newRow("no bytes") << "empty"
                                  << "not JSON: empty";
        QTest::newRow("a gigabyte") << "large"
                                    << "1073741824 bytes are more than 1048576";
    }

    void hostileFiles()
    {
        QFETCH(QString, name);
        QFETCH(QString, problem);
        QCOMPARE(mkfifo(QFile::encodeName(inFolder("pipe")), 0600), 0);
        QVERIFY(QFile::link(inFolder("pipe"), inFolder("link")));
        QVERIFY(QDir(m_folder->path()).mkdir("folder"));
        QVERIFY(writeFile(inFolder("empty"), ""));
        QFile large(inFolder("large"));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(1 << 30)); // which takes no room

        const QString path = QDir(m_folder->path()).absoluteFilePath(name);
        const long before = peakMemory();
        QElapsedTimer time;
        time.start();
        const auto reading = ChartRecordFile::read(path);
        QVERIFY(time.elapsed() < 2000);
        QVERIFY(peakMemory() - before < 200 * 1024);
        QCOMPARE(reading.problems, QStringList(name == "empty" ? problem : path + ": " + problem));
        QVERIFY(reading.record == TestChartToolsData());
    }

    void specialFilesAreNotReplaced()
    {
        const QString path = inFolder("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(path), 0600), 0);
        QCOMPARE(ChartRecordFile::write(path, {}), path + QStringLiteral(": not a regular file"));
        QCOMPARE(ChartRecordFile::write(m_folder->path(), {}),
                 m_folder->path() + QStringLiteral(": not a regular file"));
        struct stat status = {};
        QCOMPARE(stat(QFile::encodeName(path), &status), 0);
        QVERIFY(S_ISFIFO(status.st_mode));
        QCOMPARE(entries(), QStringList("pipe"));
    }

    void linkedFileIsWrittenThroughTheLink()
    {
        QVERIFY(writeFile(inFolder("a/record.json"), "old"));
        QVERIFY(QFile::link(inFolder("a/record.json"), inFolder("record.json")));
        QCOMPARE(ChartRecordFile::write(inFolder("record.json"), changedRecord()), QString());
        QVERIFY(QFileInfo(inFolder("record.json")).isSymLink());
        QCOMPARE(bytesOf(inFolder("a/record.json")), ChartRecordFile::toJson(changedRecord()));
    }

    void whatCouldNotBeReadIsNotWritten_data()
    {
        QTest::addColumn<TestChartToolsData>("record");
        QTest::addColumn<QString>("problem");
        TestChartToolsData record;
        record.publicData.boxRow = 0;
        record.publicData.resolutionWidth = 50000;
        QTest::newRow("out of range") << record
                                      << "publicData.resolutionWidth: 50000 is not in 16..32768; "
                                         "publicData.boxRow: 0 is not in 1..1000";
        record = {};
        record.selfData.selfText.assign(51, 'x');
        QTest::newRow("a text too long")
            << record << "selfData.selfText: \"" + QString(51, 'x') + "\" is longer than 50 characters";
        record = {};
        for (int row = 0; row < 4321; ++row)
            record.basicData.gradientColors[row] = Qt::red;
        QTest::newRow("too many colors")
            << record << "basicData.gradientColors: 4321 colors are more than 4320";
        record = {};
        record.logoData.logoText = std::string(10 << 20, 'x');
        QTest::newRow("10 MB of text") << record << "10489210 bytes are more than 1048576";
    }

    void whatCouldNotBeReadIsNotWritten()
    {
        QFETCH(TestChartToolsData, record);
        QFETCH(QString, problem);
        const QString path = inFolder("record.json");
        QCOMPARE(ChartRecordFile::write(path, changedRecord()), QString());
        const QString told = ChartRecordFile::write(path, record);
        QVERIFY2(told.startsWith(path + ": "), qPrintable(told));
        if (problem.contains("bytes")) // whose number depends on the other fields
            QVERIFY2(told.endsWith(" bytes are more than 1048576"), qPrintable(told));
        else
            QCOMPARE(told, path + ": " + problem);
        QCOMPARE(bytesOf(path), ChartRecordFile::toJson(changedRecord()));
        QCOMPARE(entries(), QStringList("record.json"));
    }

    void fullDiskKeepsTheEarlierFile()
    {
        const QString path = inFolder("record.json");
        QCOMPARE(ChartRecordFile::write(path, TestChartToolsData()), QString());
        QString problem;
        {
            const FileSizeLimit limit(100);
            problem = ChartRecordFile::write(path, changedRecord());
        }
        QVERIFY2(problem.startsWith(path + QStringLiteral(": ")), qPrintable(problem));
        QCOMPARE(bytesOf(path), ChartRecordFile::toJson(TestChartToolsData()));
        QCOMPARE(entries(), QStringList("record.json"));
        QCOMPARE(ChartRecordFile::write(path, changedRecord()), QString());
        QCOMPARE(bytesOf(path), ChartRecordFile::toJson(changedRecord()));
    }

    void lockedFolderKeepsTheEarlierFile()
    {
        const QString path = inFolder("record.json");
        QCOMPARE(ChartRecordFile::write(path, TestChartToolsData()), QString());
        QCOMPARE(chmod(QFile::encodeName(path), 0666), 0);
        QCOMPARE(chmod(QFile::encodeName(m_folder->path()), 0555), 0);
        const bool isRoot = geteuid() == 0; // for whom no folder is locked
        if (isRoot && seteuid(65534) != 0)
            QSKIP("root may not be another user here");
        const QString problem = ChartRecordFile::write(path, changedRecord());
        QVERIFY(!isRoot || seteuid(0) == 0);
        QCOMPARE(chmod(QFile::encodeName(m_folder->path()), 0700), 0);
        QVERIFY2(problem.startsWith(path + QStringLiteral(": ")), qPrintable(problem));
        QCOMPARE(bytesOf(path), ChartRecordFile::toJson(TestChartToolsData()));
        QCOMPARE(entries(), QStringList("record.json"));
    }

    /// A reader never sees a half-written file.
    void readersSeeTheOldOrTheNewFile()
    {
        const QString path = inFolder("record.json");
        QCOMPARE(ChartRecordFile::write(path, TestChartToolsData()), QString());
        QFile earlier(path);
        QVERIFY(earlier.open(QIODevice::ReadOnly));
        const QByteArray begin = earlier.read(10);
        QCOMPARE(ChartRecordFile::write(path, changedRecord()), QString());
        QCOMPARE(begin + earlier.readAll(), ChartRecordFile::toJson(TestChartToolsData()));
        QCOMPARE(bytesOf(path), ChartRecordFile::toJson(changedRecord()));
    }
};

VD_TEST_MAIN(TestRecordWriting)
#include "tst_recordwriting.moc"
