#include "controls/textentry.h"

#include <QFocusEvent>
#include <QLineEdit>

namespace vardeno::testcharttools {

TextEntryWatcher::TextEntryWatcher(QLineEdit* entry)
    : QObject(entry)
    , m_entry(entry)
    , m_settled(entry->text())
{
    connect(entry, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!m_entry->isModified())
            m_settled = text;
    });
    connect(entry, &QLineEdit::returnPressed, this, &TextEntryWatcher::finish);
    entry->installEventFilter(this);
}

/// The entry itself tells of the focus only once in an edit, and that is when it is locked. An entry that is
/// being deleted loses the focus when it is no more than a widget.
bool TextEntryWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut && qobject_cast<QLineEdit*>(watched)) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            finish();
    }
    return QObject::eventFilter(watched, event);
}

void TextEntryWatcher::finish()
{
    if (!m_entry->isEnabled() || !m_entry->isModified())
        return;
    const QString previous = m_settled;
    m_settled = m_entry->text();
    m_entry->setModified(false);
    Q_EMIT editFinished(previous);
}

} // namespace vardeno::testcharttools
