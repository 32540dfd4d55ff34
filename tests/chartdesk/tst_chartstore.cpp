#include "chartfiles.h"
#include "chartstore.h"
#include "testcase.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <memory>

#include <sys/wait.h>
#include <unistd.h>

using namespace vardeno::testcharttools;
using namespace chartfiles;

/// The folder of charts: what joins it and what leaves it.
class TestChartStore : public TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString at(const QString& name) const { return m_folder->filePath(name); }

    /// As the editor saves it: an image alone.
    static QString stage(ChartStore& store, const QString& name, const QColor& color)
    {
        const QString image = store.nextSaveRoot() + QLatin1Char('/') + name;
        writePicture(image, color);
        return image;
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void aChartJoinsWhole()
    {
        ChartStore store(m_folder->path());
        const QString staged = stage(store, "20240101_120000/TestImage1.png", Qt::red);
        TestChartToolsData record;
        record.publicData.boxRow = 3;
        const auto published = store.publish(staged, record, {{"wall", "west"}}, {});
        QCOMPARE(published.problem, QString());
        QCOMPARE(published.image, at("20240101_120000/TestImage1.png"));
        QCOMPARE(QImage(published.image).pixelColor(0, 0), QColor(Qt::red));
        const auto reading = ChartRecordFile::read(at("20240101_120000/TestImage1.json"));
        QCOMPARE(reading.problems, QStringList());
        QCOMPARE(reading.record.publicData.boxRow, 3);
        QCOMPARE(reading.document.value("wall").toString(), QString("west"));
        QCOMPARE(tree(m_folder->path()), QStringList({"20240101_120000/", "20240101_120000/TestImage1.json",
                                                      "20240101_120000/TestImage1.png"}));
    }

    void chartsOfOneSecondAllStay()
    {
        ChartStore store(m_folder->path());
        ChartStore other(m_folder->path());
        QStringList images;
        for (ChartStore* saver : {&store, &other, &store}) {
            const QString staged = stage(*saver, "20240101_120000/TestImage1.png", Qt::blue);
            images.append(saver->publish(staged, {}, {}, {}).image);
        }
        QCOMPARE(images,
                 QStringList({at("20240101_120000/TestImage1.png"), at("20240101_120000-2/TestImage1.png"),
                              at("20240101_120000-3/TestImage1.png")}));
        for (const QString& image : qAsConst(images))
            QVERIFY(QFileInfo::exists(image) && QFileInfo::exists(ChartFolderList::recordPath(image)));
        QCOMPARE(ChartFolderList::charts(m_folder->path()).size(), 3);
    }

    void whatHasTheNameStays_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("a chart") << "chart";
        QTest::newRow("a folder with a note") << "note";
        QTest::newRow("a file") << "file";
        QTest::newRow("a link to a folder") << "link";
        QTest::newRow("a link to nowhere") << "dangling";
    }

    void whatHasTheNameStays()
    {
        QFETCH(QString, kind);
        const QString taken = at("20240101_120000");
        if (kind == QLatin1String("chart"))
            QVERIFY(writeChart(taken + "/TestImage1.png", Qt::green));
        else if (kind == QLatin1String("note"))
            QVERIFY(writeFile(taken + "/notes.txt", "mine"));
        else if (kind == QLatin1String("file"))
            QVERIFY(writeFile(taken, "mine"));
        else
            QVERIFY(QFile::link(kind == QLatin1String("link") ? QDir::tempPath() : at("none"), taken));
        const QStringList before = tree(m_folder->path());

        ChartStore store(m_folder->path());
        const QString staged = stage(store, "20240101_120000/TestImage1.png", Qt::red);
        QCOMPARE(store.publish(staged, {}, {}, {}).image, at("20240101_120000-2/TestImage1.png"));
        QStringList after = tree(m_folder->path());
        QCOMPARE(after.removeAll("20240101_120000-2/"), 1);
        QCOMPARE(after.removeAll("20240101_120000-2/TestImage1.png"), 1);
        QCOMPARE(after.removeAll("20240101_120000-2/TestImage1.json"), 1);
        QCOMPARE(after, before);
    }

    void thePictureLiesBesideTheChart()
    {
        const QTemporaryDir elsewhere;
        QVERIFY(writePicture(elsewhere.filePath("logo.png"), Qt::yellow));
        ChartStore store(m_folder->path());
        TestChartToolsData record;
        record.logoData.picturePath = elsewhere.filePath("logo.png").toStdString();
        const QString staged = stage(store, "20240101_120000/TestImage1.png", Qt::red);
        const QString image = store.publish(staged, record, {}, "pictures/logo.png").image;
        QCOMPARE(storedPicture(image), QString("pictures/logo.png"));
        QCOMPARE(QImage(at("20240101_120000/pictures/logo.png")).pixelColor(0, 0), QColor(Qt::yellow));

        QVERIFY(QDir().rename(at("20240101_120000"), at("20250101_120000"))); // as on another machine
        const auto moved = ChartRecordFile::read(at("20250101_120000/TestImage1.json"));
        QCOMPARE(QString::fromStdString(moved.record.logoData.picturePath),
                 at("20250101_120000/pictures/logo.png"));
    }

    void aMissingPictureKeepsItsName()
    {
        ChartStore store(m_folder->path());
        TestChartToolsData record;
        record.logoData.picturePath = "/none/logo.png";
        const QString staged = stage(store, "20240101_120000/TestImage1.png", Qt::red);
        const QString image = store.publish(staged, record, {}, "pictures/logo.png").image;
        QCOMPARE(storedPicture(image), QString("pictures/logo.png"));
    }

    void withoutItsRecordNothingJoins()
    {
        ChartStore store(m_folder->path());
        TestChartToolsData record;
        record.publicData.boxRow = -1;
        const QString staged = stage(store, "20240101_120000/TestImage1.png", Qt::red);
        const auto published = store.publish(staged, record, {}, {});
        QVERIFY(published.image.isEmpty());
        QVERIFY2(published.problem.contains("boxRow"), qPrintable(published.problem));
        QCOMPARE(ChartFolderList::charts(m_folder->path()).size(), 0);
    }

    /// An editor that is given an ending it does not know writes nothing, and calls it a success.
    void withoutItsImageNothingJoins()
    {
        ChartStore store(m_folder->path());
        const auto published = store.publish(store.nextSaveRoot() + "/20240101_120000/a.png", {}, {}, {});
        QVERIFY(published.image.isEmpty());
        QCOMPARE(published.problem, at("20240101_120000/a.png"));
    }

    void aStoreLeavesNothingUnfinished()
    {
        {
            ChartStore store(m_folder->path());
            stage(store, "20240101_120000/TestImage1.png", Qt::red);
            QVERIFY(!tree(m_folder->path()).isEmpty());
        }
        QCOMPARE(tree(m_folder->path()), QStringList());
    }

    void whatACrashLeftIsSwept()
    {
        ChartStore living(m_folder->path());
        stage(living, "20240101_120000/TestImage1.png", Qt::red);
        const pid_t process = fork();
        if (process == 0) {
            ChartStore dying(m_folder->path());
            stage(dying, "20240101_120000/TestImage1.png", Qt::red);
            _exit(0); // nothing of it is ended in order
        }
        QCOMPARE(waitpid(process, nullptr, 0), process);
        QVERIFY(QDir().mkpath(at(".chartdesk-0123456789ab-1-other/1"))); // of another machine
        const auto unfinished = [this] {
            return QDir(m_folder->path()).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot).size();
        };
        QCOMPARE(unfinished(), 3);
        const ChartStore next(m_folder->path());
        QCOMPARE(unfinished(), 2);
    }

    void onlyTheChartsOwnFilesGo_data()
    {
        QTest::addColumn<QString>("neighbour");
        QTest::addColumn<QStringList>("kept");
        const QString folder = QStringLiteral("20240101_120000/");
        QTest::newRow("alone") << "" << QStringList();
        QTest::newRow("another chart")
            << "chart" << QStringList({folder, folder + "b.json", folder + "b.png"});
        QTest::newRow("a note") << "note" << QStringList({folder, folder + "notes.txt"});
        QTest::newRow("a hidden file") << "hidden" << QStringList({folder, folder + ".keep"});
        QTest::newRow("an image of the same record")
            << "twin"
            << QStringList({folder, folder + "a.jpg", folder + "a.json", folder + "logos/",
                            folder + "logos/logo.png"});
        QTest::newRow("a chart with the same picture")
            << "sharing"
            << QStringList({folder, folder + "b.json", folder + "b.png", folder + "logos/",
                            folder + "logos/logo.png"});
        QTest::newRow("a record that cannot be read")
            << "damaged"
            << QStringList({folder, folder + "b.json", folder + "logos/", folder + "logos/logo.png"});
        QTest::newRow("another picture")
            << "picture" << QStringList({folder, folder + "logos/", folder + "logos/other.png"});
    }

    void onlyTheChartsOwnFilesGo()
    {
        QFETCH(QString, neighbour);
        QFETCH(QStringList, kept);
        const QString folder = at("20240101_120000");
        QVERIFY(writeChart(folder + "/a.png", Qt::red, "logos/logo.png"));
        QVERIFY(writePicture(folder + "/logos/logo.png", Qt::yellow));
        if (neighbour == QLatin1String("chart"))
            QVERIFY(writeChart(folder + "/b.png", Qt::blue));
        if (neighbour == QLatin1String("note"))
            QVERIFY(writeFile(folder + "/notes.txt", "mine"));
        if (neighbour == QLatin1String("hidden"))
            QVERIFY(writeFile(folder + "/.keep", ""));
        if (neighbour == QLatin1String("twin"))
            QVERIFY(writePicture(folder + "/a.jpg", Qt::red));
        if (neighbour == QLatin1String("sharing"))
            QVERIFY(writeChart(folder + "/b.png", Qt::blue, "logos/logo.png"));
        if (neighbour == QLatin1String("damaged"))
            QVERIFY(writeFile(folder + "/b.json", "{"));
        if (neighbour == QLatin1String("picture"))
            QVERIFY(writePicture(folder + "/logos/other.png", Qt::blue));
        removeChartFiles(folder + "/a.png");
        QCOMPARE(tree(m_folder->path()), kept);
    }

    void pictureThatIsNotTheCharts_data()
    {
        QTest::addColumn<QString>("picture");
        QTest::newRow("the image of another chart") << "20240101_120000/b.png";
        QTest::newRow("of another folder") << "20240101_120001/logo.png";
        QTest::newRow("beside the folders") << "logo.png";
    }

    void pictureThatIsNotTheCharts()
    {
        QFETCH(QString, picture);
        QVERIFY(writeChart(at("20240101_120000/b.png"), Qt::blue));
        QVERIFY(writePicture(at(picture), Qt::yellow));
        QVERIFY(writeChart(at("20240101_120000/a.png"), Qt::red,
                           QDir(at("20240101_120000")).relativeFilePath(at(picture))));
        removeChartFiles(at("20240101_120000/a.png"));
        QVERIFY(QFileInfo::exists(at(picture)));
        QVERIFY(!QFileInfo::exists(at("20240101_120000/a.png")));
        QVERIFY(!QFileInfo::exists(at("20240101_120000/a.json")));
    }

    void aDigestTellsOfAChange()
    {
        const QString image = at("20240101_120000/a.png");
        QCOMPARE(recordDigest(image), QByteArray());
        QVERIFY(writeChart(image, Qt::red));
        const QByteArray before = recordDigest(image);
        QVERIFY(!before.isEmpty());
        QCOMPARE(recordDigest(image), before);
        QVERIFY(writeChart(image, Qt::red, "logo.png"));
        QVERIFY(recordDigest(image) != before);
    }
};

VD_TEST_MAIN(TestChartStore)
#include "tst_chartstore.moc"
