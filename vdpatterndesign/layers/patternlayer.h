#pragma once

#include "layers/chartlayer.h"

#include <QColor>
#include <QVector>

namespace vardeno::testcharttools {

/// The base pattern: a chessboard of the screen's cabinets, a horizontal gradient, or vertical colour
/// stripes.
class VDCHARTCORE_EXPORT PatternLayer : public ChartLayer
{
public:
    bool isDrawable() const override;
    LayerCoverage coverage() const override;
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    uint mode = 0; ///< 0 chessboard, 1 gradient, 2 stripes; any other value draws nothing
    QColor oddColor = QColor(0xff, 0xaa, 0xff);
    QColor evenColor = QColor(0x55, 0xaa, 0xff);
    ushort rows = 9;
    ushort columns = 16;
    QVector<QColor> colors; ///< of gradient and stripes, from left to right

private:
    void drawChess(QPainter& painter, const QSize& chart, const QRect& area) const;
    void drawGradient(QPainter& painter, const QSize& chart, const QRect& area) const;
    void drawStripes(QPainter& painter, const QSize& chart) const;
};

} // namespace vardeno::testcharttools
