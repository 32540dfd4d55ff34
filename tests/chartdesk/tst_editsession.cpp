#include "chartfiles.h"
#include "deskwindow.h"
#include "testcase.h"

#include <publicsettingbox.h>
#include <selfsettingbox.h>
#include <translatemanager1.h>

#include <QSettings>
#include <QTemporaryDir>

#include <memory>

using namespace vardeno::testcharttools;
using namespace chartfiles;
using namespace deskwindow;

/// Edits at the desk: nothing that is worth something is lost by them.
class TestEditSession : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;

    QString at(const QString& name) const { return m_folder->filePath(name); }

    void openDesk(const QString& folder)
    {
        m_window = std::make_unique<MainWindow>(folder);
        m_window->switchLanguage(QStringLiteral("en"));
        m_window->show();
    }

    void openDesk() { openDesk(m_folder->path()); }

    QStringList charts() const
    {
        QStringList found;
        for (const QFileInfo& chart : ChartFolderList::charts(m_folder->path()))
            found.append(chart.filePath());
        return found;
    }

    static int rowsOf(const QString& image)
    {
        return ChartRecordFile::read(ChartFolderList::recordPath(image)).record.publicData.boxRow;
    }

    bool isEnded() const { return isListShown(*m_window) && !m_window->session()->isOpen(); }

    bool openNewChart() { return trigger(*m_window, QStringLiteral("New chart")) && settle(*m_window); }

    /// Edits `image`, with other rows, and presses Confirm.
    bool replace(const QString& image, int rows)
    {
        return openChart(*m_window, image) && setRows(*m_window, rows) &&
               click(*m_window, QStringLiteral("Confirm")) && QTest::qWaitFor([this] { return isEnded(); });
    }

    /// Uploads the picture as the user does.
    bool upload(const QString& path)
    {
        chooseInDialog(path);
        return click(*m_window->editor(), QStringLiteral("Choose picture…")) && settle(*m_window);
    }

    QImage shownLogo() const
    {
        const auto record = m_window->editor()->getTestChartToolsData();
        return QImage(QString::fromStdString(record.logoData.picturePath));
    }

    void setResolution(int width, int height)
    {
        auto* panel = m_window->editor()->findChild<PublicSettingBox*>();
        for (const auto& [value, shown] : {std::pair(width, 1920), std::pair(height, 1080)}) {
            for (SpinEditBox* entry : panel->findChildren<SpinEditBox*>()) {
                if (entry->value() != shown)
                    continue;
                entry->setFocus();
                entry->selectAll();
                QTest::keyClicks(entry, QString::number(value));
                QTest::keyClick(entry, Qt::Key_Return);
                QVERIFY(settle(*m_window));
                break;
            }
        }
    }

    static int drafts() { return QDir(draftsRoot()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(); }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("HOME", m_home.path().toUtf8());
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            qunsetenv(name);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home.filePath("settings"));
        QVERIFY(draftsRoot().startsWith(m_home.path()));
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void cleanup()
    {
        m_window.reset();
        QDir(draftsRoot()).removeRecursively();
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void neighboursStay_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("Confirm") << "Confirm";
        QTest::newRow("Apply") << "Apply";
    }

    void neighboursStay()
    {
        QFETCH(QString, button);
        const QString edited = at("20240101_120000/a.png");
        QVERIFY(writeChart(edited, Qt::red));
        QVERIFY(writeChart(at("20240101_120000/b.png"), Qt::blue));
        QVERIFY(writeFile(at("20240101_120000/notes.txt"), "mine"));
        openDesk();
        QVERIFY(openChart(*m_window, edited));
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(click(*m_window, button));
        QTRY_VERIFY(!QFileInfo::exists(edited));
        QTest::qWait(2300); // when the editor removes what it was told to
        QCOMPARE(QDir(at("20240101_120000")).entryList(QDir::Files),
                 QStringList({"b.json", "b.png", "notes.txt"}));
        QCOMPARE(charts().size(), 2);
        QCOMPARE(rowsOf(charts().first()), 4);
    }

    void theReplacedChartGoesWithItsFolder()
    {
        QVERIFY(writeChart(at("20240101_120000/a.png"), Qt::red, "pictures/logo.png"));
        QVERIFY(writePicture(at("20240101_120000/pictures/logo.png"), Qt::yellow));
        openDesk();
        QVERIFY(replace(at("20240101_120000/a.png"), 4));
        QVERIFY(!QFileInfo::exists(at("20240101_120000")));
        QCOMPARE(charts().size(), 1);
        QCOMPARE(storedPicture(charts().first()), QString("pictures/logo.png"));
        QCOMPARE(QImage(QFileInfo(charts().first()).dir().filePath("pictures/logo.png")).pixelColor(0, 0),
                 QColor(Qt::yellow));
    }

    /// The editor writes nothing under "a.PNG", and calls that a success.
    void anEndingInCapitals()
    {
        QVERIFY(writePicture(at("20240101_120000/a.PNG"), Qt::red));
        QVERIFY(writeFile(at("20240101_120000/a.json"), ChartRecordFile::toJson({})));
        openDesk();
        QVERIFY(replace(at("20240101_120000/a.PNG"), 4));
        QCOMPARE(charts().size(), 1);
        QCOMPARE(QFileInfo(charts().first()).fileName(), QString("a.png"));
        QCOMPARE(QImage(charts().first()).size(), QSize(1920, 1080));
    }

    void whatSomebodyElseChangedStays()
    {
        const QString edited = at("20240101_120000/a.png");
        QVERIFY(writeChart(edited, Qt::red));
        openDesk();
        QVERIFY(openChart(*m_window, edited));
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(writeChart(edited, Qt::red, "other.png"));
        QVERIFY(click(*m_window, "Confirm"));
        QVERIFY(answer(*m_window, "OK"));
        QCOMPARE(charts().size(), 2);
        QCOMPARE(storedPicture(edited), QString("other.png"));
        QCOMPARE(rowsOf(charts().first()), 4);
    }

    void eachChartHasItsOwnLogo()
    {
        const QTemporaryDir clients;
        QVERIFY(writePicture(clients.filePath("A/logo.png"), Qt::red));
        QVERIFY(writePicture(clients.filePath("B/logo.png"), Qt::blue));
        openDesk();
        QMap<QString, QColor> expected;
        for (const char* client : {"A", "B"}) {
            QVERIFY(openNewChart());
            QVERIFY(upload(clients.filePath(QLatin1String(client) + "/logo.png")));
            const QColor color = *client == 'A' ? Qt::red : Qt::blue;
            QTRY_COMPARE(shownLogo().pixelColor(0, 0), color);
            QVERIFY(click(*m_window, "Confirm"));
            QTRY_VERIFY(isEnded());
            expected.insert(charts().first(), color);
        }
        QCOMPARE(expected.size(), 2);
        for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
            QCOMPARE(storedPicture(it.key()), QString("pictures/logo.png"));
            QVERIFY(openChart(*m_window, it.key()));
            QCOMPARE(shownLogo().pixelColor(0, 0), it.value());
            QVERIFY(click(*m_window, "Cancel"));
        }
    }

    void aNewChartFitsItsWall_data()
    {
        QTest::addColumn<bool>("isTouched");
        QTest::newRow("nothing else chosen") << false;
        QTest::newRow("rows of the user's own first, then the resolution") << false;
        QTest::newRow("a text of the user's own") << true;
    }

    void aNewChartFitsItsWall()
    {
        QFETCH(bool, isTouched);
        openDesk();
        QVERIFY(openNewChart());
        const int circle = m_window->editor()->getTestChartToolsData().inLineData.circleSize;
        if (QByteArray(QTest::currentDataTag()).startsWith("rows"))
            QVERIFY(setRows(*m_window, 10));
        if (isTouched)
            m_window->editor()->findChild<SelfSettingBox*>()->findChild<QLineEdit*>()->setText("my wall");
        setResolution(3840, 2160);
        const auto record = m_window->editor()->getTestChartToolsData();
        QCOMPARE(record.publicData.resolutionWidth, 3840);
        QCOMPARE(record.publicData.resolutionHeight, 2160);
        QCOMPARE(record.inLineData.circleSize, isTouched ? circle : 2 * circle);
        QCOMPARE(int(record.basicData.colorStripeColors.size()), 5);
        QVERIFY(m_window->editor()->isShowForAdd());
    }

    void anotherLogoInOneEdit()
    {
        const QTemporaryDir clients;
        QVERIFY(writePicture(clients.filePath("A/logo.png"), Qt::red));
        QVERIFY(writePicture(clients.filePath("B/logo.png"), Qt::blue));
        openDesk();
        QVERIFY(openNewChart());
        for (const char* client : {"A", "B"})
            QVERIFY(upload(clients.filePath(QLatin1String(client) + "/logo.png")));
        QTRY_COMPARE(shownLogo().pixelColor(0, 0), QColor(Qt::blue));
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        const QDir folder = QFileInfo(charts().first()).dir();
        QCOMPARE(QImage(folder.filePath(storedPicture(charts().first()))).pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(QDir(folder.filePath("pictures")).entryList(QDir::Files).size(), 1);
    }

    void aMissingLogoIsNamed()
    {
        QVERIFY(writeChart(at("20240101_120000/a.png"), Qt::red, "pictures/client.png"));
        openDesk();
        QVERIFY(openChart(*m_window, at("20240101_120000/a.png")));
        QTRY_VERIFY(message(*m_window));
        QCOMPARE(message(*m_window)->informativeText(), QString("client.png"));
        QVERIFY(answer(*m_window, "OK"));
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        QCOMPARE(storedPicture(charts().first()), QString("pictures/client.png"));
    }

    void cancelAsksOnlyWhereSomethingChanged()
    {
        openDesk();
        QVERIFY(openNewChart());
        QVERIFY(click(*m_window, "Cancel"));
        QVERIFY(isEnded());
        QVERIFY(!message(*m_window));

        QVERIFY(openNewChart());
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(click(*m_window, "Cancel"));
        QVERIFY(answer(*m_window, "Continue editing"));
        QVERIFY(!isEnded());
        QCOMPARE(m_window->editor()->getTestChartToolsData().publicData.boxRow, 4);

        QVERIFY(setRows(*m_window, 9)); // as it was
        QVERIFY(click(*m_window, "Cancel"));
        QVERIFY(isEnded());
        QCOMPARE(charts().size(), 0);
        QCOMPARE(drafts(), 0);
    }

    void changesAreSavedOrDiscarded_data()
    {
        QTest::addColumn<QString>("end");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<int>("rows");
        for (const char* end : {"Cancel", "close"}) {
            QTest::addRow("%s, save", end) << end << "Save" << 4;
            QTest::addRow("%s, discard", end) << end << "Discard changes" << 9;
        }
    }

    void changesAreSavedOrDiscarded()
    {
        QFETCH(QString, end);
        QFETCH(QString, choice);
        QFETCH(int, rows);
        QVERIFY(writeChart(at("20240101_120000/a.png"), Qt::red));
        openDesk();
        QVERIFY(openChart(*m_window, at("20240101_120000/a.png")));
        QVERIFY(setRows(*m_window, 4));
        if (end == QLatin1String("close"))
            QVERIFY(!m_window->close());
        else
            QVERIFY(click(*m_window, end));
        QVERIFY(answer(*m_window, choice));
        QTRY_VERIFY(isEnded());
        QTRY_COMPARE(m_window->isVisible(), end != QLatin1String("close"));
        QCOMPARE(charts().size(), 1);
        QCOMPARE(rowsOf(charts().first()), rows);
        QCOMPARE(drafts(), 0);
    }

    void closingCanBeGivenUp()
    {
        openDesk();
        QVERIFY(openNewChart());
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(!m_window->close());
        QVERIFY(answer(*m_window, "Continue editing"));
        QVERIFY(m_window->isVisible());
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        QVERIFY(m_window->isVisible()); // the wish to close is forgotten
    }

    void closingWaitsForASave()
    {
        openDesk();
        QVERIFY(openNewChart());
        QVERIFY(click(*m_window, "Confirm"));
        QVERIFY(m_window->session()->isSaving());
        QVERIFY(!m_window->close());
        QTRY_VERIFY(!m_window->isVisible());
        QCOMPARE(charts().size(), 1);
    }

    void confirmRightAfterApplyEndsWithTheAppliedChart()
    {
        QVERIFY(writeChart(at("20240101_120000/a.png"), Qt::red));
        openDesk();
        QVERIFY(openChart(*m_window, at("20240101_120000/a.png")));
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(click(*m_window, "Apply"));
        QVERIFY(m_window->session()->isSaving());
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        QCOMPARE(charts().size(), 1);
        QCOMPARE(rowsOf(charts().first()), 4);
        QVERIFY(!message(*m_window));
    }

    /// The record is of the moment of the picture, and the change is not lost.
    void aChangeWhileTheChartIsWritten()
    {
        QVERIFY(writeChart(at("20240101_120000/a.png"), Qt::red));
        openDesk();
        QVERIFY(openChart(*m_window, at("20240101_120000/a.png")));
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(click(*m_window, "Confirm"));
        rowEntry(*m_window)->setValue(5);
        QTRY_VERIFY(!m_window->session()->isSaving());
        QVERIFY(!isEnded());
        QCOMPARE(charts().size(), 1);
        QCOMPARE(rowsOf(charts().first()), 4);
        QVERIFY(settle(*m_window));
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        QCOMPARE(charts().size(), 1);
        QCOMPARE(rowsOf(charts().first()), 5);
    }

    void anUnfinishedEditIsOffered()
    {
        const QTemporaryDir clients;
        QVERIFY(writePicture(clients.filePath("logo.png"), Qt::red));
        const QString edited = at("20240101_120000/a.png");
        QVERIFY(writeChart(edited, Qt::red));
        openDesk();
        QVERIFY(openChart(*m_window, edited));
        QVERIFY(upload(clients.filePath("logo.png")));
        QVERIFY(setRows(*m_window, 4));
        QTest::qWait(1200);
        m_window.reset(); // without a word, as a crash does
        QVERIFY(QFile::remove(clients.filePath("logo.png")));

        openDesk();
        m_window->offerDrafts();
        QTRY_VERIFY(message(*m_window));
        QVERIFY(message(*m_window)->informativeText().startsWith("a.png, last changed"));
        QVERIFY(answer(*m_window, "Continue editing"));
        QVERIFY(settle(*m_window));
        QCOMPARE(m_window->editor()->getTestChartToolsData().publicData.boxRow, 4);
        QCOMPARE(shownLogo().pixelColor(0, 0), QColor(Qt::red));
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        QCOMPARE(charts().size(), 1);
        QCOMPARE(rowsOf(charts().first()), 4);
        QVERIFY(!QFileInfo::exists(edited));
        QCOMPARE(drafts(), 0);
    }

    void anUnfinishedEditCanWaitOrGo()
    {
        openDesk();
        QVERIFY(openNewChart());
        QVERIFY(setRows(*m_window, 4));
        QTest::qWait(1200);
        m_window.reset();
        for (const char* choice : {"Later", "Discard changes"}) {
            openDesk();
            m_window->offerDrafts();
            QVERIFY(answer(*m_window, QLatin1String(choice)));
            QVERIFY(isEnded());
            QVERIFY(!message(*m_window));
            m_window.reset();
        }
        QCOMPARE(drafts(), 0);
        QCOMPARE(charts().size(), 0);
    }

    void theDraftOfAChartThatIsGoneIsANewOne()
    {
        const QString edited = at("20240101_120000/a.png");
        QVERIFY(writeChart(edited, Qt::red));
        openDesk();
        QVERIFY(openChart(*m_window, edited));
        QVERIFY(setRows(*m_window, 4));
        QTest::qWait(1200);
        m_window.reset();
        QVERIFY(QDir(at("20240101_120000")).removeRecursively());
        openDesk();
        m_window->offerDrafts();
        QVERIFY(answer(*m_window, "Continue editing"));
        QVERIFY(settle(*m_window));
        QVERIFY(m_window->editor()->isShowForAdd());
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        QCOMPARE(rowsOf(charts().first()), 4);
    }

    void twoEditsHaveTwoDrafts()
    {
        openDesk();
        QVERIFY(openNewChart());
        QVERIFY(setRows(*m_window, 4));
        MainWindow second(m_folder->path());
        second.show();
        second.offerDrafts();
        QVERIFY(!message(second)); // the first desk is still at it
        QVERIFY(trigger(second, QStringLiteral("New chart")));
        QCOMPARE(drafts(), 2);
        second.session()->end();
        QCOMPARE(drafts(), 1);
    }

    void aFailedSaveCanBeRepeated_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("Confirm") << "Confirm";
        QTest::newRow("Apply") << "Apply";
    }

    void aFailedSaveCanBeRepeated()
    {
        QFETCH(QString, button);
        QVERIFY(writeChart(at("charts/20240101_120000/a.png"), Qt::red));
        openDesk(at("charts"));
        QVERIFY(openChart(*m_window, at("charts/20240101_120000/a.png")));
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(QDir().rename(at("charts"), at("moved")));
        QVERIFY(writeFile(at("charts"), "in the way"));
        QVERIFY(click(*m_window, button));
        QTRY_VERIFY(message(*m_window));
        QVERIFY2(message(*m_window)->text().contains("a file is in its way"),
                 qPrintable(message(*m_window)->text()));
        QVERIFY(message(*m_window)->informativeText().endsWith("/a.png"));
        QVERIFY(!message(*m_window)->informativeText().contains(".chartdesk"));

        QVERIFY(QFile::remove(at("charts")));
        QVERIFY(QDir().rename(at("moved"), at("charts")));
        QVERIFY(answer(*m_window, "Try again"));
        QTRY_VERIFY(!QFileInfo::exists(at("charts/20240101_120000/a.png")));
        QCOMPARE(isEnded(), button == QLatin1String("Confirm"));
        const QFileInfoList saved = ChartFolderList::charts(at("charts"));
        QCOMPARE(saved.size(), 1);
        QCOMPARE(rowsOf(saved.first().filePath()), 4);
    }

    void aFailedSaveCanGoElsewhere()
    {
        QVERIFY(writeFile(at("charts"), "in the way"));
        QVERIFY(QDir().mkpath(at("elsewhere")));
        openDesk(at("charts"));
        QVERIFY(openNewChart());
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(message(*m_window));
        chooseInDialog(at("elsewhere"));
        QVERIFY(answer(*m_window, "Save elsewhere…"));
        QTRY_VERIFY(isEnded());
        const QFileInfoList saved = ChartFolderList::charts(at("elsewhere"));
        QCOMPARE(saved.size(), 1);
        QCOMPARE(rowsOf(saved.first().filePath()), 4);
        QVERIFY(m_window->windowTitle().endsWith(at("elsewhere"))); // where the list shows it
        QTRY_COMPARE(m_window->findChild<QListWidget*>("chartList")->count(), 1);
    }

    void afterAFailedSaveTheEditGoesOn_data()
    {
        QTest::addColumn<bool>("adds");
        QTest::newRow("new") << true;
        QTest::newRow("replaced") << false;
    }

    void afterAFailedSaveTheEditGoesOn()
    {
        QFETCH(bool, adds);
        QVERIFY(writeChart(at("charts/20240101_120000/a.png"), Qt::red));
        openDesk(at("charts"));
        QVERIFY(adds ? openNewChart() : openChart(*m_window, at("charts/20240101_120000/a.png")));
        QVERIFY(QDir().rename(at("charts"), at("moved")));
        QVERIFY(writeFile(at("charts"), "in the way"));
        QVERIFY(click(*m_window, "Confirm"));
        QVERIFY(answer(*m_window, "Continue editing"));
        QVERIFY(!isEnded());
        for (const char* text : {"Confirm", "Apply"}) {
            if (QPushButton* button = buttonIn(*m_window, QLatin1String(text)))
                QTRY_VERIFY2(button->isEnabled(), text);
        }
        QVERIFY(QFile::remove(at("charts")));
        QVERIFY(QDir().rename(at("moved"), at("charts")));
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        QCOMPARE(ChartFolderList::charts(at("charts")).size(), adds ? 2 : 1);
    }

    void nothingUnfinishedIsLeftInTheFolder()
    {
        openDesk();
        QVERIFY(openNewChart());
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({QFileInfo(charts().first()).dir().dirName()}));
    }
};

VD_TEST_MAIN(TestEditSession)
#include "tst_editsession.moc"
