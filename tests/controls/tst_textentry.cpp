#include "controls/textentry.h"
#include "testcase.h"

#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <memory>

using namespace vardeno::testcharttools;

/// When a text entry tells what it held before, and what it tells.
class TestTextEntry : public TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<QWidget> m_window;
    QWidget* m_group = nullptr; ///< holds the watched entry
    QLineEdit* m_entry = nullptr;
    QLineEdit* m_other = nullptr;
    TextEntryWatcher* m_watcher = nullptr;

    void type(const QString& text)
    {
        QTest::mouseClick(m_entry, Qt::LeftButton);
        m_entry->selectAll();
        QTest::keyClick(m_entry, Qt::Key_Delete);
        QTest::keyClicks(m_entry, text);
    }

    void leave() { QTest::keyClick(m_entry, Qt::Key_Tab); }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_window = std::make_unique<QWidget>();
        m_group = new QWidget;
        m_entry = new QLineEdit(QStringLiteral("first"));
        m_other = new QLineEdit;
        m_watcher = new TextEntryWatcher(m_entry);
        auto* column = new QVBoxLayout(m_window.get());
        column->addWidget(m_group);
        column->addWidget(m_other);
        (new QVBoxLayout(m_group))->addWidget(m_entry);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        TestCase::cleanup();
    }

    void edits_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("byEnter");
        QTest::newRow("Enter") << QStringLiteral("second") << true;
        QTest::newRow("leaving") << QStringLiteral("second") << false;
        QTest::newRow("cleared, Enter") << QString() << true;
        QTest::newRow("cleared, leaving") << QString() << false;
        QTest::newRow("typed again as it was") << QStringLiteral("first") << false;
    }

    void edits()
    {
        QFETCH(QString, typed);
        QFETCH(bool, byEnter);
        QSignalSpy finished(m_watcher, &TextEntryWatcher::editFinished);
        type(typed);
        QCOMPARE(finished.count(), 0);
        byEnter ? QTest::keyClick(m_entry, Qt::Key_Return) : leave();
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toString(), QStringLiteral("first"));
        QCOMPARE(m_entry->text(), typed);
    }

    void oneEditIsToldOnce()
    {
        QSignalSpy finished(m_watcher, &TextEntryWatcher::editFinished);
        type(QStringLiteral("second"));
        QTest::keyClick(m_entry, Qt::Key_Return);
        QTest::keyClick(m_entry, Qt::Key_Return);
        leave();
        QCOMPARE(finished.count(), 1);
    }

    void anUntouchedEntryTellsNothing()
    {
        QSignalSpy finished(m_watcher, &TextEntryWatcher::editFinished);
        QTest::mouseClick(m_entry, Qt::LeftButton);
        QTest::keyClick(m_entry, Qt::Key_Return);
        leave();
        QVERIFY(!m_entry->hasFocus());
        QCOMPARE(finished.count(), 0);
    }

    void theNextEditStartsFromTheLast()
    {
        QSignalSpy finished(m_watcher, &TextEntryWatcher::editFinished);
        for (const char* text : {"second", "third", ""}) {
            type(QLatin1String(text));
            leave();
        }
        QCOMPARE(finished.count(), 3);
        QCOMPARE(finished.at(1).at(0).toString(), QStringLiteral("second"));
        QCOMPARE(finished.at(2).at(0).toString(), QStringLiteral("third"));
    }

    void textsSetByCodeAreNotTold()
    {
        QSignalSpy finished(m_watcher, &TextEntryWatcher::editFinished);
        QTest::mouseClick(m_entry, Qt::LeftButton);
        m_entry->setText(QStringLiteral("set"));
        QTest::keyClick(m_entry, Qt::Key_Return);
        leave();
        QCOMPARE(finished.count(), 0);

        type(QString());
        leave();
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toString(), QStringLiteral("set"));
    }

    void aTextSetDuringAnEditEndsIt()
    {
        QSignalSpy finished(m_watcher, &TextEntryWatcher::editFinished);
        type(QStringLiteral("second"));
        m_entry->setText(QStringLiteral("set"));
        leave();
        QCOMPARE(finished.count(), 0);
    }

    void theReceiverMayPutTheTextBack()
    {
        connect(m_watcher, &TextEntryWatcher::editFinished, m_entry, &QLineEdit::setText);
        QSignalSpy finished(m_watcher, &TextEntryWatcher::editFinished);
        for (int round = 0; round < 2; ++round) {
            type(QString());
            leave();
            QCOMPARE(m_entry->text(), QStringLiteral("first"));
        }
        QCOMPARE(finished.count(), 2);
        QCOMPARE(finished.at(1).at(0).toString(), QStringLiteral("first"));
    }

    void locks_data()
    {
        QTest::addColumn<bool>("wholeGroup");
        QTest::newRow("the entry") << false;
        QTest::newRow("the panel around it") << true;
    }

    /// A lock takes the focus away, and the edit goes on afterwards.
    void locks()
    {
        QFETCH(bool, wholeGroup);
        QSignalSpy finished(m_watcher, &TextEntryWatcher::editFinished);
        QWidget* const locked = wholeGroup ? m_group : m_entry;
        type(QString());
        locked->setEnabled(false);
        QVERIFY(!m_entry->hasFocus());
        QCOMPARE(finished.count(), 0);
        locked->setEnabled(true);
        QCOMPARE(finished.count(), 0);
        QCOMPARE(m_entry->text(), QString());

        QTest::mouseClick(m_entry, Qt::LeftButton);
        leave();
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toString(), QStringLiteral("first"));
    }

    void aHiddenEntryHasEndedItsEdit()
    {
        QSignalSpy finished(m_watcher, &TextEntryWatcher::editFinished);
        type(QString());
        m_entry->hide();
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toString(), QStringLiteral("first"));
    }

    void aDeletedEntryTellsNothing()
    {
        QSignalSpy finished(m_watcher, &TextEntryWatcher::editFinished);
        type(QStringLiteral("second"));
        delete m_entry;
        QCOMPARE(finished.count(), 0);
    }

    void livesAsLongAsTheEntry()
    {
        const QPointer<TextEntryWatcher> watcher = m_watcher;
        delete m_entry;
        QVERIFY(!watcher);
    }
};

VD_TEST_MAIN(TestTextEntry)
#include "tst_textentry.moc"
