#include "saveimagethread.h"
#include "testcase.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QTemporaryDir>

#include <csignal>
#include <memory>

#include <sys/resource.h>
#include <unistd.h>

using namespace vardeno::testcharttools;

namespace {

const QString noPermission = QStringLiteral("You have no permission to write there.");

/// A picture that does not compress to nothing.
QImage noise(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    quint32 state = 12345;
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            state = state * 1664525U + 1013904223U;
            line[x] = 0xff000000U | (state >> 8);
        }
    }
    return image;
}

QByteArray encoded(const QImage& image, const char* format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, format, 100) ? buffer.data() : QByteArray();
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// No file of this process may grow beyond `bytes`: a disk that fills up.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

/// The process has an ordinary user's rights, also where the tests are run by the super-user.
class OrdinaryUser
{
public:
    OrdinaryUser()
        : m_wasRoot(geteuid() == 0)
    {
        if (m_wasRoot)
            isOrdinary = setresuid(nobody, nobody, 0) == 0;
    }
    ~OrdinaryUser()
    {
        if (m_wasRoot && setresuid(0, 0, 0) != 0)
            qFatal("the super-user's rights are lost");
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    bool isOrdinary = true;

private:
    static constexpr uid_t nobody = 65534;
    const bool m_wasRoot;
};

} // namespace

class TestSaveImageThread : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
        m_image = noise(QSize(64, 48));
    }

    void cleanup()
    {
        m_folder.reset();
        TestCase::cleanup();
    }

    void formatFollowsTheEnding_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("format");
        QTest::newRow("png") << "chart.png" << QByteArray("png");
        QTest::newRow("jpg") << "chart.jpg" << QByteArray("jpeg");
        QTest::newRow("jpeg") << "chart.jpeg" << QByteArray("jpeg");
        QTest::newRow("bmp") << "chart.bmp" << QByteArray("bmp");
        QTest::newRow("only the last ending counts") << "chart.png.bmp" << QByteArray("bmp");
        QTest::newRow("nothing but an ending") << ".png" << QByteArray("png");
        QTest::newRow("spaces and other letters") << QStringLiteral("测试 图 7.png") << QByteArray("png");
    }

    void formatFollowsTheEnding()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, format);
        QVERIFY(saves(m_image, at(name)));
        QImageReader reader(at(name));
        reader.setDecideFormatFromContent(true);
        QCOMPARE(reader.format(), format);
        QCOMPARE(contents(at(name)), encoded(m_image, format.constData()));
        QCOMPARE(files(), QStringList(name));
    }

    void losslessFormatsKeepEveryPixel_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("png") << "chart.png";
        QTest::newRow("bmp") << "chart.bmp";
    }

    void losslessFormatsKeepEveryPixel()
    {
        QFETCH(QString, name);
        QVERIFY(saves(m_image, at(name)));
        VD_COMPARE_IMAGES(QImage(at(name)), m_image);
    }

    void unknownEndingSucceedsWithoutAFile_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("upper case PNG") << "chart.PNG";
        QTest::newRow("mixed case jpg") << "chart.Jpg";
        QTest::newRow("upper case BMP") << "chart.BMP";
        QTest::newRow("gif") << "chart.gif";
        QTest::newRow("no ending") << "chart";
        QTest::newRow("letters without the dot") << "chartpng";
        QTest::newRow("a dot more") << "chart.png.";
        QTest::newRow("a space more") << "chart.png ";
        QTest::newRow("in a missing folder") << "none/chart.gif";
    }

    void unknownEndingSucceedsWithoutAFile()
    {
        QFETCH(QString, name);
        QVERIFY(saves(m_image, at(name)));
        QCOMPARE(files(), QStringList());
    }

    void emptyPathIsReportedOnce() { QVERIFY(saves(m_image, QString())); }

    void earlierFileIsReplacedWhole()
    {
        QVERIFY(saves(noise(QSize(200, 200)), at("chart.png")));
        QVERIFY(saves(m_image, at("chart.png")));
        QCOMPARE(contents(at("chart.png")), encoded(m_image, "PNG"));
        QCOMPARE(files(), QStringList("chart.png"));
    }

    void linkStaysALink()
    {
        QVERIFY(saves(noise(QSize(20, 20)), at("target.png")));
        QVERIFY(QFile::link(at("target.png"), at("chart.png")));
        QVERIFY(saves(m_image, at("chart.png")));
        QVERIFY(QFileInfo(at("chart.png")).isSymLink());
        QCOMPARE(contents(at("target.png")), encoded(m_image, "PNG"));
    }

    void smallPngHasTheSamePixels()
    {
        QImage image(1000, 1500, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QPainter(&image).drawImage(100, 100, noise({200, 300}));
        QVERIFY(saves(image, at("large.png")));
        SaveImageThread thread(image, at("chart.png"));
        thread.setSmallPng(true);
        QVERIFY(reports(thread));
        QCOMPARE(thread.failedReason(), QString());
        QVERIFY(contents(at("chart.png")).size() * 4 < contents(at("large.png")).size());
        VD_COMPARE_IMAGES(QImage(at("chart.png")).convertToFormat(QImage::Format_RGB32), image);
    }

    void smallPngIsOfPngFilesOnly()
    {
        SaveImageThread thread(m_image, at("chart.bmp"));
        thread.setSmallPng(true);
        QVERIFY(reports(thread));
        QCOMPARE(contents(at("chart.bmp")), encoded(m_image, "bmp"));
    }

    void smallPngThatCannotBeWritten()
    {
        SaveImageThread nowhere(m_image, at("none/chart.png"));
        nowhere.setSmallPng(true);
        QVERIFY(!reports(nowhere));
        SaveImageThread unwritten(m_image, at("none/chart.png"));
        QVERIFY(!reports(unwritten));
        QCOMPARE(nowhere.failedReason(), unwritten.failedReason());
        SaveImageThread nothing(QImage(), at("chart.png"));
        nothing.setSmallPng(true);
        QVERIFY(!reports(nothing));
        QVERIFY(!nothing.failedReason().isEmpty());
        QCOMPARE(files(), QStringList());
    }

    void imageIsTheOneOfTheConstruction()
    {
        const QImage original = m_image.copy();
        SaveImageThread thread(m_image, at("chart.png"));
        m_image.fill(Qt::red);
        QVERIFY(reports(thread));
        VD_COMPARE_IMAGES(QImage(at("chart.png")), original);
    }

    void runCalledDirectlyWritesAtOnce()
    {
        SaveImageThread thread(m_image, at("chart.png"));
        const QSignalSpy spy(&thread, &SaveImageThread::saveFinished);
        thread.run();
        QCOMPARE(spy.count(), 1);
        QVERIFY(spy.first().first().toBool());
        QVERIFY(!thread.isRunning());
        QCOMPARE(contents(at("chart.png")), encoded(m_image, "PNG"));
    }

    void nothingIsWrittenBeforeTheStart()
    {
        {
            const SaveImageThread thread(m_image, at("chart.png"));
        }
        QCOMPARE(files(), QStringList());
    }

    void failures_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reason");
        const QString inTheWay = QStringLiteral("A file or folder of that name is in the way.");
        QTest::newRow("missing folder") << "none/chart.png"
                                        << "The folder is not there.";
        QTest::newRow("a file for a folder") << "file.txt/chart.png" << inTheWay;
        QTest::newRow("below a file") << "file.txt/none/none/chart.png" << inTheWay;
        QTest::newRow("a folder of that name") << "folder.png" << inTheWay;
        QTest::newRow("a name that is too long")
            << QString(300, QLatin1Char('x')) + QLatin1String(".png") << "File name too long";
    }

    void failures()
    {
        QFETCH(QString, name);
        QFETCH(QString, reason);
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder.png")));
        write("file.txt", "text");
        QVERIFY(!saves(m_image, at(name)));
        QCOMPARE(m_reason, reason);
        QCOMPARE(files(), QStringList("file.txt"));
        QCOMPARE(contents(at("file.txt")), QByteArray("text"));
        QVERIFY(QDir(at("folder.png")).isEmpty());
    }

    void emptyImageFails()
    {
        write("chart.png", "earlier");
        QVERIFY(!saves(QImage(), at("chart.png")));
        QCOMPARE(m_reason, QStringLiteral("The picture cannot be stored in this format."));
        QCOMPARE(contents(at("chart.png")), QByteArray("earlier"));
        QCOMPARE(files(), QStringList("chart.png"));
    }

    void readOnlyTargetKeepsTheEarlierFile_data()
    {
        QTest::addColumn<bool>("folderIsReadOnly");
        QTest::addColumn<bool>("fileIsReadOnly");
        QTest::addColumn<bool>("succeeds");
        QTest::newRow("both writable") << false << false << true;
        QTest::newRow("read-only file") << false << true << false;
        QTest::newRow("read-only folder") << true << false << false;
    }

    void readOnlyTargetKeepsTheEarlierFile()
    {
        QFETCH(bool, folderIsReadOnly);
        QFETCH(bool, fileIsReadOnly);
        QFETCH(bool, succeeds);
        write("chart.png", "earlier");
        QVERIFY(QFile::setPermissions(at("chart.png"), QFile::Permissions(fileIsReadOnly ? 0x4444 : 0x6666)));
        QVERIFY(
            QFile::setPermissions(m_folder->path(), QFile::Permissions(folderIsReadOnly ? 0x5555 : 0x7777)));
        {
            const OrdinaryUser user;
            QVERIFY(user.isOrdinary);
            QCOMPARE(saves(m_image, at("chart.png")), succeeds);
        }
        QCOMPARE(m_reason, succeeds ? QString() : noPermission);
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7700)));
        QCOMPARE(contents(at("chart.png")), succeeds ? encoded(m_image, "PNG") : QByteArray("earlier"));
        QCOMPARE(files(), QStringList("chart.png"));
    }

    void folderThatCannotBeMade_data()
    {
        QTest::addColumn<int>("rights");
        QTest::newRow("no new entries") << 0x5555;
        QTest::newRow("may not be entered") << 0x7700;
    }

    void folderThatCannotBeMade()
    {
        QFETCH(int, rights);
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(rights)));
        {
            const OrdinaryUser user;
            QVERIFY(user.isOrdinary);
            QVERIFY(!saves(m_image, at("none/chart.png")));
        }
        QCOMPARE(m_reason, noPermission);
    }

    void fullDisk_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("percent");
        QTest::addColumn<bool>("earlier");
        for (const char* name : {"chart.png", "chart.jpg", "chart.bmp"}) {
            const auto row = [name](const char* what) -> QTestData& {
                return QTest::newRow(
                           qPrintable(QLatin1String(name) + QLatin1String(", ") + QLatin1String(what)))
                       << name;
            };
            row("full at once") << 0 << false;
            row("half of it") << 50 << false;
            row("a byte too few") << 100 << false;
            row("over an earlier file") << 100 << true;
        }
    }

    /// There is room for a byte less than `percent` of the file.
    void fullDisk()
    {
        QFETCH(QString, name);
        QFETCH(int, percent);
        QFETCH(bool, earlier);
        const QImage image = noise(QSize(200, 150));
        const QByteArray format = QFileInfo(name).suffix().replace("jpg", "jpeg").toLatin1();
        const int size = encoded(image, format.constData()).size();
        if (earlier)
            write(name.toLatin1(), "earlier");
        {
            const FullDisk disk(rlim_t(qMax(size * percent / 100 - 1, 0)));
            QVERIFY(!saves(image, at(name)));
        }
        QCOMPARE(m_reason, QStringLiteral("There is no space left."));
        QCOMPARE(contents(at(name)), earlier ? QByteArray("earlier") : QByteArray());
        QCOMPARE(files(), earlier ? QStringList(name) : QStringList());
        QVERIFY(saves(image, at(name)));
        QCOMPARE(m_reason, QString());
        QCOMPARE(contents(at(name)).size(), size);
    }

    void diskWithJustEnoughRoom()
    {
        const int size = encoded(m_image, "PNG").size();
        const FullDisk disk{rlim_t(size)};
        QVERIFY(saves(m_image, at("chart.png")));
        QCOMPARE(contents(at("chart.png")).size(), size);
    }

    void destructionWaitsForTheFile()
    {
        const QImage image = noise(QSize(2000, 2000));
        int reported = 0;
        auto thread = std::make_unique<SaveImageThread>(image, at("chart.png"));
        connect(
            thread.get(), &SaveImageThread::saveFinished, thread.get(),
            [&reported](bool success) { reported += success ? 1 : 100; }, Qt::DirectConnection);
        thread->start();
        thread.reset();
        QCOMPARE(reported, 1);
        VD_COMPARE_IMAGES(QImage(at("chart.png")), image);
        QCOMPARE(files(), QStringList("chart.png"));
    }

    void destructionWithTheParentWaitsToo()
    {
        const QImage image = noise(QSize(2000, 2000));
        auto parent = std::make_unique<QObject>();
        auto* thread = new SaveImageThread(image, at("chart.png"), parent.get());
        QCOMPARE(thread->parent(), parent.get());
        thread->start();
        parent.reset();
        VD_COMPARE_IMAGES(QImage(at("chart.png")), image);
        QCOMPARE(files(), QStringList("chart.png"));
    }

    void reportsFromTheThreadAndArrivesInTheReceivers()
    {
        SaveImageThread thread(m_image, at("chart.png"));
        QThread* sentIn = nullptr;
        QThread* receivedIn = nullptr;
        connect(
            &thread, &SaveImageThread::saveFinished, &thread, [&] { sentIn = QThread::currentThread(); },
            Qt::DirectConnection);
        connect(&thread, &SaveImageThread::saveFinished, this,
                [&] { receivedIn = QThread::currentThread(); });
        thread.start();
        QVERIFY(thread.wait(10000));
        QCOMPARE(sentIn, &thread);
        QCOMPARE(receivedIn, static_cast<QThread*>(nullptr));
        QCoreApplication::processEvents();
        QCOMPARE(receivedIn, QThread::currentThread());
    }

    void fileIsThereWhenItIsReported()
    {
        SaveImageThread thread(m_image, at("chart.png"));
        QByteArray found;
        connect(
            &thread, &SaveImageThread::saveFinished, &thread, [&] { found = contents(at("chart.png")); },
            Qt::DirectConnection);
        thread.start();
        QVERIFY(thread.wait(10000));
        QCOMPARE(found, encoded(m_image, "PNG"));
    }

    void manyAtOnce()
    {
        std::vector<std::unique_ptr<SaveImageThread>> threads;
        for (int i = 0; i < 5; ++i) {
            threads.push_back(
                std::make_unique<SaveImageThread>(m_image, at(QStringLiteral("%1.png").arg(i))));
            threads.back()->start();
        }
        threads.clear();
        QCOMPARE(files().size(), 5);
        for (const QString& name : files())
            QCOMPARE(contents(at(name)), encoded(m_image, "PNG"));
    }

private:
    QString at(const QString& name) const { return QDir(m_folder->path()).filePath(name); }
    QString at(const char* name) const { return at(QString::fromLatin1(name)); }

    void write(const char* name, const QByteArray& text) const
    {
        QFile file(at(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), qint64(text.size()));
    }

    QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }

    /// Runs the thread to its end and returns what it has reported; it reports once.
    static bool reports(SaveImageThread& thread)
    {
        QSignalSpy spy(&thread, &SaveImageThread::saveFinished);
        thread.start(QThread::InheritPriority);
        if (!thread.wait(20000) || spy.count() != 1) {
            QTest::qFail(qPrintable(QStringLiteral("%1 reports").arg(spy.count())), __FILE__, __LINE__);
            return false;
        }
        return spy.first().first().toBool();
    }

    bool saves(const QImage& image, const QString& path)
    {
        SaveImageThread thread(image, path);
        const bool saved = reports(thread);
        m_reason = thread.failedReason();
        return saved;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QImage m_image;
    QString m_reason; ///< of the last save
};

VD_TEST_MAIN(TestSaveImageThread)
#include "tst_saveimagethread.moc"
