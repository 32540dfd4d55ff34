#include "edittestcase.h"

using namespace vardeno::testcharttools;
using namespace chartfiles;
using namespace deskwindow;

/// The end of an edit: what is asked, and what becomes of what was changed.
class TestEditEnd : public EditTestCase
{
    Q_OBJECT

private Q_SLOTS:
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
};

VD_TEST_MAIN(TestEditEnd)
#include "tst_editend.moc"
