#include "lineedit.h"

#include <QKeyEvent>

namespace vardeno::testcharttools {

namespace {

bool isUndo(const QKeyEvent& event)
{
    return event.matches(QKeySequence::Undo);
}

bool isRedo(const QKeyEvent& event)
{
    return event.matches(QKeySequence::Redo) ||
           (event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier);
}

} // namespace

LineEdit::LineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setContextMenuPolicy(Qt::NoContextMenu);
}

QSize LineEdit::sizeHint() const
{
    constexpr int digits = 8;
    const int width = fontMetrics().horizontalAdvance(QLatin1Char('0')) * digits;
    return {minimumSizeHint().width() + width, QLineEdit::sizeHint().height()};
}

/// Keeps the shortcuts of the window off keys that are meant for the text.
bool LineEdit::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!isReadOnly() && (isUndo(*key) || isRedo(*key))) {
            event->accept();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void LineEdit::keyPressEvent(QKeyEvent* event)
{
    const bool undo = isUndo(*event);
    if (isReadOnly() || !(undo || isRedo(*event))) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    if (undo)
        Q_EMIT undoRequested();
    else
        Q_EMIT redoRequested();
}

} // namespace vardeno::testcharttools
