#include "chartdetails.h"
#include "chartfiles.h"
#include "chartshelf.h"
#include "charttags.h"
#include "languages.h"
#include "testcase.h"

#include <QTemporaryDir>

using namespace chartfiles;
using namespace vardeno::testcharttools;

/// What one can do with the files of a chart.
class TestChartShelf : public TestCase
{
    Q_OBJECT

private:
    QScopedPointer<QTemporaryDir> m_folder;
    QString m_image;

    QString path(const QString& name) const { return m_folder->filePath(name); }

private Q_SLOTS:
    void initTestCase() { chooseLanguage(QStringLiteral("en")); }
    void cleanupTestCase() { TranslateManager1::instance().switchLanguage(QString()); }

    void init()
    {
        TestCase::init();
        m_folder.reset(new QTemporaryDir);
        m_image = path(QStringLiteral("20260102_030405/wall.png"));
        QVERIFY(writeChart(m_image, Qt::red, QStringLiteral("pictures/logo.png")));
        QVERIFY(writePicture(path(QStringLiteral("20260102_030405/pictures/logo.png")), Qt::blue));
        QCOMPARE(ChartTags::set(m_image, {QStringLiteral("stage")}), QString());
    }

    void aDuplicateIsWholeAndAnother()
    {
        const auto first = ChartShelf::duplicate(m_folder->path(), m_image);
        QCOMPARE(first.problem, QString());
        QCOMPARE(QFileInfo(first.image).fileName(), QStringLiteral("wall 2.png"));
        QCOMPARE(readFile(first.image), readFile(m_image));
        QCOMPARE(ChartTags::of(first.image), QStringList{QStringLiteral("stage")});
        QCOMPARE(storedPicture(first.image), QStringLiteral("pictures/logo.png"));
        QVERIFY(QFileInfo::exists(QFileInfo(first.image).path() + QStringLiteral("/pictures/logo.png")));
        const auto second = ChartShelf::duplicate(m_folder->path(), first.image);
        QCOMPARE(QFileInfo(second.image).fileName(), QStringLiteral("wall 3.png"));
        QCOMPARE(ChartFolderList::charts(m_folder->path()).size(), 3);
        QVERIFY(QDir(m_folder->path())
                    .entryList({QStringLiteral(".*")}, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)
                    .isEmpty());
    }

    void aDuplicateOfAPictureHasNoRecord()
    {
        QVERIFY(QFile::remove(ChartFolderList::recordPath(m_image)));
        const auto copy = ChartShelf::duplicate(m_folder->path(), m_image);
        QVERIFY(QFileInfo::exists(copy.image));
        QVERIFY(!QFileInfo::exists(ChartFolderList::recordPath(copy.image)));
    }

    void aChartThatIsGoneHasNoDuplicate()
    {
        const auto copy = ChartShelf::duplicate(m_folder->path(), path(QStringLiteral("none.png")));
        QCOMPARE(copy.image, QString());
        QVERIFY(!copy.problem.isEmpty());
    }

    void anotherName()
    {
        const auto renamed = ChartShelf::rename(m_image, QStringLiteral("left wing 1.2"));
        QCOMPARE(renamed.image, path(QStringLiteral("20260102_030405/left wing 1.2.png")));
        QCOMPARE(tree(m_folder->path()),
                 (QStringList{"20260102_030405/", "20260102_030405/left wing 1.2.json",
                              "20260102_030405/left wing 1.2.png", "20260102_030405/pictures/",
                              "20260102_030405/pictures/logo.png", "20260102_030405/tags.txt"}));
        QCOMPARE(ChartShelf::rename(renamed.image, QStringLiteral("left wing 1.2")).image, renamed.image);
    }

    void namesThatCannotBe_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"", " ", "a/b", "..", ".hidden", "a\\b", "a:b", "why?", "a\nb"})
            QTest::newRow(name) << QString::fromLatin1(name);
        QTest::newRow("another chart's") << QStringLiteral("other");
        QTest::newRow("that of a record") << QStringLiteral("record");
    }

    void namesThatCannotBe()
    {
        QFETCH(QString, name);
        QVERIFY(writePicture(path(QStringLiteral("20260102_030405/other.png")), Qt::green));
        QVERIFY(writeFile(path(QStringLiteral("20260102_030405/record.json")), "{}"));
        const QStringList before = tree(m_folder->path());
        const auto renamed = ChartShelf::rename(m_image, name);
        QCOMPARE(renamed.image, QString());
        QVERIFY(!renamed.problem.isEmpty());
        QCOMPARE(tree(m_folder->path()), before);
    }

    void aDroppedRecordBecomesItsChart()
    {
        const QTemporaryDir elsewhere;
        TestChartToolsData record;
        record.publicData.resolutionWidth = 320;
        record.publicData.resolutionHeight = 180;
        const QString file = elsewhere.filePath(QStringLiteral("show.json"));
        QVERIFY(writeFile(file, ChartRecordFile::toJson(record)));
        const auto taken = ChartShelf::take(m_folder->path(), file, ChartCaptions::current());
        QCOMPARE(taken.problem, QString());
        QCOMPARE(QFileInfo(taken.image).fileName(), QStringLiteral("show.png"));
        VD_COMPARE_IMAGES(QImage(taken.image), ChartPicture(record, ChartCaptions::current()).image());
        QCOMPARE(ChartRecordFile::read(ChartFolderList::recordPath(taken.image)).record, record);
        QVERIFY(QFileInfo::exists(file));
    }

    void aDroppedPictureStaysAPicture()
    {
        const QTemporaryDir elsewhere;
        const QString file = elsewhere.filePath(QStringLiteral("photo.bmp"));
        QVERIFY(writePicture(file, Qt::yellow));
        const auto taken = ChartShelf::take(m_folder->path(), file, {});
        QCOMPARE(QFileInfo(taken.image).fileName(), QStringLiteral("photo.bmp"));
        QVERIFY(!QFileInfo::exists(ChartFolderList::recordPath(taken.image)));
    }

    void whatIsNoChartIsNotTaken_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("text") << "notes.txt";
        QTest::newRow("broken record") << "broken.json";
        QTest::newRow("missing") << "missing.png";
    }

    void whatIsNoChartIsNotTaken()
    {
        QFETCH(QString, name);
        const QTemporaryDir elsewhere;
        if (name != QLatin1String("missing.png"))
            QVERIFY(writeFile(elsewhere.filePath(name), "no chart"));
        const QStringList before = tree(m_folder->path());
        const auto taken = ChartShelf::take(m_folder->path(), elsewhere.filePath(name), {});
        QCOMPARE(taken.image, QString());
        QVERIFY(!taken.problem.isEmpty());
        QCOMPARE(tree(m_folder->path()), before);
    }

    void exports_data()
    {
        QTest::addColumn<QString>("ending");
        QTest::addColumn<QByteArray>("begin");
        QTest::newRow("png") << "png" << QByteArray("\x89PNG");
        QTest::newRow("jpg") << "jpg" << QByteArray("\xff\xd8");
        QTest::newRow("bmp") << "bmp" << QByteArray("BM");
        QTest::newRow("record") << "json" << QByteArray("{");
    }

    void exports()
    {
        QFETCH(QString, ending);
        QFETCH(QByteArray, begin);
        const QTemporaryDir elsewhere;
        const QString target = elsewhere.filePath(QStringLiteral("out.") + ending);
        QCOMPARE(ChartShelf::exportTo(m_image, target), QString());
        QVERIFY(readFile(target).startsWith(begin));
    }

    void exportsThatCannotBe()
    {
        QVERIFY(!ChartShelf::exportTo(m_image, QStringLiteral("/dev/null/a.png")).isEmpty());
        QVERIFY(
            !ChartShelf::exportTo(path(QStringLiteral("none.png")), path(QStringLiteral("a.jpg"))).isEmpty());
        QVERIFY(!ChartShelf::exportTo(path(QStringLiteral("none.png")), path(QStringLiteral("a.json")))
                     .isEmpty());
    }

    void aDeletedChartComesBack()
    {
        const QStringList before = tree(m_folder->path());
        DeletedChart deleted(m_image);
        QVERIFY(deleted.isDeleted());
        QVERIFY(ChartFolderList::charts(m_folder->path()).isEmpty());
        QCOMPARE(deleted.restore(), m_image);
        QCOMPARE(tree(m_folder->path()), before);
    }

    void aDeletedChartIsGoneInTheEnd()
    {
        {
            const DeletedChart deleted(m_image);
        }
        QCOMPARE(tree(m_folder->path()), QStringList());
    }

    void itsPlaceMayBeTaken()
    {
        DeletedChart deleted(m_image);
        QVERIFY(writePicture(m_image, Qt::green));
        QCOMPARE(deleted.restore(), QString());
        QCOMPARE(QImage(m_image).pixelColor(0, 0), QColor(Qt::green));
    }

    /// Its folder holds another one.
    void aNeighbourStays()
    {
        const QString other = path(QStringLiteral("20260102_030405/other.png"));
        QVERIFY(writeChart(other, Qt::green));
        const QStringList before = tree(m_folder->path());
        {
            DeletedChart deleted(m_image);
            QVERIFY(deleted.isDeleted());
            QVERIFY(!QFileInfo::exists(m_image));
            QVERIFY(QFileInfo::exists(other));
            QCOMPARE(deleted.restore(), m_image);
        }
        QCOMPARE(tree(m_folder->path()), before);
    }

    void tags()
    {
        QCOMPARE(ChartTags::fromText(QStringLiteral(" a , left wing,,a\nb ")),
                 (QStringList{"a", "left wing", "b"}));
        QCOMPARE(ChartTags::set(m_image, {QStringLiteral("ä"), QStringLiteral("x y")}), QString());
        QCOMPARE(ChartTags::of(m_image), (QStringList{QStringLiteral("ä"), QStringLiteral("x y")}));
        QCOMPARE(ChartTags::set(m_image, {}), QString());
        QVERIFY(!QFileInfo::exists(path(QStringLiteral("20260102_030405/tags.txt"))));
        QVERIFY(!ChartTags::set(QStringLiteral("/dev/null/x.png"), {QStringLiteral("a")}).isEmpty());
    }

    void details()
    {
        QCOMPARE(ChartDetails::read(m_image).text(), QStringLiteral("16 x 9, 16 x 9"));
        QVERIFY(QFile::remove(ChartFolderList::recordPath(m_image)));
        QCOMPARE(ChartDetails::read(m_image).text(), QStringLiteral("16 x 9"));
        QCOMPARE(ChartDetails::read(path(QStringLiteral("none.png"))).text(), QString());
    }
};

VD_TEST_MAIN(TestChartShelf)
#include "tst_chartshelf.moc"
