#pragma once

#include "chartshelf.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class QLabel;
class QPushButton;

/// Offers for ten seconds to take the last deletion back.
class UndoBar : public QWidget
{
    Q_OBJECT

public:
    explicit UndoBar(QWidget* parent = nullptr);
    ~UndoBar() override;

    void offer(std::unique_ptr<DeletedChart> chart, const QString& name);

Q_SIGNALS:
    void restored(const QString& imagePath);

private:
    void restore();
    void forget();

    std::unique_ptr<DeletedChart> m_chart;
    QLabel* m_text;
    QPushButton* m_undo;
    QTimer m_timer;
};
