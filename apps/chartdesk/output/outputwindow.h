#pragma once

#include "outputpattern.h"

#include <QImage>
#include <QWidget>

#include <memory>

/// A chart on a whole display, pixel for pixel in physical pixels whatever the display is scaled by, black
/// around it, without a pointer. It paints only what has changed.
class OutputWindow : public QWidget
{
    Q_OBJECT

public:
    explicit OutputWindow(QWidget* parent = nullptr);

    /// Fills `screen`.
    void showOn(QScreen* screen);

    /// The chart, with its top left at `at`, in physical pixels of the display.
    void setChart(const QImage& chart, const QPoint& at);
    const QImage& chart() const { return m_chart; }

    /// Draws `step` of `pattern` over the chart, or in its place; null for the chart alone.
    void setPattern(const std::shared_ptr<const OutputPattern>& pattern, int step = 0);
    void setStep(int step);

Q_SIGNALS:
    void keyPressed(QKeyEvent* event);
    /// The desktop has closed the window.
    void closed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void paint(QPainter& painter, const QRect& place) const;
    QRegion logical(const QRegion& region) const;

    QImage m_chart;
    QPoint m_at;
    std::shared_ptr<const OutputPattern> m_pattern;
    int m_step = 0;
};

/// What differs between two pictures of the same size, as one rectangle; all of it where the sizes differ.
QRect changedRect(const QImage& before, const QImage& after);
