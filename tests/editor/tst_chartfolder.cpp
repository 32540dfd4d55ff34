#include "editor/chartfolder.h"
#include "testcase.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryDir>

#include <memory>

#include <unistd.h>

using namespace vardeno::testcharttools;

/// Each test function works in a folder of its own, which is the home folder as well:
///     charts/20240101_120000/old.png  with a record and a sub-folder beside it: the replaced chart
///     charts/20240101_120001/new.png  the chart that replaces it
///     elsewhere/kept.png
class TestChartFolder : public TestCase
{
    Q_OBJECT

public:
    explicit TestChartFolder(const QString& zeroDigit)
        : m_zeroDigit(zeroDigit)
    {
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_home = qgetenv("HOME");
        QVERIFY(m_zeroDigit != QLatin1String("0"));
    }

    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
        qputenv("HOME", QFile::encodeName(at("home")));
        for (const char* name :
             {"home/note.txt", "charts/20240101_120000/old.png", "charts/20240101_120000/old.json",
              "charts/20240101_120000/.hidden", "charts/20240101_120000/more/part.png",
              "charts/20240101_120001/new.png", "elsewhere/kept.png"})
            touch(name);
    }

    void cleanup()
    {
        qputenv("HOME", m_home);
        m_folder.reset();
        TestCase::cleanup();
    }

    void nameIsTheSecond_data()
    {
        QTest::addColumn<QDateTime>("time");
        QTest::addColumn<QString>("expected");
        const QDate day(2024, 1, 31);
        QTest::newRow("afternoon") << QDateTime(day, QTime(15, 45, 2)) << "/charts/20240131_154502";
        QTest::newRow("every part with leading zeros")
            << QDateTime(QDate(987, 6, 5), QTime(4, 3, 2)) << "/charts/09870605_040302";
        QTest::newRow("midnight") << QDateTime(day, QTime(0, 0)) << "/charts/20240131_000000";
        QTest::newRow("last millisecond of a day")
            << QDateTime(day, QTime(23, 59, 59, 999)) << "/charts/20240131_235959";
        QTest::newRow("UTC stays UTC") << QDateTime(day, QTime(12, 0), Qt::UTC) << "/charts/20240131_120000";
    }

    void nameIsTheSecond()
    {
        QFETCH(QDateTime, time);
        QFETCH(QString, expected);
        QCOMPARE(chartFolder(QStringLiteral("/charts"), time), expected);
    }

    void filesOfAFolder()
    {
        const std::vector<QString> expected = {at("charts/20240101_120000/old.json"),
                                               at("charts/20240101_120000/old.png")};
        QCOMPARE(allFilePaths(at("charts/20240101_120000")), expected);
    }

    void noFiles_data()
    {
        QTest::addColumn<QString>("dir");
        QTest::newRow("only folders") << "charts";
        QTest::newRow("missing folder") << "none";
        QTest::newRow("a file") << "elsewhere/kept.png";
    }

    void noFiles()
    {
        QFETCH(QString, dir);
        QVERIFY(allFilePaths(at(dir)).empty());
    }

    void removesEverythingBesideTheChart()
    {
        QStringList expected = tree();
        for (const char* gone : {"charts/20240101_120000", "charts/20240101_120000/.hidden",
                                 "charts/20240101_120000/more", "charts/20240101_120000/more/part.png",
                                 "charts/20240101_120000/old.json", "charts/20240101_120000/old.png"})
            QCOMPARE(expected.removeAll(at(gone)), 1);
        remove("charts/20240101_120000/old.png", "charts/20240101_120001/new.png");
        QCOMPARE(tree(), expected);
        verifyLogged("testChartImage Folder Removed success:", at("charts/20240101_120000"));
    }

    void linksInTheFolderAreNotFollowed()
    {
        QVERIFY(QFile::link(at("elsewhere"), at("charts/20240101_120000/linked")));
        QVERIFY(QFile::link(at("home/note.txt"), at("charts/20240101_120000/linked.txt")));
        remove("charts/20240101_120000/old.png", "charts/20240101_120001/new.png");
        QVERIFY(!QFileInfo::exists(at("charts/20240101_120000")));
        QVERIFY(QFileInfo::exists(at("elsewhere/kept.png")));
        QVERIFY(QFileInfo::exists(at("home/note.txt")));
    }

    void removes_data()
    {
        QTest::addColumn<QString>("chart");
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<QString>("saveRoot");
        QTest::addColumn<QString>("gone");
        const QString chart = QStringLiteral("charts/20240101_120000/old.png");
        const QString replacement = QStringLiteral("charts/20240101_120001/new.png");
        const QString folder = QStringLiteral("charts/20240101_120000");
        QTest::newRow("beside the new one") << chart << replacement << "charts" << folder;
        QTest::newRow("another save root") << chart << replacement << "elsewhere" << folder;
        QTest::newRow("missing save root") << chart << replacement << "none" << folder;
        QTest::newRow("save root inside a folder of a similar name")
            << chart << replacement << "charts/20240101_1200001" << folder;
        QTest::newRow("new one in a folder whose name begins alike")
            << chart << "charts/20240101_120000b/new.png"
            << "charts" << folder;
        QTest::newRow("dots in the path")
            << "charts/./20240101_120001/../20240101_120000/old.png" << replacement << "charts" << folder;
        QTest::newRow("a sub-folder of the home folder") << "home/chart/old.png" << replacement << "charts"
                                                         << "home/chart";
    }

    void removes()
    {
        QFETCH(QString, chart);
        QFETCH(QString, replacement);
        QFETCH(QString, saveRoot);
        QFETCH(QString, gone);
        touch("home/chart/old.png");
        touch("charts/20240101_120000b/new.png");
        touch("charts/20240101_1200001/other.png");
        remove(chart, replacement, saveRoot);
        QVERIFY(!QFileInfo::exists(at(gone)));
        QVERIFY(QFileInfo::exists(at(replacement)));
        verifyLogged("testChartImage Folder Removed success:", at(gone));
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("chart");
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<QString>("saveRoot");
        QTest::addColumn<QString>("folder");
        const QString chart = QStringLiteral("charts/20240101_120000/old.png");
        const QString replacement = QStringLiteral("charts/20240101_120001/new.png");
        const QString folder = QStringLiteral("charts/20240101_120000");
        QTest::newRow("new chart missing") << chart << "charts/20240101_120001/none"
                                           << "charts" << folder;
        QTest::newRow("new chart is a folder") << chart << "charts/20240101_120001"
                                               << "charts" << folder;
        QTest::newRow("new chart without a path") << chart << ""
                                                  << "charts" << folder;
        QTest::newRow("new chart is a dangling link") << chart << "elsewhere/dangling.png"
                                                      << "charts" << folder;
        QTest::newRow("new chart in the folder") << chart << folder + "/new.png"
                                                 << "charts" << folder;
        QTest::newRow("new chart is the old one") << chart << chart << "charts" << folder;
        QTest::newRow("new chart further down") << chart << folder + "/more/part.png"
                                                << "charts" << folder;
        QTest::newRow("new chart in the folder, with dots")
            << chart << "charts/20240101_120001/../20240101_120000/new.png"
            << "charts" << folder;
        QTest::newRow("new chart in the folder, through a link") << chart << "elsewhere/link/new.png"
                                                                 << "charts" << folder;
        QTest::newRow("new chart is a link into the folder") << chart << "elsewhere/linked.png"
                                                             << "charts" << folder;
        QTest::newRow("symbolic link to a folder") << "elsewhere/link/old.png" << replacement << "charts"
                                                   << "elsewhere/link";
        QTest::newRow("save root") << "charts/old.png"
                                   << "elsewhere/kept.png"
                                   << "charts"
                                   << "charts";
        QTest::newRow("save root with a slash") << "charts/old.png"
                                                << "elsewhere/kept.png"
                                                << "charts/"
                                                << "charts";
        QTest::newRow("save root through a link") << "charts/old.png"
                                                  << "elsewhere/kept.png"
                                                  << "elsewhere/root"
                                                  << "charts";
        QTest::newRow("ancestor of the save root") << "charts/old.png"
                                                   << "elsewhere/kept.png"
                                                   << "charts/20240101_120000/more"
                                                   << "charts";
        QTest::newRow("home folder") << "home/note.txt" << replacement << "charts"
                                     << "home";
        QTest::newRow("ancestor of the home folder")
            << "old.png" << QCoreApplication::applicationFilePath() << QDir::tempPath() << "";
    }

    void refuses()
    {
        QFETCH(QString, chart);
        QFETCH(QString, replacement);
        QFETCH(QString, saveRoot);
        QFETCH(QString, folder);
        addRefusedCharts();
        const QStringList before = tree();
        remove(chart, replacement, saveRoot);
        QCOMPARE(tree(), before);
        verifyLogged("testChartImage Folder Removed Failed:", at(folder));
    }

    void refusesFileSystemRoots_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("root") << "/";
        QTest::newRow("root with dots") << "/usr/..";
        QStringList mountPoints = {QStringLiteral("/proc"), QStringLiteral("/dev/shm")};
        const QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
        for (const QStorageInfo& volume : volumes) {
            if (!volume.isRoot())
                mountPoints.append(volume.rootPath());
        }
        mountPoints.removeDuplicates();
        for (const QString& path : qAsConst(mountPoints)) {
            if (QFileInfo(path).isDir() && QStorageInfo(path).rootPath() == path)
                QTest::newRow(qPrintable(QStringLiteral("mounted at ") + path)) << path;
        }
    }

    /// Asks only: nothing is removed, whatever the answer.
    void refusesFileSystemRoots()
    {
        QFETCH(QString, folder);
        QVERIFY(!mayRemoveChartFolder(folder, at("charts/20240101_120001/new.png"), at("none")));
    }

    void onlyAFolderMayBeRemoved_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("folder of a chart") << "charts/20240101_120000" << true;
        QTest::newRow("missing folder") << "charts/20240101_120009" << false;
        QTest::newRow("file") << "charts/20240101_120000/old.png" << false;
        QTest::newRow("link") << "elsewhere/link" << false;
        QTest::newRow("link with a slash") << "elsewhere/link/" << false;
    }

    void onlyAFolderMayBeRemoved()
    {
        QFETCH(QString, folder);
        QFETCH(bool, allowed);
        addRefusedCharts();
        QCOMPARE(mayRemoveChartFolder(at(folder), at("charts/20240101_120001/new.png"), at("charts")),
                 allowed);
    }

    /// "charts/way/.." reads as "charts", but is the folder that the link leads into.
    void aWayThroughALinkRemovesNothing()
    {
        QVERIFY(QDir().mkpath(at("far/20240101_120000/inner")));
        touch("far/20240101_120000/old.png");
        QVERIFY(QFile::link(at("far/20240101_120000/inner"), at("charts/20240101_120000/way")));
        removeChartFolder(at("charts/20240101_120000/way/../old.png"), at("charts/20240101_120001/new.png"),
                          at("charts"));
        QCOMPARE(log().messages(QStringLiteral("testChartImage Folder Removed Failed:")).size(), 1);
        QVERIFY(QFileInfo::exists(at("charts/20240101_120000/old.png")));
        QVERIFY(QFileInfo::exists(at("far/20240101_120000/old.png")));
    }

    void missingChartIsOnlyLogged_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing file") << "charts/20240101_120000/none.png";
        QTest::newRow("missing folder") << "charts/none/old.png";
        QTest::newRow("folder") << "charts/20240101_120000";
        QTest::newRow("nothing at all") << "";
        QTest::newRow("single space, as at first") << " ";
    }

    void missingChartIsOnlyLogged()
    {
        QFETCH(QString, path);
        const QString full = path.trimmed().isEmpty() ? path : at(path);
        const QStringList before = tree();
        removeChartFolder(full, at("charts/20240101_120001/new.png"), at("charts"));
        QCOMPARE(tree(), before);
        verifyLogged("testChartImage does not exist:", full);
    }

    void folderThatCannotBeRemovedIsLogged()
    {
        const QString folder = at("charts/20240101_120000");
        const QStringList before = tree();
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
        QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x5555)));
        QVERIFY(QFile::setPermissions(folder + QStringLiteral("/more"), QFile::Permissions(0x5555)));
        const bool isRoot = geteuid() == 0;
        if (isRoot)
            QCOMPARE(seteuid(65534), 0); // for the super-user, permissions are no obstacle
        remove("charts/20240101_120000/old.png", "charts/20240101_120001/new.png");
        if (isRoot)
            QCOMPARE(seteuid(0), 0);
        QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x7755)));
        QVERIFY(QFile::setPermissions(folder + QStringLiteral("/more"), QFile::Permissions(0x7755)));
        QCOMPARE(tree(), before);
        verifyLogged("testChartImage Folder Removed Failed:", folder);
    }

private:
    QString at(const QString& name) const { return QDir(m_folder->path()).filePath(name); }
    QString at(const char* name) const { return at(QString::fromLatin1(name)); }

    void touch(const char* name) const
    {
        const QString path = at(name);
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(name);
    }

    void addRefusedCharts() const
    {
        touch("charts/20240101_120000/new.png");
        touch("charts/old.png");
        touch("old.png");
        QVERIFY(QFile::link(at("charts/20240101_120000"), at("elsewhere/link")));
        QVERIFY(QFile::link(at("charts/20240101_120000/new.png"), at("elsewhere/linked.png")));
        QVERIFY(QFile::link(at("charts/none.png"), at("elsewhere/dangling.png")));
        QVERIFY(QFile::link(at("charts"), at("elsewhere/root")));
    }

    /// With names in the test's folder, or absolute ones; the replacement may be empty.
    void remove(const QString& chart, const QString& replacement,
                const QString& saveRoot = QStringLiteral("charts")) const
    {
        removeChartFolder(at(chart), replacement.isEmpty() ? QString() : at(replacement), at(saveRoot));
    }

    /// Everything on disk, in order.
    QStringList tree() const
    {
        QStringList paths;
        QDirIterator entries(m_folder->path(),
                             QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext())
            paths.append(entries.next());
        paths.sort();
        return paths;
    }

    /// One line, of the function's name, `text` and the path.
    void verifyLogged(const char* text, const QString& path) const
    {
        QCOMPARE(log().messages().size(), 1);
        const QString line = log().messages().first();
        const QString end = QStringLiteral("%1 \"%2\"").arg(QLatin1String(text), path);
        QVERIFY2(line.contains(QLatin1String("removeChartFolder(")) && line.endsWith(end), qPrintable(line));
    }

    QString m_zeroDigit; ///< of the system
    QByteArray m_home;
    std::unique_ptr<QTemporaryDir> m_folder;
};

int main(int argc, char** argv)
{
    // A system with digits of its own, which no folder's name has; the toolkit asks for it once.
    qputenv("LC_ALL", "fa_IR.UTF-8");
    const QString zero(QLocale::system().zeroDigit());
    prepareTestProcess();
    QApplication application(argc, argv);
    prepareTestApplication();
    TestChartFolder testCase(zero);
    return QTest::qExec(&testCase, argc, argv);
}

#include "tst_chartfolder.moc"
