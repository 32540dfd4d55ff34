#include "charttool.h"

#include <QDateTime>
#include <QImageReader>
#include <QTemporaryDir>

using namespace charttool;

namespace {

const auto folderFormat = QStringLiteral("yyyyMMdd_HHmmss");

QString folderOf(const QString& path)
{
    return QFileInfo(path).absolutePath();
}

QDateTime withoutMilliseconds(const QDateTime& time)
{
    return QDateTime::fromString(time.toString(folderFormat), folderFormat);
}

QStringList replacementLog(const QString& chart, const QString& replaced)
{
    return {"testChartImage Folder Generated success: " + quoted(chart),
            "testChartImage Folder Add to Timer : " + quoted(replaced),
            "QTimer Start for: " + quoted(replaced) + " in 2 seconds"};
}

QStringList removalLog(const QString& outcome, const QString& subject, const QString& replaced)
{
    return {outcome + QLatin1Char(' ') + quoted(subject), "Delete timer completed for: " + quoted(replaced)};
}

} // namespace

class TestSaveChart : public TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<VTestChartTools> m_tool;
    std::unique_ptr<Host> m_host;
    QByteArray m_home;

    QString inFolder(const QString& name) const { return m_folder->filePath(name); }
    QString root() const { return inFolder(QStringLiteral("root")); }
    QString oldChart() const { return inFolder(QStringLiteral("root/20200101_000000/chart.png")); }

    QStringList chartFolders() const { return QDir(root()).entryList({QStringLiteral("2*")}, QDir::Dirs); }

    /// Replaces `replaced` by the chart that is shown.
    void replace(const QString& replaced)
    {
        const std::size_t heard = m_host->messages.size();
        m_tool->setLastSavePath(replaced);
        m_tool->slotReplaceApplyButtonClicked();
        QVERIFY(m_host->hears(heard + 2));
    }

    /// Lets the pending removals happen now; the two seconds have a test of their own.
    bool removeNow(int pending)
    {
        const QList<QTimer*> timers = deletionTimers(*m_tool);
        for (QTimer* timer : timers)
            timer->setInterval(1);
        return timers.size() == pending && QTest::qWaitFor([&] {
                   return editLog(log().messages()).filter("Delete timer completed").size() >= pending;
               });
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support"));
        m_home = qgetenv("HOME");
        m_folder = std::make_unique<QTemporaryDir>();
        m_tool = std::make_unique<VTestChartTools>();
        m_host = std::make_unique<Host>(*m_tool);
        m_tool->setTestChartToolsData(smallRecord());
        m_tool->setSavePath(root(), QStringLiteral("preview"));
        m_tool->setCurrentEditNum(QStringLiteral("chart.png"));
        QVERIFY(writeFile(oldChart(), "old"));
        log().clear();
    }

    void cleanup()
    {
        m_host.reset();
        m_tool.reset();
        m_folder.reset();
        qputenv("HOME", m_home);
        TestCase::cleanup();
    }

    void addedChartIsNamedByTimeAndNumber()
    {
        m_tool->setTestImageNum(7);
        const QDateTime before = withoutMilliseconds(QDateTime::currentDateTime());
        m_tool->slotAddConfirmButtonClicked();
        const QDateTime after = QDateTime::currentDateTime();
        QVERIFY(m_host->hears(2));

        const QFileInfo chart(m_host->last().path);
        QCOMPARE(chart.fileName(), QStringLiteral("TestImage7.png"));
        const QString folder = chart.absoluteDir().dirName();
        QCOMPARE(chart.filePath(), root() + QLatin1Char('/') + folder + QLatin1String("/TestImage7.png"));
        QVERIFY(QRegularExpression(QStringLiteral("^\\d{8}_\\d{6}$")).match(folder).hasMatch());
        const QDateTime saved = QDateTime::fromString(folder, folderFormat);
        QVERIFY(saved >= before && saved <= after);
        QCOMPARE(QDir(chart.absolutePath()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList("TestImage7.png"));
        QCOMPARE(QImageReader(chart.filePath()).format(), QByteArray("png"));
    }

    void numbers_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("name");
        QTest::newRow("0") << 0 << "TestImage0.png";
        QTest::newRow("one digit, not padded") << 7 << "TestImage7.png";
        QTest::newRow("many digits") << 1234567 << "TestImage1234567.png";
        QTest::newRow("negative") << -3 << "TestImage-3.png";
    }

    void numbers()
    {
        QFETCH(int, number);
        QFETCH(QString, name);
        m_tool->setTestImageNum(number);
        m_tool->slotAddConfirmButtonClicked();
        QVERIFY(m_host->hears(2));
        QCOMPARE(QFileInfo(m_host->last().path).fileName(), name);
        QVERIFY(QFile::exists(m_host->last().path));
    }

    void missingParentsOfTheRootAreMade()
    {
        m_tool->setSavePath(inFolder(QStringLiteral("a/b/c d/é")), QString());
        m_tool->slotAddConfirmButtonClicked();
        QVERIFY(m_host->hears(2));
        QVERIFY(m_host->last().path.startsWith(inFolder(QStringLiteral("a/b/c d/é/"))));
        VD_COMPARE_IMAGES(QImage(m_host->last().path), expectedChart(smallRecord()));
    }

    void pathsStartAsASpace()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder->path()));
        VTestChartTools tool;
        Host host(tool);
        tool.setTestChartToolsData(smallRecord());
        tool.slotAddConfirmButtonClicked();
        const bool added = host.hears(2);
        tool.updateShowSaveBtnStatus(true);
        tool.slotReplaceApplyButtonClicked();
        const bool replaced = host.hears(4);
        const bool exists = QFile::exists(host.messages.at(1).path);
        QDir::setCurrent(before);
        QVERIFY(added && replaced && exists);
        QVERIFY(QRegularExpression(QStringLiteral("^ /\\d{8}_\\d{6}/TestImage0\\.png$"))
                    .match(host.messages.at(1).path)
                    .hasMatch());
        QVERIFY(QRegularExpression(QStringLiteral("^ /\\d{8}_\\d{6}/ $")).match(host.last().path).hasMatch());
        QVERIFY(editLog(log().messages()).contains("testChartImage Folder Add to Timer : \" \""));
    }

    void chessPixels()
    {
        TestChartToolsData record = bareRecord();
        m_tool->setTestChartToolsData(record);
        m_tool->slotAddConfirmButtonClicked();
        QVERIFY(m_host->hears(2));
        const QImage chart(m_host->last().path);
        QCOMPARE(chart.size(), QSize(1920, 1080));
        QVERIFY(!chart.hasAlphaChannel());
        const QRgb odd = qRgb(255, 170, 255);
        const QRgb even = qRgb(85, 170, 255);
        const QRgb white = qRgb(255, 255, 255);
        QCOMPARE(chart.pixel(60, 60), odd);
        QCOMPARE(chart.pixel(119, 60), odd);
        QCOMPARE(chart.pixel(120, 60), even);
        QCOMPARE(chart.pixel(60, 120), even);
        QCOMPARE(chart.pixel(180, 180), odd);
        QCOMPARE(chart.pixel(1860, 60), even);
        QCOMPARE(chart.pixel(60, 1020), odd);
        for (const QPoint& corner : {QPoint(0, 0), QPoint(1919, 0), QPoint(0, 1079), QPoint(1919, 1079)})
            QCOMPARE(chart.pixel(corner), white);
        QCOMPARE(chart.pixel(1, 1), white);
        QCOMPARE(chart.pixel(2, 2), odd);
        QCOMPARE(chart.pixel(1918, 1078), white);
        QCOMPARE(chart.pixel(1917, 1077), even);
        VD_COMPARE_IMAGES(chart, expectedChart(record));
    }

    void layers_data()
    {
        QTest::addColumn<int>("brightness");
        QTest::addColumn<int>("border");
        QTest::addColumn<QRgb>("odd");
        QTest::addColumn<QRgb>("even");
        QTest::newRow("full brightness") << 100 << 2 << qRgb(255, 170, 255) << qRgb(85, 170, 255);
        QTest::newRow("half, alpha 128") << 50 << 6 << qRgb(127, 85, 127) << qRgb(42, 85, 127);
        QTest::newRow("dark, the border stays") << 0 << 10 << qRgb(0, 0, 0) << qRgb(0, 0, 0);
        QTest::newRow("no border") << 50 << 0 << qRgb(127, 85, 127) << qRgb(42, 85, 127);
        QTest::newRow("border of one pixel") << 100 << 1 << qRgb(255, 170, 255) << qRgb(85, 170, 255);
    }

    void layers()
    {
        QFETCH(int, brightness);
        QFETCH(int, border);
        QFETCH(QRgb, odd);
        QFETCH(QRgb, even);
        TestChartToolsData record = bareRecord();
        record.publicData.resolutionWidth = 640;
        record.publicData.resolutionHeight = 360;
        record.publicData.brightness = brightness;
        record.publicData.showOutBorder = border > 0;
        record.publicData.outBorderWidth = std::max(border, 1);
        record.publicData.outBorderColor = {200, 100, 50, 255};
        m_tool->setTestChartToolsData(record);
        m_tool->slotAddConfirmButtonClicked();
        QVERIFY(m_host->hears(2));
        const QImage chart(m_host->last().path);
        QCOMPARE(chart.size(), QSize(640, 360));
        QCOMPARE(chart.pixel(20, 20), odd);
        QCOMPARE(chart.pixel(60, 20), even);
        QCOMPARE(chart.pixel(0, 0), border > 0 ? qRgb(200, 100, 50) : odd);
        VD_COMPARE_IMAGES(chart, expectedChart(record));
    }

    void uncoveredPixelsAreBlack()
    {
        TestChartToolsData record = smallRecord();
        record.basicData.chessChecked = false;
        record.basicData.colorBarChecked = true;
        record.basicData.colorStripeColors = {{0, Qt::red}, {1, Qt::green}, {2, Qt::blue}};
        record.publicData.showOutBorder = false;
        m_tool->setTestChartToolsData(record);
        m_tool->slotAddConfirmButtonClicked();
        QVERIFY(m_host->hears(2));
        const QImage chart(m_host->last().path);
        QCOMPARE(chart.pixel(158, 45), qRgb(0, 0, 255));
        QCOMPARE(chart.pixel(159, 45), qRgb(0, 0, 0));
        VD_COMPARE_IMAGES(chart, expectedChart(record));
    }

    void largestChart()
    {
        TestChartToolsData record = bareRecord();
        record.publicData.resolutionWidth = 4320;
        record.publicData.resolutionHeight = 4320;
        m_tool->setTestChartToolsData(record);
        m_tool->slotAddConfirmButtonClicked();
        QVERIFY(m_host->hears(2));
        const QImage chart(m_host->last().path);
        QCOMPARE(chart.size(), QSize(4320, 4320));
        QCOMPARE(chart.pixel(100, 100), qRgb(255, 170, 255));
        QCOMPARE(chart.pixel(4300, 4300), qRgb(85, 170, 255));
        QCOMPARE(chart.pixel(4319, 4319), qRgb(255, 255, 255));
    }

    void chartIsTheOneOfThePress()
    {
        m_tool->slotAddConfirmButtonClicked();
        TestChartToolsData later = smallRecord();
        later.basicData.oddColor = {1, 2, 3, 255};
        m_tool->setTestChartToolsData(later);
        QVERIFY(m_host->hears(2));
        VD_COMPARE_IMAGES(QImage(m_host->last().path), expectedChart(smallRecord()));
    }

    void formats_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<bool>("exact");
        QTest::newRow("PNG") << "chart.png" << QByteArray("png") << true;
        QTest::newRow("PNG, second ending") << "chart.jpg.png" << QByteArray("png") << true;
        QTest::newRow("JPG") << "chart.jpg" << QByteArray("jpeg") << false;
        QTest::newRow("JPEG") << "chart.jpeg" << QByteArray("jpeg") << false;
        QTest::newRow("BMP") << "chart.bmp" << QByteArray("bmp") << true;
        QTest::newRow("letters of any script") << "测试 chart.png" << QByteArray("png") << true;
    }

    void formats()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, format);
        QFETCH(bool, exact);
        m_tool->setCurrentEditNum(name);
        m_tool->slotReplaceApplyButtonClicked();
        QVERIFY(m_host->hears(2));
        QCOMPARE(QFileInfo(m_host->last().path).fileName(), name);
        QImageReader reader(m_host->last().path);
        reader.setDecideFormatFromContent(true);
        QCOMPARE(reader.format(), format);
        const QImage chart = reader.read();
        QCOMPARE(chart.size(), QSize(160, 90));
        if (exact)
            VD_COMPARE_IMAGES(chart, expectedChart(smallRecord()));
        const QColor shown = chart.pixelColor(15, 15);
        QVERIFY(qAbs(shown.red() - 255) < 12 && qAbs(shown.green() - 170) < 12);
    }

    void unknownEndings_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("none") << "chart";
        QTest::newRow("a space") << " ";
        QTest::newRow("another format's") << "chart.gif";
        QTest::newRow("upper case") << "chart.PNG";
        QTest::newRow("mixed case") << "chart.Jpg";
        QTest::newRow("not at the end") << "chart.png.txt";
        QTest::newRow("without a point") << "chartpng";
    }

    void unknownEndings()
    {
        QFETCH(QString, name);
        m_tool->setCurrentEditNum(name);
        replace(oldChart());
        QCOMPARE(m_host->heard(), QStringList({"sigSave", "sigTestToolEditDone"}));
        QCOMPARE(m_host->last().type, int(ReplaceApply));
        QCOMPARE(m_host->last().path.section(QLatin1Char('/'), -1), name);
        QVERIFY(!QFile::exists(m_host->last().path));
        QVERIFY(QDir(folderOf(m_host->last().path)).entryList(QDir::Files).isEmpty());

        QVERIFY(removeNow(1));
        QVERIFY(QFile::exists(oldChart()));
        QCOMPARE(editLog(log().messages()).mid(4),
                 removalLog(QStringLiteral("testChartImage Folder Removed Failed:"), folderOf(oldChart()),
                            oldChart()));
    }

    void emptyEditNameSavesAsAnAddedChart()
    {
        m_tool->setCurrentEditNum(QString());
        m_tool->setTestImageNum(5);
        replace(oldChart());
        QCOMPARE(QFileInfo(m_host->last().path).fileName(), QStringLiteral("TestImage5.png"));
    }

    void savesWithinASecondShareAFolder()
    {
        // A second may end between the two saves: then the folders must differ, and it is tried again.
        for (int attempt = 0; attempt < 5; ++attempt) {
            const std::size_t heard = m_host->messages.size();
            const QString before = QDateTime::currentDateTime().toString(folderFormat);
            m_tool->setTestImageNum(1);
            m_tool->slotAddConfirmButtonClicked();
            m_tool->setTestImageNum(2);
            m_tool->slotAddConfirmButtonClicked();
            const QString after = QDateTime::currentDateTime().toString(folderFormat);
            QVERIFY(m_host->hears(heard + 4));
            if (before != after)
                continue;
            const QDir folder(root() + QLatin1Char('/') + before);
            QCOMPARE(folder.entryList(QDir::Files), QStringList({"TestImage1.png", "TestImage2.png"}));
            return;
        }
        QFAIL("no two saves within one second");
    }

    void smallFiles()
    {
        QVERIFY(!m_tool->smallPng());
        m_tool->setLastSavePath(oldChart());
        replace(oldChart());
        const QFileInfo chart(m_host->last().path); // perhaps the same file twice, within a second
        const qint64 large = chart.size();
        m_tool->setSmallPng(true);
        replace(chart.filePath());
        const QString small = m_host->last().path;
        QVERIFY(QFileInfo(small).size() * 2 < large);
        VD_COMPARE_IMAGES(QImage(small).convertToFormat(QImage::Format_RGB32), m_tool->chartImage());
    }

    void addIsLogged()
    {
        m_tool->slotAddConfirmButtonClicked();
        QVERIFY(m_host->hears(2));
        QCOMPARE(editLog(log().messages()),
                 QStringList({"TestChartTools EditType is : EditType::AddConfirm",
                              "testChartImage Folder Generated success: " + quoted(m_host->last().path)}));
    }

    void successIsLoggedAfterTheHostIsTold()
    {
        QVector<int> lines;
        m_host->reaction = [&](const Host::Message&) { lines.append(editLog(log().messages()).size()); };
        m_tool->slotAddConfirmButtonClicked();
        QVERIFY(m_host->hears(2));
        QCOMPARE(lines, QVector<int>({1, 1}));
    }

    void addNeverDeletes()
    {
        m_tool->setShowForAdd(true);
        m_tool->setLastSavePath(oldChart());
        m_tool->slotAddConfirmButtonClicked();
        QVERIFY(m_host->hears(2));
        QVERIFY(deletionTimers(*m_tool).isEmpty());
        QTest::qWait(2300);
        QVERIFY(QFile::exists(oldChart()));
        QVERIFY(editLog(log().messages()).filter("Timer").isEmpty());
    }

    void replacedFolderGoesAfterTwoSeconds_data()
    {
        QTest::addColumn<bool>("apply");
        QTest::newRow("confirm") << false;
        QTest::newRow("apply") << true;
    }

    void replacedFolderGoesAfterTwoSeconds()
    {
        QFETCH(bool, apply);
        const QString folder = folderOf(oldChart());
        QVERIFY(writeFile(folder + QLatin1String("/beside.json"), "{}"));
        QVERIFY(writeFile(folder + QLatin1String("/deep/down/.hidden"), "x"));
        QVERIFY(writeFile(root() + QLatin1String("/20200101_000001/other.png"), "other"));
        m_tool->setLastSavePath(oldChart());
        QElapsedTimer sinceTold;
        m_host->reaction = [&](const Host::Message&) { sinceTold.start(); };
        if (apply)
            m_tool->slotReplaceApplyButtonClicked();
        else
            m_tool->slotReplaceConfirmButtonClicked();
        QVERIFY(m_host->hears(2));
        const QString chart = m_host->last().path;
        QVERIFY(QFile::exists(oldChart()));
        QCOMPARE(deletionTimers(*m_tool).size(), 1);

        QTRY_VERIFY_WITH_TIMEOUT(!QFileInfo::exists(folder), 15000);
        QVERIFY(sinceTold.elapsed() >= 1800);
        QVERIFY(QFile::exists(chart));
        QVERIFY(QFile::exists(root() + QLatin1String("/20200101_000001/other.png")));
        const char* const type = apply ? "ReplaceApply" : "ReplaceConfirm";
        QTRY_COMPARE(
            editLog(log().messages()),
            QStringList("TestChartTools EditType is : EditType::" + QLatin1String(type)) +
                replacementLog(chart, oldChart()) +
                removalLog(QStringLiteral("testChartImage Folder Removed success:"), folder, oldChart()));
        QTRY_VERIFY(deletionTimers(*m_tool).isEmpty());
    }

    void nothingToRemove_data()
    {
        QTest::addColumn<QString>("replaced");
        QTest::newRow("no such file") << "root/20200101_000000/nothing.png";
        QTest::newRow("no such folder") << "root/nowhere/chart.png";
        QTest::newRow("a folder") << "root/20200101_000000";
    }

    void nothingToRemove()
    {
        QFETCH(QString, replaced);
        const QString path = inFolder(replaced);
        replace(path);
        QVERIFY(removeNow(1));
        QCOMPARE(editLog(log().messages()).mid(4),
                 removalLog(QStringLiteral("testChartImage does not exist:"), path, path));
        QVERIFY(QFile::exists(oldChart()));
        QVERIFY(QFile::exists(m_host->last().path));
    }

    void unsetLastSavePathRemovesNothing()
    {
        m_tool->slotReplaceApplyButtonClicked();
        QVERIFY(m_host->hears(2));
        QVERIFY(removeNow(1));
        QCOMPARE(editLog(log().messages()).mid(4),
                 removalLog(QStringLiteral("testChartImage does not exist:"), " ", " "));
    }

    void newChartInTheReplacedFolderIsKept()
    {
        // The chart that is replaced was saved within the second of the replacement.
        for (int attempt = 0; attempt < 5; ++attempt) {
            const std::size_t heard = m_host->messages.size();
            log().clear();
            const QString before = QDateTime::currentDateTime().toString(folderFormat);
            const QString replaced = root() + QLatin1Char('/') + before + QLatin1String("/replaced.png");
            QVERIFY(writeFile(replaced, "replaced"));
            m_tool->setLastSavePath(replaced);
            m_tool->slotReplaceApplyButtonClicked();
            QVERIFY(m_host->hears(heard + 2));
            const QString chart = m_host->last().path;
            QVERIFY(removeNow(1));
            if (folderOf(chart) != folderOf(replaced))
                continue;
            VD_COMPARE_IMAGES(QImage(chart), expectedChart(smallRecord()));
            QVERIFY(QFile::exists(replaced));
            QCOMPARE(editLog(log().messages()).mid(4),
                     removalLog(QStringLiteral("testChartImage Folder Removed Failed:"), folderOf(replaced),
                                replaced));
            return;
        }
        QFAIL("no replacement within one second");
    }

    void chartThatTheHostTookAwayKeepsTheReplacedOne()
    {
        replace(oldChart());
        QVERIFY(QFile::remove(m_host->last().path));
        QVERIFY(removeNow(1));
        QVERIFY(QFile::exists(oldChart()));
    }

    void foldersThatStay_data()
    {
        QTest::addColumn<QString>("replaced");
        QTest::addColumn<QString>("home");
        QTest::newRow("the save root") << "root/chart.png"
                                       << "home";
        QTest::newRow("above the save root") << "chart.png"
                                             << "home";
        QTest::newRow("the home folder") << "home/chart.png"
                                         << "home";
        QTest::newRow("above the home folder") << "users/chart.png"
                                               << "users/home";
        QTest::newRow("a symbolic link") << "link/chart.png"
                                         << "home";
        QTest::newRow("the save root by a detour") << "root/20200101_000000/../chart.png"
                                                   << "home";
    }

    void foldersThatStay()
    {
        QFETCH(QString, replaced);
        QFETCH(QString, home);
        QVERIFY(writeFile(inFolder(home) + QLatin1String("/treasure"), "gold"));
        QVERIFY(writeFile(inFolder(QStringLiteral("target/treasure")), "gold"));
        QVERIFY(QFile::link(inFolder(QStringLiteral("target")), inFolder(QStringLiteral("link"))));
        QVERIFY(writeFile(inFolder(replaced), "old"));
        qputenv("HOME", inFolder(home).toLocal8Bit());
        replace(inFolder(replaced));
        QVERIFY(removeNow(1));
        QVERIFY(QFile::exists(inFolder(replaced)));
        QVERIFY(QFile::exists(inFolder(home) + QLatin1String("/treasure")));
        QVERIFY(QFile::exists(inFolder(QStringLiteral("target/treasure"))));
        QVERIFY(QFile::exists(m_host->last().path));
        QCOMPARE(editLog(log().messages()).mid(4),
                 removalLog(QStringLiteral("testChartImage Folder Removed Failed:"),
                            folderOf(inFolder(replaced)), inFolder(replaced)));
    }

    void saveRootOfTheNextChartStays()
    {
        const QString next = inFolder(QStringLiteral("next"));
        const QString replaced = next + QLatin1String("/chart.png");
        QVERIFY(writeFile(replaced, "old"));
        m_tool->setLastSavePath(replaced);
        m_tool->slotReplaceApplyButtonClicked();
        m_tool->setSavePath(next, QString());
        QVERIFY(m_host->hears(2));
        QVERIFY(m_host->last().path.startsWith(root()));
        QVERIFY(removeNow(1));
        QVERIFY(QFile::exists(replaced));
    }

    void linksInTheReplacedFolderAreNotFollowed()
    {
        QVERIFY(writeFile(inFolder(QStringLiteral("target/treasure")), "gold"));
        QVERIFY(
            QFile::link(inFolder(QStringLiteral("target")), folderOf(oldChart()) + QLatin1String("/link")));
        replace(oldChart());
        QVERIFY(removeNow(1));
        QVERIFY(!QFileInfo::exists(folderOf(oldChart())));
        QVERIFY(QFile::exists(inFolder(QStringLiteral("target/treasure"))));
    }

    void hostNamesTheNewChartWhileItIsTold_data()
    {
        QTest::addColumn<QString>("signal");
        QTest::newRow("sigSave") << "sigSave";
        QTest::newRow("sigTestToolEditDone") << "sigTestToolEditDone";
    }

    void hostNamesTheNewChartWhileItIsTold()
    {
        QFETCH(QString, signal);
        m_host->reaction = [&](const Host::Message& message) {
            if (message.signal == signal)
                m_tool->setLastSavePath(root() + QLatin1Char('/') + chartFolders().last() +
                                        QLatin1String("/chart.png"));
        };
        replace(oldChart());
        const QString first = m_host->last().path;
        QVERIFY(removeNow(1));
        QVERIFY(!QFileInfo::exists(folderOf(oldChart())));
        VD_COMPARE_IMAGES(QImage(first), expectedChart(smallRecord()));
    }

    void twoReplacementsRemoveOneFolderEach()
    {
        const QString second = inFolder(QStringLiteral("root/20200101_000001/chart.png"));
        QVERIFY(writeFile(second, "second"));
        replace(oldChart());
        const QString chart = m_host->last().path;
        replace(second);
        QList<QTimer*> timers = deletionTimers(*m_tool);
        QCOMPARE(timers.size(), 2);

        log().clear();
        timers.first()->setInterval(1);
        QTRY_VERIFY(!QFileInfo::exists(folderOf(oldChart())));
        QVERIFY(QFile::exists(second));
        QTRY_COMPARE(deletionTimers(*m_tool), timers.mid(1));
        QCOMPARE(editLog(log().messages()),
                 removalLog(QStringLiteral("testChartImage Folder Removed success:"), folderOf(oldChart()),
                            oldChart()));

        log().clear();
        timers.last()->setInterval(1);
        QTRY_VERIFY(!QFileInfo::exists(folderOf(second)));
        QTRY_VERIFY(deletionTimers(*m_tool).isEmpty());
        QCOMPARE(
            editLog(log().messages()),
            removalLog(QStringLiteral("testChartImage Folder Removed success:"), folderOf(second), second));
        QVERIFY(QFile::exists(chart));
        QVERIFY(QFile::exists(m_host->last().path));
    }

    void sameChartReplacedTwice()
    {
        replace(oldChart());
        replace(oldChart());
        log().clear();
        QVERIFY(removeNow(2));
        QCOMPARE(editLog(log().messages()),
                 removalLog(QStringLiteral("testChartImage Folder Removed success:"), folderOf(oldChart()),
                            oldChart()) +
                     removalLog(QStringLiteral("testChartImage does not exist:"), oldChart(), oldChart()));
        QVERIFY(QFile::exists(m_host->last().path));
    }

    void aToolThatIsGoneLeavesTheRemovalToTheApplication_data()
    {
        QTest::addColumn<bool>("replacementIsThere");
        QTest::newRow("replaced") << true;
        QTest::newRow("the replacement was taken away") << false;
    }

    void aToolThatIsGoneLeavesTheRemovalToTheApplication()
    {
        QFETCH(bool, replacementIsThere);
        replace(oldChart());
        const QString chart = m_host->last().path;
        if (!replacementIsThere)
            QVERIFY(QFile::remove(chart));
        m_host.reset();
        m_tool.reset();
        QVERIFY(QFile::exists(oldChart())); // not before the host had its two seconds
        if (replacementIsThere)
            QTRY_VERIFY(!QFileInfo::exists(folderOf(oldChart())));
        else
            QTest::qWait(2300);
        QCOMPARE(QFile::exists(oldChart()), !replacementIsThere);
        QCOMPARE(QFile::exists(chart), replacementIsThere);
    }

    void anApplicationThatEndsMakesUpForRemovals_data()
    {
        QTest::addColumn<bool>("toolIsGone");
        QTest::newRow("of a tool that is there") << false;
        QTest::newRow("of a tool that is gone") << true;
    }

    void anApplicationThatEndsMakesUpForRemovals()
    {
        QFETCH(bool, toolIsGone);
        replace(oldChart());
        const QString chart = m_host->last().path;
        if (toolIsGone) {
            m_host.reset();
            m_tool.reset();
        }
        QVERIFY(QFile::exists(oldChart()));
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(!QFileInfo::exists(folderOf(oldChart())));
        QVERIFY(QFile::exists(chart));
    }

    void savePathMayChangeBeforeTheRemoval()
    {
        replace(oldChart());
        m_tool->setSavePath(inFolder(QStringLiteral("elsewhere")), QString());
        m_tool->setLastSavePath(m_host->last().path);
        QVERIFY(removeNow(1));
        QVERIFY(!QFileInfo::exists(folderOf(oldChart())));
        QVERIFY(QFile::exists(m_host->last().path));
    }

    void previewSave_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("chessboard") << 0;
        QTest::newRow("stripes") << 2;
    }

    void previewSave()
    {
        QFETCH(int, mode);
        TestChartToolsData record = smallRecord();
        record.basicData.chessChecked = mode == 0;
        record.basicData.colorBarChecked = mode == 2;
        record.basicData.colorStripeColors = {{0, Qt::red}, {1, Qt::green}};
        m_tool->setTestChartToolsData(record);
        m_tool->setLastSavePath(oldChart());
        User user(*m_tool);
        QVERIFY(user.show());
        user.saveButton()->setVisible(true);
        log().clear();
        user.click(user.saveButton());
        QVERIFY(m_host->hears(1));

        VD_COMPARE_IMAGES(QImage(root() + QLatin1String("/preview.png")), expectedChart(record));
        QVERIFY(QFileInfo(root() + QLatin1String("/preview")).isDir());
        QVERIFY(QDir(root() + QLatin1String("/preview")).isEmpty());
        QVERIFY(!user.saveButton()->isEnabled());
        QVERIFY(!user.cancel()->isEnabled());
        QVERIFY(!user.addConfirm()->isEnabled());
        QVERIFY(!user.replaceApply()->isEnabled());
        QVERIFY(user.replaceConfirm()->isEnabled());
        QTest::qWait(100);
        QCOMPARE(m_host->heard(), QStringList("sigSave"));
        QCOMPARE(m_host->last().record, record);
        QVERIFY(editLog(log().messages()).isEmpty());
        QVERIFY(deletionTimers(*m_tool).isEmpty());
    }

    void failedPreviewSave()
    {
        User user(*m_tool);
        QVERIFY(user.show());
        m_tool->setSavePath(oldChart(), QStringLiteral("preview"));
        m_tool->slotSaveImage();
        QVERIFY(m_host->hears(1));
        QTest::qWait(100);
        QCOMPARE(m_host->heard(), QStringList("sigFail"));
        QCOMPARE(m_tool->failedPath(), oldChart() + QLatin1String("/preview.png"));
        QVERIFY(user.saveButton()->isEnabled());
        QVERIFY(user.cancel()->isEnabled());
        QVERIFY(user.replaceApply()->isEnabled());
    }

    void failedWriteLeavesNothing()
    {
        // A folder stands where the file should go.
        m_tool->setSavePath(root(), QStringLiteral("taken"));
        QVERIFY(writeFile(root() + QLatin1String("/taken.png/inside"), "inside"));
        m_tool->slotSaveImage();
        QVERIFY(m_host->hears(1));
        QCOMPARE(m_host->heard(), QStringList("sigFail"));
        QCOMPARE(QDir(root()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({"20200101_000000", "taken", "taken.png"}));
        QVERIFY(QFile::exists(root() + QLatin1String("/taken.png/inside")));
    }

    void savingClearsTheUpdateFlag()
    {
        User user(*m_tool);
        QVERIFY(user.show());
        m_tool->slotAddConfirmButtonClicked();
        QVERIFY(m_host->hears(2));
        log().clear();
        m_tool->slotUpdatePaintEventStatus(QStringLiteral("m_pPaintBasicWidget"));
        QVERIFY(paintLog(log().messages()).contains("PaintBasicWidget is done"));
    }

    void chartImageLeavesTheUpdateFlag_data()
    {
        QTest::addColumn<bool>("updating");
        QTest::newRow("set") << true;
        QTest::newRow("not set") << false;
    }

    void chartImageLeavesTheUpdateFlag()
    {
        QFETCH(bool, updating);
        User user(*m_tool);
        QVERIFY(user.show());
        m_tool->setUpdateFlag(updating);
        m_tool->slotGetHeightWidth();
        log().clear();
        QVERIFY(!m_tool->chartImage().isNull());
        QVERIFY(!paintLog(log().messages()).contains("PaintBasicWidget is done"));
        m_tool->slotUpdatePaintEventStatus(QStringLiteral("m_pPaintBasicWidget"));
        QCOMPARE(paintLog(log().messages()).contains("PaintBasicWidget is done"), !updating);
    }
};

VD_TEST_MAIN(TestSaveChart)
#include "tst_savechart.moc"
