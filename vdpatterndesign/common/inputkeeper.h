#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <vector>

class QAbstractButton;
class QEvent;

namespace vardeno::testcharttools {

/// Keeps a person's input through the moments in which the panels are locked: remembers the control that had
/// the focus, with its cursor and selection, holds the keys that arrive meanwhile, the turns of the wheel on
/// the control that was being turned and the click whose press began before, and gives all of it back at the
/// end. So typing, a held arrow key, a turning wheel and the mouse go on as if there were no lock.
class InputKeeper : public QObject
{
public:
    /// Keeps the input of `tool` and what is in it; the focus it gives back to any widget of the tool's
    /// window.
    explicit InputKeeper(QWidget* tool);
    ~InputKeeper() override;

    /// The controls are about to become inert, or to lose the focus; again meanwhile changes nothing.
    void begin();
    /// The controls work again: what was kept is given back once the current event has been dealt with,
    /// unless the controls become inert again before.
    void end();

    /// Where turns of the wheel arrive instead of at the controls, from the first change on.
    void setCover(const QWidget* cover) { m_cover = cover; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Cursor
    {
        int position = 0;
        int selectionStart = -1;
        int selectionLength = 0;
    };
    struct Held
    {
        QPointer<QWidget> target;
        std::unique_ptr<QEvent> event; ///< none for the click on a button
    };

    bool holdKey(QWidget* target, QEvent* event);
    bool holdWheel(QWidget* target, QEvent* event);
    void watchMouse(QWidget* target, const QEvent* event);
    void rememberFocus();
    void giveBack();
    void giveFocusBack();
    void replay();

    QWidget* m_tool;
    const QWidget* m_cover = nullptr;
    bool m_active = false;
    bool m_ending = false;
    bool m_replaying = false;
    QPointer<QWidget> m_focus;
    Cursor m_cursor;
    QPointer<QWidget> m_turned; ///< the control that last got a turn of the wheel
    QPointer<QAbstractButton> m_pressed;
    std::vector<Held> m_held;
};

} // namespace vardeno::testcharttools
