#include "edittestcase.h"

using namespace vardeno::testcharttools;
using namespace chartfiles;
using namespace deskwindow;

/// Edits that a crash has ended.
class TestDrafts : public EditTestCase
{
    Q_OBJECT

private Q_SLOTS:
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
        QTRY_VERIFY(isDrafted(4));
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
        QTRY_VERIFY(isDrafted(4));
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
        QTRY_VERIFY(isDrafted(4));
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
};

VD_TEST_MAIN(TestDrafts)
#include "tst_drafts.moc"
