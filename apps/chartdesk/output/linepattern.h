#pragma once

#include "outputpattern.h"

#include <QSize>

/// How a line lies.
enum class LineDirection
{
    Horizontal, ///< and goes down
    Vertical,   ///< and goes right
    Diagonal    ///< one pixel further right in each row below, and goes right
};

/// A white line of one pixel on black; a step is a pixel of its way.
class LinePattern : public OutputPattern
{
public:
    LinePattern(const QSize& chart, LineDirection direction);

    LineDirection direction() const { return m_direction; }
    int steps() const override;
    QRegion chartPart(int, const QRect&) const override { return {}; }
    void draw(QPainter& painter, int step, const QRect& place) const override;
    QRegion changed(int from, int to) const override;
    QString text(int step) const override;

private:
    void drawDiagonal(QPainter& painter, int step, const QRect& place) const;
    QRegion covering(int step) const;

    QSize m_chart;
    LineDirection m_direction;
};
