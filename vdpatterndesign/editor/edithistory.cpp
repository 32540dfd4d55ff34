#include "edithistory.h"

#include "editor/editordelays.h"
#include "editor/recordhistory.h"
#include "settingpanel.h"

#include <spineditbox.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>

namespace vardeno::testcharttools {

namespace {

bool asksToUndo(const QKeyEvent& event)
{
    return event.matches(QKeySequence::Undo);
}

/// On every platform both of the usual ones.
bool asksToRedo(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    return event.matches(QKeySequence::Redo) ||
           (event.key() == Qt::Key_Y && modifiers == Qt::ControlModifier) ||
           (event.key() == Qt::Key_Z && modifiers == (Qt::ControlModifier | Qt::ShiftModifier));
}

/// Whether an entry holds what was typed and is no value yet.
bool isTypedIn(const SpinEditBox& entry)
{
    return entry.text() != entry.prefix() + entry.textFromValue(entry.value()) + entry.suffix();
}

} // namespace

class EditHistory::Impl
{
public:
    bool goesOn() const;
    bool endTyping() const;

    QWidget* tool;
    std::function<TestChartToolsData()> collect;
    std::function<void(const TestChartToolsData&)> show;
    RecordHistory history;
    QElapsedTimer sinceLast;
    bool dragging = false; ///< the last change came while the button was held that still is
    bool noting = false;   ///< once the current event has been dealt with
    bool keysOn = false;
};

bool EditHistory::Impl::goesOn() const
{
    const bool stillHeld = dragging && QGuiApplication::mouseButtons() != Qt::NoButton;
    return stillHeld || (sinceLast.isValid() && sinceLast.elapsed() < editorDelays().burst);
}

/// A typed number becomes the entry's value, as it does when the focus leaves.
bool EditHistory::Impl::endTyping() const
{
    QWidget* focus = tool->window()->focusWidget();
    auto* entry = tool->isAncestorOf(focus) ? qobject_cast<SpinEditBox*>(focus) : nullptr;
    if (!entry || !isTypedIn(*entry))
        return false;
    entry->interpretText();
    return true;
}

EditHistory::EditHistory(QWidget* tool, std::function<TestChartToolsData()> collect,
                         std::function<void(const TestChartToolsData&)> show)
    : d(new Impl{tool, std::move(collect), std::move(show), RecordHistory(), {}})
{
    qApp->installEventFilter(this);
}

EditHistory::~EditHistory() = default;

bool EditHistory::canUndo() const
{
    return d->history.canUndo();
}

bool EditHistory::canRedo() const
{
    return d->history.canRedo();
}

void EditHistory::watch(const SettingPanel* panel)
{
    connect(panel, &SettingPanel::changed, this, &EditHistory::noteLater);
}

void EditHistory::restart()
{
    change([this] { d->history.restart(d->collect()); });
}

void EditHistory::settle()
{
    note();
}

void EditHistory::amend()
{
    change([this] { d->history.amend(d->collect()); });
}

void EditHistory::setKeysOn(bool on)
{
    d->keysOn = on;
}

bool EditHistory::keysOn() const
{
    return d->keysOn;
}

void EditHistory::undo()
{
    const QPointer<EditHistory> alive(this); // a host may delete the tool when it is told
    const bool typed = d->endTyping();
    const bool changed = alive && note();
    if (!alive || (typed && !changed))
        return; // it was no number, and is taken back
    if (canUndo())
        change([this] { d->show(d->history.undo()); });
}

void EditHistory::redo()
{
    const QPointer<EditHistory> alive(this);
    d->endTyping();
    if (alive)
        note();
    if (alive && canRedo())
        change([this] { d->show(d->history.redo()); });
}

bool EditHistory::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease)
        d->dragging = false;
    const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (!d->keysOn || !isKey || !watched->isWidgetType())
        return false;
    const auto* target = static_cast<QWidget*>(watched);
    return (target == d->tool || d->tool->isAncestorOf(target)) && handleKey(static_cast<QKeyEvent*>(event));
}

/// An entry's own history would walk through the texts of one field, each a change of the chart.
bool EditHistory::handleKey(QKeyEvent* event)
{
    const bool undoing = asksToUndo(*event);
    if (!undoing && !asksToRedo(*event))
        return false;
    if (event->type() == QEvent::ShortcutOverride) {
        event->ignore(); // a shortcut of the host comes before this key press
        return true;
    }
    event->accept();
    if (undoing)
        undo();
    else
        redo();
    return true;
}

/// One note for all that one event changes.
void EditHistory::noteLater()
{
    if (d->noting)
        return;
    d->noting = true;
    QTimer::singleShot(0, this, [this] { note(); });
}

bool EditHistory::note()
{
    d->noting = false;
    const TestChartToolsData record = d->collect();
    if (record == d->history.current())
        return false;
    const bool goesOn = d->goesOn();
    d->sinceLast.start();
    d->dragging = QGuiApplication::mouseButtons() != Qt::NoButton;
    change([&] { d->history.note(record, goesOn); });
    return true;
}

void EditHistory::change(const std::function<void()>& step)
{
    const bool couldUndo = canUndo();
    const bool couldRedo = canRedo();
    const QPointer<EditHistory> alive(this);
    step();
    if (alive && canUndo() != couldUndo)
        Q_EMIT canUndoChanged(canUndo());
    if (alive && canRedo() != couldRedo)
        Q_EMIT canRedoChanged(canRedo());
}

} // namespace vardeno::testcharttools
