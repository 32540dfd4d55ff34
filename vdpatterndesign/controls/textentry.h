#pragma once

#include <QObject>

class QLineEdit;

namespace vardeno::testcharttools {

/// Tells what a text entry held before an edit, when the edit ends (Enter, focus lost). An entry that loses
/// the focus because it is locked has not ended its edit. Lives as long as the entry.
class TextEntryWatcher : public QObject
{
    Q_OBJECT

public:
    explicit TextEntryWatcher(QLineEdit* entry);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Texts that were set by code do not come here.
    void editFinished(const QString& previousText);

private:
    void finish();

    QLineEdit* m_entry;
    QString m_settled; ///< what the entry held when it was last set, or last left
};

} // namespace vardeno::testcharttools
