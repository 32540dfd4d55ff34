#include "common/textentry.h"

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
    connect(entry, &QLineEdit::editingFinished, this, &TextEntryWatcher::finish);
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
