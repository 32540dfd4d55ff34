#pragma once

#include <QColor>
#include <QPointF>
#include <QRect>

class QPainter;

namespace vardeno::walls {

/// Smooth shapes whose pixels depend on their places alone, so that what is drawn of them part by part fits
/// together. Each draws what is in `area`. Sizes are chart pixels.

/// A line with round ends.
void drawInkLine(QPainter& painter, const QColor& color, const QPointF& from, const QPointF& to, double width,
                 const QRect& area);
void drawInkDisc(QPainter& painter, const QColor& color, const QPointF& centre, double radius,
                 const QRect& area);
/// A box with corners of that radius.
void drawInkBox(QPainter& painter, const QColor& color, const QRectF& box, double radius, const QRect& area);
/// A triangle with its middle in `at` that points to where `along` does, and reaches `radius` far.
void drawInkArrow(QPainter& painter, const QColor& color, const QPointF& at, const QPointF& along,
                  double radius, const QRect& area);

} // namespace vardeno::walls
