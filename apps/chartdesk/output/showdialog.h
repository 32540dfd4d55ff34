#pragma once

#include "display.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;

/// Asks on which display a chart is to be shown, and where on it; numbers the displays meanwhile.
class ShowDialog : public QDialog
{
    Q_OBJECT

public:
    /// `chart` is the size of the chart, in pixels.
    ShowDialog(const QSize& chart, QWidget* parent);

    /// What is chosen at first: the display of that name if it is there, else the last one.
    void setPlace(const QString& display, const QPoint& at);
    QString display() const;
    QPoint place() const;

private:
    void createLayout();
    void fillDisplays();
    void showDifference();

    QSize m_chart;
    QVector<DeskDisplay> m_found;
    QListWidget* m_displays;
    QSpinBox* m_x;
    QSpinBox* m_y;
    QLabel* m_difference;
    QPushButton* m_show = nullptr;
};
