#include "charttool.h"
#include "lockspy.h"

#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QSlider>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace vardeno::testcharttools;

/// A person types, holds a key and turns the wheel while every change repaints the chart and locks the
/// panels.
class TestInputKeeper : public TestCase
{
    Q_OBJECT

private:
    static constexpr int keyDelay = 100; ///< ms: ten characters a second

    /// The tool in a host's window that is shown and active, its first repaint done.
    struct Shown
    {
        QWidget window;
        QLineEdit neighbour; ///< a field of the host
        VTestChartTools tool;
        charttool::User user{tool};

        Shown()
        {
            auto* column = new QVBoxLayout(&window);
            column->addWidget(&neighbour);
            column->addWidget(&tool);
            window.show();
            window.activateWindow();
            const bool ready = QTest::qWaitForWindowActive(&window) && idle();
            Q_ASSERT(ready);
            Q_UNUSED(ready)
        }

        /// Waits until no control is locked, what was held has been given back and nothing more is coming.
        bool idle()
        {
            QElapsedTimer quiet;
            const auto isQuiet = [&] {
                QCoreApplication::sendPostedEvents(); // what is given back may begin another repaint
                if (user.mask()->isVisible() || !user.cancel()->isEnabled())
                    quiet.invalidate();
                else if (!quiet.isValid())
                    quiet.start();
                return quiet.isValid() && quiet.elapsed() > 130;
            };
            return QTest::qWaitFor(isQuiet, 20000);
        }

        /// Locks the panels until `unlock`: begins a repaint cycle whose reports the tool does not listen to.
        bool lock()
        {
            tool.setUpdateFlag(true);
            tool.slotGetHeightWidth();
            return QTest::qWaitFor([this] { return !user.cancel()->isEnabled(); });
        }

        bool unlock()
        {
            tool.setUpdateFlag(false);
            tool.slotGetHeightWidth();
            return idle();
        }

        void type(const QString& text)
        {
            for (const QChar c : text)
                QTest::keyClick(window.windowHandle(), c.toLatin1());
        }

        void press(Qt::Key key) { QTest::keyClick(window.windowHandle(), key); }

        void click(const QWidget* widget)
        {
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                              widget->mapTo(&window, widget->rect().center()));
        }

        QLineEdit* customText() { return tool.findChild<QLineEdit*>(QStringLiteral("selfInputLineEdit")); }

        SpinEditBox* entry(double maximum)
        {
            const auto entries = tool.findChildren<SpinEditBox*>();
            for (SpinEditBox* entry : entries) {
                if (entry->maximum() == maximum)
                    return entry;
            }
            return nullptr;
        }
    };

    /// A step of the wheel as the platform reports it: to the window, which finds who lies on top there.
    static void turn(QWidget* control)
    {
        QWidget* window = control->window();
        const QPoint place = control->mapTo(window, control->rect().center());
        QWheelEvent event(place, window->mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(window->windowHandle(), &event);
    }

    static void turnSlowly(QWidget* control, int steps)
    {
        for (int i = 0; i < steps; ++i) {
            turn(control);
            QTest::qWait(40);
        }
    }

    static void compose(const QString& preedit, const QString& committed)
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(committed);
        QApplication::sendEvent(QGuiApplication::focusObject(), &event);
    }

    /// As the platform asks when the focus has moved, to switch the input method on or off.
    static bool takesComposedText()
    {
        QInputMethodQueryEvent query(Qt::ImEnabled);
        QApplication::sendEvent(QGuiApplication::focusObject(), &query);
        return query.value(Qt::ImEnabled).toBool();
    }

    static void keysToFocus(QWidget* window, const QString& text)
    {
        for (const QChar c : text) {
            QTest::keyClick(window->focusWidget(), c.toLatin1());
            QTest::qWait(keyDelay);
        }
    }

private Q_SLOTS:
    void typedTextArrivesWhole()
    {
        Shown shown;
        QLineEdit* entry = shown.customText();
        entry->setFocus();
        entry->selectAll();
        keysToFocus(&shown.tool, QStringLiteral("main stage left 24x13"));
        QVERIFY(shown.idle());
        QCOMPARE(entry->text(), QStringLiteral("main stage left 24x13"));
        QVERIFY(entry->hasFocus());
        QCOMPARE(entry->cursorPosition(), entry->text().size());
    }

    void typingBesideAnotherToolThatRepaints()
    {
        Shown shown;
        VTestChartTools other;
        shown.window.layout()->addWidget(&other);
        charttool::User otherUser(other);
        QVERIFY(otherUser.settle());
        QTimer repaints;
        QObject::connect(&repaints, &QTimer::timeout, &other, &VTestChartTools::slotGetHeightWidth);
        QLineEdit* entry = shown.customText();
        QSignalSpy ends(entry, &QLineEdit::editingFinished);
        entry->setFocus();
        entry->selectAll();
        other.setUpdateFlag(true); // the lock stays
        other.slotGetHeightWidth();
        QTRY_VERIFY(!otherUser.cancel()->isEnabled());
        QCOMPARE(shown.window.focusWidget(), entry);
        other.setUpdateFlag(false);
        other.slotGetHeightWidth();
        QVERIFY(otherUser.settle());
        QCOMPARE(ends.count(), 0); // the edit goes on
        repaints.start(70);
        keysToFocus(&shown.window, QStringLiteral("main stage left 24x13"));
        repaints.stop();
        QVERIFY(shown.idle());
        QVERIFY(otherUser.settle());
        QCOMPARE(entry->text(), QStringLiteral("main stage left 24x13"));
        QVERIFY(entry->hasFocus());
        QCOMPARE(entry->cursorPosition(), entry->text().size());
    }

    void typingGoesOnAtTheCursor()
    {
        Shown shown;
        QLineEdit* entry = shown.customText();
        entry->setText(QStringLiteral("ad"));
        QVERIFY(shown.idle());
        entry->setFocus();
        entry->setCursorPosition(1);
        keysToFocus(&shown.tool, QStringLiteral("bc"));
        QVERIFY(shown.idle());
        QCOMPARE(entry->text(), QStringLiteral("abcd"));
        QCOMPARE(entry->cursorPosition(), 3);
    }

    void clearedTextMayBeTypedAnew()
    {
        Shown shown;
        QLineEdit* entry = shown.customText();
        entry->setFocus();
        entry->selectAll();
        QTest::keyClick(entry, Qt::Key_Delete);
        QVERIFY(shown.idle());
        QCOMPARE(entry->text(), QString());
        keysToFocus(&shown.tool, QStringLiteral("new"));
        QVERIFY(shown.idle());
        QCOMPARE(entry->text(), QStringLiteral("new"));
    }

    void numberTypedDuringARepaintArrivesWhole()
    {
        Shown shown;
        SpinEditBox* width = shown.entry(4320);
        width->setFocus();
        width->selectAll();
        QTest::keyClicks(width, QStringLiteral("1600"));
        QTest::keyClick(width, Qt::Key_Tab); // commits the width, and with it begins a repaint
        keysToFocus(&shown.tool, QStringLiteral("900"));
        QTest::keyClick(shown.tool.focusWidget(), Qt::Key_Return);
        QVERIFY(shown.idle());
        const PublicChartData data = shown.tool.getTestChartToolsData().publicData;
        QCOMPARE(data.resolutionWidth, 1600);
        QCOMPARE(data.resolutionHeight, 900);
    }

    void heldArrowKeySteps()
    {
        Shown shown;
        SpinEditBox* rows = nullptr;
        const auto entries = shown.tool.findChildren<SpinEditBox*>();
        for (SpinEditBox* entry : entries) {
            if (entry->minimum() == 1 && entry->maximum() == 100 && entry->value() == 9)
                rows = entry;
        }
        QVERIFY(rows);
        rows->setFocus();
        for (int i = 0; i < 12; ++i) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QString(), false);
            QApplication::sendEvent(shown.tool.focusWidget(), &press);
            QKeyEvent release(QEvent::KeyRelease, Qt::Key_Up, Qt::NoModifier, QString(), false);
            QApplication::sendEvent(shown.tool.focusWidget(), &release);
            QTest::qWait(30);
        }
        QVERIFY(shown.idle());
        QCOMPARE(int(rows->value()), 21);
        QVERIFY(rows->hasFocus());
    }

    /// An input method drops what it is composing where its entry is locked or loses the focus.
    void typingGoesOn()
    {
        Shown shown;
        QVERIFY(!shown.tool.typingGoesOn());
        shown.tool.setProperty("typingGoesOn", true);
        QVERIFY(shown.tool.typingGoesOn());
        QLineEdit* entry = shown.customText();
        entry->setFocus();
        entry->selectAll();
        compose(QStringLiteral("ni"), QString());
        const LockSpy locks(entry);
        QVERIFY(shown.lock());
        QVERIFY(!shown.entry(4320)->isEnabled());
        compose(QString(), QStringLiteral("\u4f60"));
        shown.type(QStringLiteral("b"));
        QCOMPARE(entry->text(), QStringLiteral("\u4f60b")); // at once
        compose(QStringLiteral("hao"), QString());
        shown.tool.setUpdateFlag(false);
        shown.tool.slotGetHeightWidth();
        QVERIFY(shown.idle());
        compose(QString(), QStringLiteral("\u597d"));
        QCOMPARE(entry->text(), QStringLiteral("\u4f60b\u597d"));
        QVERIFY(!locks.wasLocked());
        QVERIFY(entry->hasFocus());
        QVERIFY(shown.idle());
        QVERIFY(!locks.wasLocked());
        QCOMPARE(shown.tool.getTestChartToolsData().selfData.selfText, entry->text().toStdString());
    }

    void typingGoesOnUntilAKeyLeaves()
    {
        Shown shown;
        shown.tool.setTypingGoesOn(true);
        QLineEdit* entry = shown.customText();
        entry->setFocus();
        entry->selectAll();
        QVERIFY(shown.lock());
        shown.type(QStringLiteral("ab"));
        shown.press(Qt::Key_Tab);
        shown.type(QStringLiteral("7"));
        QCOMPARE(entry->text(), QStringLiteral("ab"));
        QVERIFY(entry->hasFocus());
        QVERIFY(shown.unlock());
        QCOMPARE(entry->text(), QStringLiteral("ab"));
        QVERIFY(!entry->hasFocus());
    }

    void turnedWheelSteps_data()
    {
        QTest::addColumn<bool>("slider");
        QTest::newRow("entry") << false;
        QTest::newRow("slider") << true;
    }

    void turnedWheelSteps()
    {
        QFETCH(bool, slider);
        Shown shown;
        QWidget* control = slider ? static_cast<QWidget*>(shown.tool.findChild<QSlider*>())
                                  : static_cast<QWidget*>(shown.entry(4320));
        const double before = control->property("value").toDouble();
        turn(control);
        QVERIFY(shown.idle());
        const double step = before - control->property("value").toDouble();
        QVERIFY(step > 0);
        turnSlowly(control, 9);
        QVERIFY(shown.idle());
        QCOMPARE(control->property("value").toDouble(), before - 10 * step);
    }

    void clickThatEndsAnEditArrives_data()
    {
        QTest::addColumn<int>("held");
        QTest::addColumn<QPoint>("released");
        QTest::addColumn<int>("clicks");
        QTest::newRow("quickly") << 0 << QPoint(10, 10) << 1;
        QTest::newRow("into the lock") << 50 << QPoint(10, 10) << 1;
        QTest::newRow("beyond the lock") << 600 << QPoint(10, 10) << 1;
        QTest::newRow("released elsewhere") << 50 << QPoint(-30, 10) << 0;
        QTest::newRow("released elsewhere, late") << 600 << QPoint(-30, 10) << 0;
    }

    void clickThatEndsAnEditArrives()
    {
        QFETCH(int, held);
        QFETCH(QPoint, released);
        QFETCH(int, clicks);
        Shown shown;
        SpinEditBox* width = shown.entry(4320);
        width->setFocus();
        width->selectAll();
        QTest::keyClicks(width, QStringLiteral("1600"));
        QSignalSpy ended(&shown.tool, &VTestChartTools::sigTestToolEditDone);
        QWindow* window = shown.window.windowHandle();
        const QPoint origin = shown.user.cancel()->mapTo(&shown.window, QPoint());
        QTest::mousePress(window, Qt::LeftButton, {}, origin + QPoint(10, 10));
        QTest::qWait(held);
        QTest::mouseMove(window, origin + released);
        QTest::mouseRelease(window, Qt::LeftButton, {}, origin + released);
        QVERIFY(shown.idle());
        QCOMPARE(ended.count(), clicks);
        QCOMPARE(shown.tool.getTestChartToolsData().publicData.resolutionWidth, 1600);
        QTest::mouseClick(window, Qt::LeftButton, {}, origin + QPoint(10, 10));
        QCOMPARE(ended.count(), clicks + 1);
    }

    void secondPressOfADoubleClickArrives()
    {
        Shown shown;
        SpinEditBox* width = shown.entry(4320);
        width->setFocus();
        width->selectAll();
        QTest::keyClicks(width, QStringLiteral("1600"));
        QSignalSpy ended(&shown.tool, &VTestChartTools::sigTestToolEditDone);
        QPushButton* cancel = shown.user.cancel();
        const auto send = [cancel](QEvent::Type type, Qt::MouseButtons buttons) {
            const QPoint place(10, 10);
            QMouseEvent event(type, place, cancel->mapToGlobal(place), Qt::LeftButton, buttons,
                              Qt::NoModifier);
            QApplication::sendEvent(cancel, &event);
        };
        cancel->setFocus(Qt::MouseFocusReason);
        send(QEvent::MouseButtonDblClick, Qt::LeftButton);
        QVERIFY(shown.lock());
        send(QEvent::MouseButtonRelease, Qt::NoButton);
        QVERIFY(shown.unlock());
        QTRY_COMPARE(ended.count(), 1);
    }

    void turnedWheelStepsInALock_data() { turnedWheelSteps_data(); }

    void turnedWheelStepsInALock()
    {
        QFETCH(bool, slider);
        Shown shown;
        QWidget* control = slider ? static_cast<QWidget*>(shown.tool.findChild<QSlider*>())
                                  : static_cast<QWidget*>(shown.entry(4320));
        const double before = control->property("value").toDouble();
        turn(control);
        const double step = before - control->property("value").toDouble();
        QVERIFY(step > 0);
        QVERIFY(shown.lock());
        for (int i = 0; i < 5; ++i)
            turn(control);
        QCOMPARE(control->property("value").toDouble(), before - step);
        QVERIFY(shown.unlock());
        QCOMPARE(control->property("value").toDouble(), before - 6 * step);
    }

    void turnBeforeALockFindsItsFocus()
    {
        Shown shown;
        auto* position = shown.user.logoPanel()->findChild<QComboBox*>();
        shown.user.reveal(position);
        position->setFocus(); // it turns for no one else
        turn(position);
        QCOMPARE(position->currentIndex(), 1);
        QVERIFY(shown.user.mask()->isVisible());
        turn(position);
        QCOMPARE(position->currentIndex(), 1);
        QVERIFY(shown.idle());
        QCOMPARE(position->currentIndex(), 2);
    }

    void clickOnALockedButtonIsLost()
    {
        Shown shown;
        QSignalSpy ended(&shown.tool, &VTestChartTools::sigTestToolEditDone);
        QVERIFY(shown.lock());
        for (int i = 0; i < 3; ++i)
            shown.click(shown.user.cancel());
        QVERIFY(shown.unlock());
        QCOMPARE(ended.count(), 0);
        shown.click(shown.user.cancel());
        QCOMPARE(ended.count(), 1);
    }

    void clickThatEndsAnEditMayEndTheTool()
    {
        QWidget window;
        QPointer<VTestChartTools> tool = new VTestChartTools(&window);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto* cancel = tool->findChild<QPushButton*>(QStringLiteral("CancleButton"));
        QVERIFY(QTest::qWaitFor([cancel] { return cancel->isEnabled(); }));
        connect(tool, &VTestChartTools::sigTestToolEditDone, &window, [&tool] { delete tool; });
        const QPoint place = cancel->mapTo(&window, QPoint(10, 10));
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, place);
        cancel->setEnabled(false);
        cancel->setEnabled(true); // as a lock in between does it
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, place);
        QVERIFY(QTest::qWaitFor([&tool] { return !tool; }));
    }

    void fieldClickedInALockKeepsTheFocus()
    {
        Shown shown;
        QLineEdit* entry = shown.customText();
        entry->setFocus();
        entry->selectAll();
        QVERIFY(shown.lock());
        shown.type(QStringLiteral("ab"));
        shown.click(&shown.neighbour);
        shown.type(QStringLiteral("cde"));
        shown.press(Qt::Key_Left);
        QVERIFY(shown.unlock());
        QVERIFY(shown.neighbour.hasFocus());
        QCOMPARE(entry->text(), QStringLiteral("ab"));
        QCOMPARE(shown.neighbour.text(), QStringLiteral("cde"));
        QCOMPARE(shown.neighbour.cursorPosition(), 2);
        shown.type(QStringLiteral("f"));
        QCOMPARE(shown.neighbour.text(), QStringLiteral("cdfe"));
    }

    void clickOnTheCoverLeavesTheFocus()
    {
        Shown shown;
        QLineEdit* entry = shown.customText();
        shown.user.reveal(entry);
        entry->setFocus();
        entry->selectAll();
        QVERIFY(shown.lock());
        shown.click(entry);
        QCOMPARE(shown.window.focusWidget(), static_cast<QWidget*>(shown.user.settings()));
        shown.type(QStringLiteral("ab"));
        QVERIFY(shown.unlock());
        QVERIFY(entry->hasFocus());
        QCOMPARE(entry->text(), QStringLiteral("ab"));
    }

    void fieldClickedInALockEndsTheEdit()
    {
        Shown shown;
        SpinEditBox* width = shown.entry(4320);
        width->setFocus();
        width->selectAll();
        shown.type(QStringLiteral("16"));
        QVERIFY(shown.lock());
        shown.type(QStringLiteral("00"));
        shown.click(&shown.neighbour);
        QVERIFY(shown.unlock());
        QVERIFY(shown.neighbour.hasFocus());
        QCOMPARE(shown.tool.getTestChartToolsData().publicData.resolutionWidth, 1600);
    }

    void tabInALockMovesWhatIsTypedAfterIt()
    {
        Shown shown;
        SpinEditBox* width = shown.entry(4320);
        width->setFocus();
        width->selectAll();
        QVERIFY(shown.lock());
        shown.type(QStringLiteral("1600"));
        shown.press(Qt::Key_Tab);
        shown.type(QStringLiteral("900"));
        shown.press(Qt::Key_Return);
        QVERIFY(shown.unlock());
        const PublicChartData data = shown.tool.getTestChartToolsData().publicData;
        QCOMPARE(data.resolutionWidth, 1600);
        QCOMPARE(data.resolutionHeight, 900);
    }

    void tabInALockLeavesATextEntry()
    {
        Shown shown;
        QLineEdit* entry = shown.customText();
        entry->setFocus();
        entry->selectAll();
        QVERIFY(shown.lock());
        shown.type(QStringLiteral("ab"));
        shown.press(Qt::Key_Tab);
        shown.type(QStringLiteral("7"));
        QVERIFY(shown.unlock());
        QCOMPARE(entry->text(), QStringLiteral("ab"));
        QVERIFY(!entry->hasFocus());
    }

    void composedTextArrivesWhole()
    {
        Shown shown;
        QLineEdit* entry = shown.customText();
        entry->setFocus();
        entry->selectAll();
        QVERIFY(shown.lock());
        shown.type(QStringLiteral("a"));
        compose(QStringLiteral("ni"), QString());
        compose(QString(), QStringLiteral("\u4f60"));
        compose(QString(), QStringLiteral("\u597d"));
        shown.type(QStringLiteral("b"));
        QVERIFY(shown.unlock());
        QCOMPARE(entry->text(), QStringLiteral("a\u4f60\u597db"));
    }

    void inputMethodStaysOnInALock()
    {
        Shown shown;
        shown.customText()->setFocus();
        QVERIFY(takesComposedText());
        QVERIFY(shown.lock());
        QVERIFY(takesComposedText());
        QVERIFY(shown.unlock());
        shown.user.cancel()->setFocus();
        QVERIFY(shown.lock());
        QVERIFY(!takesComposedText());
        QVERIFY(shown.unlock());
    }

    void keysOfAnEntryAreNoShortcutsInALock()
    {
        Shown shown;
        QLineEdit* entry = shown.customText();
        entry->setText(QStringLiteral("abc"));
        QVERIFY(shown.idle());
        entry->setFocus();
        entry->setCursorPosition(0);
        QShortcut shortcut(Qt::Key_Delete, &shown.window);
        QSignalSpy activated(&shortcut, &QShortcut::activated);
        QVERIFY(shown.lock());
        shown.press(Qt::Key_Delete);
        QVERIFY(shown.unlock());
        QCOMPARE(activated.count(), 0);
        QCOMPARE(entry->text(), QStringLiteral("bc"));
    }

    void focusGivenAfterAReportOfAnIdleToolStays()
    {
        Shown shown;
        QLineEdit* entry = shown.customText();
        SpinEditBox* width = shown.entry(4320);
        entry->setFocus();
        shown.tool.slotUpdatePaintEventStatus(QStringLiteral("m_pPaintBasicWidget"));
        width->setFocus();
        width->selectAll();
        shown.type(QStringLiteral("1600"));
        shown.press(Qt::Key_Return);
        QVERIFY(shown.idle());
        QVERIFY(width->hasFocus());
        QCOMPARE(shown.tool.getTestChartToolsData().publicData.resolutionWidth, 1600);
    }

    void focusElsewhereInTheWindowIsLeftThere()
    {
        Shown shown;
        shown.neighbour.setFocus();
        QVERIFY(shown.lock());
        shown.type(QStringLiteral("abc"));
        QVERIFY(shown.unlock());
        QVERIFY(shown.neighbour.hasFocus());
        QCOMPARE(shown.neighbour.text(), QStringLiteral("abc"));
    }
};

VD_TEST_MAIN(TestInputKeeper)
#include "tst_inputkeeper.moc"
