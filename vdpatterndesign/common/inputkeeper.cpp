#include "common/inputkeeper.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QWheelEvent>

namespace vardeno::testcharttools {

namespace {

/// The line edit in which a control takes text, null for one that takes none.
QLineEdit* lineEditOf(QWidget* control)
{
    if (auto* lineEdit = qobject_cast<QLineEdit*>(control))
        return lineEdit;
    return qobject_cast<QAbstractSpinBox*>(control) ? control->findChild<QLineEdit*>() : nullptr;
}

bool isTurnable(const QWidget* widget)
{
    return qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QComboBox*>(widget) ||
           qobject_cast<const QAbstractSlider*>(widget);
}

/// The event again, for a widget at `local`.
std::unique_ptr<QEvent> copyOf(const QWheelEvent& event, const QWidget* widget)
{
    return std::make_unique<QWheelEvent>(QPointF(widget->mapFromGlobal(event.globalPosition().toPoint())),
                                         event.globalPosition(), event.pixelDelta(), event.angleDelta(),
                                         event.buttons(), event.modifiers(), event.phase(), event.inverted());
}

std::unique_ptr<QEvent> copyOf(const QKeyEvent& event)
{
    return std::make_unique<QKeyEvent>(event.type(), event.key(), event.modifiers(), event.nativeScanCode(),
                                       event.nativeVirtualKey(), event.nativeModifiers(), event.text(),
                                       event.isAutoRepeat(), ushort(event.count()));
}

} // namespace

InputKeeper::InputKeeper(QWidget* tool)
    : m_tool(tool)
{
    qApp->installEventFilter(this);
}

InputKeeper::~InputKeeper() = default;

void InputKeeper::begin()
{
    m_ending = false;
    if (m_active)
        return;
    m_active = true;
    rememberFocus();
}

void InputKeeper::end()
{
    if (!m_active)
        return;
    m_ending = true;
    // Not now: the last layer may be reporting from within its paint event.
    QMetaObject::invokeMethod(
        this, [this] { giveBack(); }, Qt::QueuedConnection);
}

void InputKeeper::giveBack()
{
    if (!m_ending)
        return;
    m_ending = false;
    m_active = false;
    giveFocusBack();
    replay();
}

bool InputKeeper::eventFilter(QObject* watched, QEvent* event)
{
    if (m_replaying || !watched->isWidgetType())
        return false;
    auto* target = static_cast<QWidget*>(watched);
    if (target != m_tool && !m_tool->isAncestorOf(target))
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return holdKey(target, event);
    case QEvent::Wheel:
        return holdWheel(target, event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        watchMouse(target, event);
        return false;
    default:
        return false;
    }
}

/// A press on a button that ends an edit elsewhere begins a repaint, whose lock lets go of the button before
/// the mouse does.
void InputKeeper::watchMouse(QWidget* target, const QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        m_pressed = target->isEnabled() ? qobject_cast<QAbstractButton*>(target) : nullptr;
        return;
    }
    const QPointer<QAbstractButton> button = m_pressed;
    m_pressed = nullptr;
    const QPoint place = static_cast<const QMouseEvent*>(event)->globalPos();
    if (!button || button->isDown() || !button->rect().contains(button->mapFromGlobal(place)))
        return;
    m_held.push_back({QPointer<QWidget>(button), nullptr});
    if (!m_active)
        QMetaObject::invokeMethod(
            this, [this] { replay(); }, Qt::QueuedConnection);
}

bool InputKeeper::holdKey(QWidget*, QEvent* event)
{
    if (!m_active || !m_focus)
        return false;
    m_held.push_back({m_focus, copyOf(*static_cast<QKeyEvent*>(event))});
    return true;
}

bool InputKeeper::holdWheel(QWidget* target, QEvent* event)
{
    const auto& wheel = *static_cast<QWheelEvent*>(event);
    if (isTurnable(target)) {
        m_turned = target;
        if (target->isEnabled())
            return false;
    }
    const bool covered = m_active || (m_cover && m_cover->isVisible());
    if (!covered || !m_turned ||
        !m_turned->rect().contains(m_turned->mapFromGlobal(wheel.globalPosition().toPoint())))
        return false;
    m_held.push_back({m_turned, copyOf(wheel, m_turned)});
    event->accept(); // or it goes on to every parent, to be held again
    return true;
}

void InputKeeper::rememberFocus()
{
    m_focus = m_tool->window()->focusWidget();
    m_cursor = Cursor();
    const QLineEdit* entry = lineEditOf(m_focus);
    if (!entry)
        return;
    m_cursor = {entry->cursorPosition(), entry->selectionStart(), entry->selectionLength()};
    // Inert before the focus leaves it: an entry that loses the focus while it works has ended its edit.
    if (m_tool->isAncestorOf(m_focus))
        m_focus->setEnabled(false);
}

void InputKeeper::giveFocusBack()
{
    if (!m_focus || !m_focus->isEnabled() || m_focus == m_tool->window()->focusWidget())
        return;
    m_focus->setFocus(Qt::OtherFocusReason);
    QLineEdit* entry = lineEditOf(m_focus);
    if (!entry)
        return;
    entry->setCursorPosition(m_cursor.position);
    if (m_cursor.selectionLength > 0) {
        const bool cursorFirst = m_cursor.position == m_cursor.selectionStart;
        entry->setSelection(cursorFirst ? m_cursor.selectionStart + m_cursor.selectionLength
                                        : m_cursor.selectionStart,
                            cursorFirst ? -m_cursor.selectionLength : m_cursor.selectionLength);
    }
}

void InputKeeper::replay()
{
    std::vector<Held> held;
    held.swap(m_held);
    m_replaying = true;
    for (const Held& each : held) {
        if (!each.target || !each.target->isEnabled())
            continue;
        if (each.event)
            QCoreApplication::sendEvent(each.target, each.event.get());
        else
            static_cast<QAbstractButton*>(each.target.data())->click();
    }
    m_replaying = false;
}

} // namespace vardeno::testcharttools
