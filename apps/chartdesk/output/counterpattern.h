#pragma once

#include "outputpattern.h"

#include <QSize>

/// Counts frames on black, to be read in a photo of wall and monitor together: six digits, and below them ten
/// boxes, of which the one of the last digit is lit, so that a photo that has caught two frames shows two.
class CounterPattern : public OutputPattern
{
public:
    explicit CounterPattern(const QSize& chart);

    int steps() const override { return 1000000; }
    QRegion chartPart(int, const QRect&) const override { return {}; }
    void draw(QPainter& painter, int step, const QRect& place) const override;
    QRegion changed(int from, int to) const override;
    QString text(int step) const override;

    /// Chart pixels; `digit` and `box` count from 0 at the left.
    QRect digitPlace(int digit) const;
    QRect boxPlace(int box) const;

private:
    int m_unit;     ///< the thickness of a stroke
    QPoint m_begin; ///< of the first digit
};
