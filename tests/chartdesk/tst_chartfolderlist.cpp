#include "chartfiles.h"
#include "hosttext.h"
#include "testcase.h"

#include <QTemporaryDir>

using namespace chartfiles;

/// What counts as a chart, and what the next one is called.
class TestChartFolderList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newestFirst()
    {
        const QTemporaryDir folder;
        const QStringList names = {"20240101_120000/a.png",    "20240101_120000-2/a.png",
                                   "20240101_120000-10/a.png", "20240101_120001/a.JPG",
                                   "20240101_120001/b.bmp",    "2024/a.png",
                                   "20240101_120000x/a.png",   "20240101_120002/pictures/logo.png",
                                   "20240101_120003/notes.txt"};
        for (const QString& name : names)
            QVERIFY(writeFile(folder.filePath(name), "x"));
        QStringList found;
        const QFileInfoList charts = ChartFolderList::charts(folder.path());
        for (const QFileInfo& chart : charts)
            found.append(QDir(folder.path()).relativeFilePath(chart.filePath()));
        QCOMPARE(found,
                 QStringList({"20240101_120001/a.JPG", "20240101_120001/b.bmp", "20240101_120000-10/a.png",
                              "20240101_120000-2/a.png", "20240101_120000/a.png"}));
    }

    void theFolderSaysWhen_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QDateTime>("saved");
        const QDateTime noon(QDate(2024, 1, 31), QTime(12, 0, 5));
        QTest::newRow("one of its second") << "/charts/20240131_120005/a.png" << noon;
        QTest::newRow("a later one") << "/charts/20240131_120005-2/a.png" << noon;
        QTest::newRow("no such day") << "/charts/20240231_120005/a.png" << QDateTime();
    }

    void theFolderSaysWhen()
    {
        QFETCH(QString, path);
        QFETCH(QDateTime, saved);
        QCOMPARE(ChartFolderList::savedAt(path), saved);
    }

    void nextNumber_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<int>("number");
        QTest::newRow("none") << QStringList() << 1;
        QTest::newRow("the desk's own") << QStringList({"TestImage7", "TestImage10"}) << 11;
        QTest::newRow("in another language") << QStringList({"Testbild4"}) << 5;
        QTest::newRow("a version") << QStringList({"Stage left v1.2"}) << 1;
        QTest::newRow("a year") << QStringList({"wall2024"}) << 1;
        QTest::newRow("more than a name and a number") << QStringList({"TestImage7b", "My TestImage8"}) << 1;
        QTest::newRow("too long a number") << QStringList({"TestImage123456789"}) << 1;
        QTest::newRow("the name alone") << QStringList({"TestImage"}) << 1;
    }

    void nextNumber()
    {
        QFETCH(QStringList, names);
        QFETCH(int, number);
        const QTemporaryDir folder;
        for (const QString& name : qAsConst(names))
            QVERIFY(writeFile(folder.filePath("20240101_120000/" + name + ".png"), "x"));
        QCOMPARE(ChartFolderList::nextNumber(folder.path(), chartNames()), number);
    }
};

VD_TEST_MAIN(TestChartFolderList)
#include "tst_chartfolderlist.moc"
