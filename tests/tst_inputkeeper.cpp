#include "spineditbox.h"
#include "testcase.h"
#include "vtestcharttools.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QWheelEvent>

using namespace vardeno::testcharttools;

/// A person types, holds a key and turns the wheel while every change repaints the chart and locks the
/// panels.
class TestInputKeeper : public TestCase
{
    Q_OBJECT

private:
    static constexpr int keyDelay = 100; ///< ms: ten characters a second

    /// The tool in a window that is shown and active, its first repaint done.
    struct Shown
    {
        VTestChartTools tool;

        Shown()
        {
            tool.show();
            tool.activateWindow();
            const bool ready = QTest::qWaitForWindowActive(&tool) && idle();
            Q_ASSERT(ready);
            Q_UNUSED(ready)
        }

        /// Waits until no control is locked and nothing more is coming.
        bool idle()
        {
            QTest::qWait(250);
            return QTest::qWaitFor([this] { return mask()->isHidden(); });
        }

        QWidget* mask() { return tool.findChild<QWidget*>(QStringLiteral("maskWidget")); }
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

    static void turn(QWidget* control, int steps)
    {
        const QPoint local = control->rect().center();
        QWidget* window = control->window();
        const QPoint inWindow = control->mapTo(window, local);
        for (int i = 0; i < steps; ++i) {
            // As the platform does it: to the widget that lies on top there.
            QWidget* target = window->childAt(inWindow);
            if (qobject_cast<QLineEdit*>(target))
                target = target->parentWidget(); // an entry's own line edit passes the wheel on to the entry
            QWheelEvent event(QPointF(target->mapFrom(window, inWindow)),
                              QPointF(window->mapToGlobal(inWindow)), {}, QPoint(0, -120), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(target, &event);
            QTest::qWait(40);
        }
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
        turn(control, 1);
        const double step = before - control->property("value").toDouble();
        QVERIFY(step > 0);
        turn(control, 9);
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
        const auto* cancel = shown.tool.findChild<QWidget*>(QStringLiteral("saveWidget"))
                                 ->findChild<QPushButton*>(QStringLiteral("CancleButton"));
        QSignalSpy ended(&shown.tool, &VTestChartTools::sigTestToolEditDone);
        QWindow* window = shown.tool.windowHandle();
        const QPoint origin = cancel->mapTo(&shown.tool, QPoint());
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

    void focusElsewhereInTheWindowIsLeftThere()
    {
        QWidget window;
        auto* row = new QHBoxLayout(&window);
        auto* other = new QLineEdit;
        auto* tool = new VTestChartTools;
        row->addWidget(other);
        row->addWidget(tool);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::qWait(250);
        other->setFocus();
        tool->setTestChartToolsData(TestChartToolsData());
        QTest::qWait(400);
        QVERIFY(other->hasFocus());
    }
};

VD_TEST_MAIN(TestInputKeeper)
#include "tst_inputkeeper.moc"
