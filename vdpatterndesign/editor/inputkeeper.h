#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <vector>

class QAbstractButton;
class QEvent;

namespace vardeno::testcharttools {

/// Keeps a person's input through the moments in which the panels are locked: remembers the control that had
/// the focus, with its cursor and selection, and the one that is given it meanwhile; holds the keys and the
/// composed text that arrive, the turns of the wheel on the control that was being turned and the click whose
/// press began before; and does all of it at the end, in its order. So typing, a held arrow key, a turning
/// wheel and the mouse go on as if there were no lock.
class InputKeeper : public QObject
{
public:
    /// Keeps the input of `tool` and what is in it; the focus it gives back to any widget of the tool's
    /// window.
    explicit InputKeeper(QWidget* tool);
    ~InputKeeper() override;

    /// The controls are about to become inert, or to lose the focus; again meanwhile notes the control that
    /// has been given the focus since.
    void begin();
    /// The controls work again: what was kept is given back once the current event has been dealt with,
    /// unless the controls become inert again before.
    void end();

    /// Whether a text entry that has the focus when the controls are about to become inert does not, and what
    /// is typed goes on into it, until a key leaves it. An input method needs that: where its entry becomes
    /// inert it drops what it is composing. At first not.
    void setTypingGoesOn(bool goesOn) { m_typingGoesOn = goesOn; }
    bool typingGoesOn() const { return m_typingGoesOn; }
    /// The entry that does not become inert; null for none.
    QWidget* spared() const { return m_spared; }

    /// Where turns of the wheel arrive instead of at the controls, from the first change on.
    void setCover(const QWidget* cover) { m_cover = cover; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Place;

    bool holdTyped(QEvent* event);
    bool holdWheel(QWidget* target, QEvent* event);
    bool askFocus(QWidget* target, QEvent* event);
    void watchMouse(QWidget* target, const QEvent* event);
    QWidget* focus() const;
    bool isChosen(const QWidget* widget) const;
    void rememberFocus();
    void giveBack();
    void giveFocusBack(const Place& place);
    void type(QEvent* event);
    void replay();

    QWidget* m_tool;
    const QWidget* m_cover = nullptr;
    QPointer<QWidget> m_spared;
    bool m_leaving = false; ///< the spared entry, by a key that is held
    bool m_typingGoesOn = false;
    bool m_active = false;
    bool m_ending = false;
    bool m_sending = false;     ///< what is not to be held again
    QPointer<QWidget> m_focus;  ///< for which keys are held, or which got them in the replay
    QPointer<QWidget> m_turned; ///< the control that last got a turn of the wheel
    QPointer<QAbstractButton> m_pressed;
    std::vector<std::function<void()>> m_held; ///< what a person did, to be done at the end
};

} // namespace vardeno::testcharttools
