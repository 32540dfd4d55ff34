#include "chartfiles.h"
#include "obstacle.h"
#include "testcase.h"

#include <QTemporaryDir>

#include <cerrno>

#include <unistd.h>

/// Why a folder takes no chart.
class TestObstacle : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void errorsOfTheSystem_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("obstacle");
        QTest::newRow("none") << 0 << int(Obstacle::None);
        QTest::newRow("EACCES") << EACCES << int(Obstacle::NoPermission);
        QTest::newRow("EPERM") << EPERM << int(Obstacle::NoPermission);
        QTest::newRow("EROFS") << EROFS << int(Obstacle::ReadOnly);
        QTest::newRow("ENOSPC") << ENOSPC << int(Obstacle::NoSpace);
        QTest::newRow("EDQUOT") << EDQUOT << int(Obstacle::NoSpace);
        QTest::newRow("EFBIG") << EFBIG << int(Obstacle::NoSpace);
        QTest::newRow("ENOTDIR") << ENOTDIR << int(Obstacle::NotAFolder);
        QTest::newRow("EEXIST") << EEXIST << int(Obstacle::NotAFolder);
        QTest::newRow("ENOENT") << ENOENT << int(Obstacle::Gone);
        QTest::newRow("EIO") << EIO << int(Obstacle::Other);
    }

    void errorsOfTheSystem()
    {
        QFETCH(int, error);
        QFETCH(int, obstacle);
        QCOMPARE(int(obstacleOf(error)), obstacle);
    }

    void noneWhereAChartCanBeWritten()
    {
        const QTemporaryDir folder;
        QCOMPARE(int(obstacleIn(folder.path())), int(Obstacle::None));
        QCOMPARE(int(obstacleIn(folder.filePath("new/one"))), int(Obstacle::None));
        QCOMPARE(chartfiles::tree(folder.path()), QStringList()); // the trial leaves nothing
    }

    void aFileInTheWay()
    {
        const QTemporaryDir folder;
        QVERIFY(chartfiles::writeFile(folder.filePath("charts"), "x"));
        QCOMPARE(int(obstacleIn(folder.filePath("charts"))), int(Obstacle::NotAFolder));
        QCOMPARE(int(obstacleIn(folder.filePath("charts/2024"))), int(Obstacle::NotAFolder));
    }

    void noPermission()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("charts"));
        QVERIFY(QFile::setPermissions(folder.filePath("charts"), QFile::Permissions(0x5555)));
        QVERIFY(QFile::setPermissions(folder.path(), QFile::Permissions(0x5555)));
        const bool isRoot = geteuid() == 0;
        if (isRoot)
            QCOMPARE(seteuid(65534), 0); // for the super-user, permissions are no obstacle
        const Obstacle present = obstacleIn(folder.filePath("charts"));
        const Obstacle missing = obstacleIn(folder.filePath("gone"));
        if (isRoot)
            QCOMPARE(seteuid(0), 0);
        QVERIFY(QFile::setPermissions(folder.path(), QFile::Permissions(0x7755)));
        QVERIFY(QFile::setPermissions(folder.filePath("charts"), QFile::Permissions(0x7755)));
        QCOMPARE(int(present), int(Obstacle::NoPermission));
        QCOMPARE(int(missing), int(Obstacle::NoPermission));
    }

    void everyObstacleHasASentence()
    {
        QStringList sentences;
        for (const Obstacle obstacle : {Obstacle::NoPermission, Obstacle::ReadOnly, Obstacle::NoSpace,
                                        Obstacle::NotAFolder, Obstacle::Gone}) {
            const QString sentence = obstacleText(obstacle, QStringLiteral("/charts"));
            QVERIFY2(sentence.contains("/charts"), qPrintable(sentence));
            sentences.append(sentence);
        }
        QCOMPARE(sentences.removeDuplicates(), 0);
        QCOMPARE(obstacleText(Obstacle::None, QStringLiteral("/charts")), QString());
        QCOMPARE(obstacleText(Obstacle::Other, QStringLiteral("/charts")), QString());
    }
};

VD_TEST_MAIN(TestObstacle)
#include "tst_obstacle.moc"
