#pragma once

#include <QColor>
#include <QRect>

class QPainter;

namespace vardeno::testcharttools {

/// Smooth lines whose pixels depend on their places alone: what is drawn of them part by part fits together.
/// A pixel is covered as far as the line covers the square of a pixel across it.
struct SmoothPen
{
    QColor color;
    double width = 1; ///< chart pixels, and so is everything here
};

/// Draws what is in `area` of the straight line through both points, which goes on beyond them.
void drawSmoothLine(QPainter& painter, const SmoothPen& pen, const QPointF& from, const QPointF& to,
                    const QRect& area);

/// Draws what is in `area` of the circle in `square`.
void drawSmoothCircle(QPainter& painter, const SmoothPen& pen, const QRect& square, const QRect& area);

} // namespace vardeno::testcharttools
