#pragma once

#include <QRegion>
#include <QString>

class QPainter;

/// What is drawn on the output over a chart, or in its place, step by step. Its pixels are the chart's, so
/// that it stands where the chart does. Immutable: a change makes another one.
class OutputPattern
{
public:
    virtual ~OutputPattern() = default;

    /// How many steps it has before the first comes again; at least 1.
    virtual int steps() const = 0;
    /// What is seen of `chart` at a step; the rest is black.
    virtual QRegion chartPart(int step, const QRect& chart) const = 0;
    /// Draws at least what of `step` lies in `place`, which lies in the chart.
    virtual void draw(QPainter& painter, int step, const QRect& place) const = 0;
    /// Where the picture of step `to` may be another than that of step `from`.
    virtual QRegion changed(int from, int to) const = 0;
    /// What the step shows, in the language of the desk.
    virtual QString text(int step) const = 0;
};
