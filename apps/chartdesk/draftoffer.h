#pragma once

#include "draftkeeper.h"

#include <QLocale>
#include <QObject>

#include <memory>
#include <vector>

class QWidget;

/// Asks what is to become of edits that were not ended, one after the other.
class DraftOffer : public QObject
{
    Q_OBJECT

public:
    /// `window` has the questions.
    explicit DraftOffer(QWidget* window);

    void setDateLocale(const QLocale& locale) { m_dates = locale; }
    /// All that were left behind, the latest first.
    void offerAll();
    /// The next of those that were not answered.
    void offerNext();
    /// The folder of the draft that is wanted.
    std::unique_ptr<DraftFolder> take();

Q_SIGNALS:
    /// The edit of `draft` is to go on.
    void wanted(const Draft& draft);

private:
    void ask(const Draft& draft);
    void discard();

    QWidget* m_window;
    QLocale m_dates;
    std::vector<std::unique_ptr<DraftFolder>> m_abandoned;
};
