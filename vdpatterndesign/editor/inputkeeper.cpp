#include "editor/inputkeeper.h"

#include "support/qtversion.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

#include <memory>

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

/// The event again, as `widget` would have got it.
std::shared_ptr<QEvent> copyOf(const QWheelEvent& event, const QWidget* widget)
{
    return std::make_shared<QWheelEvent>(QPointF(widget->mapFromGlobal(event.globalPosition().toPoint())),
                                         event.globalPosition(), event.pixelDelta(), event.angleDelta(),
                                         event.buttons(), event.modifiers(), event.phase(), event.inverted());
}

std::shared_ptr<QEvent> copyOf(const QKeyEvent& event)
{
    return std::make_shared<QKeyEvent>(event.type(), event.key(), event.modifiers(), event.nativeScanCode(),
                                       event.nativeVirtualKey(), event.nativeModifiers(), event.text(),
                                       event.isAutoRepeat(), ushort(event.count()));
}

std::shared_ptr<QEvent> copyOfTyped(const QEvent& event)
{
    if (event.type() == QEvent::InputMethod)
        return copied(static_cast<const QInputMethodEvent&>(event));
    return copyOf(static_cast<const QKeyEvent&>(event));
}

bool isKeyThatLeaves(const QEvent& event)
{
    if (event.type() == QEvent::InputMethod)
        return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

} // namespace

/// Where the focus was, and how.
struct InputKeeper::Place
{
    explicit Place(QWidget* focus);
    void restore() const;

    QPointer<QWidget> widget;
    int cursor = 0;
    int selectionStart = -1;
    int selectionLength = 0;
};

InputKeeper::Place::Place(QWidget* focus)
    : widget(focus)
{
    const QLineEdit* entry = lineEditOf(focus);
    if (!entry)
        return;
    cursor = entry->cursorPosition();
    selectionStart = entry->selectionStart();
    selectionLength = entry->selectionLength();
}

/// In the control, which has the focus again.
void InputKeeper::Place::restore() const
{
    QLineEdit* entry = lineEditOf(widget);
    if (!entry)
        return;
    entry->setCursorPosition(cursor);
    if (selectionLength > 0) {
        const bool cursorFirst = cursor == selectionStart;
        entry->setSelection(cursorFirst ? selectionStart + selectionLength : selectionStart,
                            cursorFirst ? -selectionLength : selectionLength);
    }
}

InputKeeper::InputKeeper(QWidget* tool)
    : m_tool(tool)
{
    qApp->installEventFilter(this);
}

InputKeeper::~InputKeeper() = default;

void InputKeeper::begin()
{
    m_ending = false;
    if (m_active && !isChosen(focus()))
        return;
    rememberFocus();
    m_active = true;
    if (!lineEditOf(m_focus) || !m_tool->isAncestorOf(m_focus))
        return;
    if (m_typingGoesOn && qobject_cast<QLineEdit*>(m_focus))
        m_spared = m_focus;
    else // before the focus leaves it: an entry that loses the focus while it works has ended its edit
        m_focus->setEnabled(false);
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
    if (isChosen(focus()))
        rememberFocus();
    m_ending = false;
    m_active = false;
    m_spared = nullptr;
    replay();
}

bool InputKeeper::eventFilter(QObject* watched, QEvent* event)
{
    if (m_sending || !watched->isWidgetType())
        return false;
    auto* target = static_cast<QWidget*>(watched);
    if (target != m_tool && !m_tool->isAncestorOf(target))
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
        return holdTyped(event);
    case QEvent::InputMethodQuery:
    case QEvent::ShortcutOverride:
        return askFocus(target, event);
    case QEvent::Wheel:
        return holdWheel(target, event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
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
    if (event->type() != QEvent::MouseButtonRelease) {
        m_pressed = target->isEnabled() ? qobject_cast<QAbstractButton*>(target) : nullptr;
        return;
    }
    const QPointer<QAbstractButton> button = m_pressed;
    m_pressed = nullptr;
    const QPoint place = static_cast<const QMouseEvent*>(event)->globalPos();
    if (!button || button->isDown() || !button->rect().contains(button->mapFromGlobal(place)))
        return;
    m_held.push_back([button] {
        if (button)
            button->click();
    });
    // Another lock that has begun by then gives the click back.
    const auto replayUnlessLocked = [this] {
        if (!m_active)
            replay();
    };
    QMetaObject::invokeMethod(this, replayUnlessLocked, Qt::QueuedConnection);
}

bool InputKeeper::holdTyped(QEvent* event)
{
    if (!m_active || !m_focus || (m_spared && !m_leaving && !isKeyThatLeaves(*event)))
        return false;
    m_leaving = m_spared;
    if (isChosen(focus()))
        rememberFocus();
    m_held.push_back([this, copy = copyOfTyped(*event)] { type(copy.get()); });
    event->accept();
    return true;
}

/// Whether an input method is on, and which keys are no shortcuts, says who has the focus; that is now one
/// which takes no text.
bool InputKeeper::askFocus(QWidget* target, QEvent* event)
{
    if (!m_active || !m_focus || m_focus == focus() || target != focus() ||
        !m_focus->testAttribute(Qt::WA_InputMethodEnabled))
        return false;
    const QScopedValueRollback<bool> sending(m_sending, true);
    QCoreApplication::sendEvent(m_focus, event);
    if (event->type() == QEvent::InputMethodQuery)
        static_cast<QInputMethodQueryEvent*>(event)->setValue(Qt::ImEnabled, true); // though it is locked
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
    m_held.push_back([turned = m_turned, copy = copyOf(wheel, m_turned)] {
        if (turned && turned->isEnabled())
            QCoreApplication::sendEvent(turned, copy.get());
    });
    event->accept(); // or it goes on to every parent, to be held again
    return true;
}

QWidget* InputKeeper::focus() const
{
    return m_tool->window()->focusWidget();
}

/// Panels, which the lock gives the focus to, take none from a person, nor is what lies around the control
/// that had it chosen by a click on the cover.
bool InputKeeper::isChosen(const QWidget* widget) const
{
    return widget && widget != m_focus && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus &&
           !widget->isAncestorOf(m_focus);
}

/// What is held before the controls are inert was done with the focus where it is then.
void InputKeeper::rememberFocus()
{
    m_focus = focus();
    m_leaving = false;
    m_held.insert(m_active ? m_held.end() : m_held.begin(),
                  [this, place = Place(m_focus)] { giveFocusBack(place); });
}

void InputKeeper::giveFocusBack(const Place& place)
{
    m_focus = place.widget;
    if (!m_focus || m_focus == focus())
        return;
    m_focus->setFocus(Qt::OtherFocusReason);
    if (m_focus == focus())
        place.restore();
    else
        m_focus = nullptr; // it is locked for good, or hidden
}

/// To who has the focus by now: a Tab may have moved it.
void InputKeeper::type(QEvent* event)
{
    if (m_focus && focus())
        QCoreApplication::sendEvent(focus(), event);
}

void InputKeeper::replay()
{
    std::vector<std::function<void()>> held;
    held.swap(m_held);
    const QPointer<InputKeeper> alive(this); // a click may end the tool
    m_sending = true;
    for (std::size_t i = 0; alive && i < held.size(); ++i)
        held[i]();
    if (alive)
        m_sending = false;
}

} // namespace vardeno::testcharttools
