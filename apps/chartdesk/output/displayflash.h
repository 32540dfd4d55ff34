#pragma once

#include <QWidget>

/// The number of a display, large in its middle, for a moment: it takes no focus and no click.
class DisplayFlash : public QWidget
{
    Q_OBJECT

public:
    /// Shows one on every display; they delete themselves.
    static void showAll();

    DisplayFlash(int number, const QString& name, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_number;
    QString m_name;
};
