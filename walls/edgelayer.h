#pragma once

#include "layers/chartlayer.h"

#include <QColor>

#include <vector>

namespace vardeno::walls {

/// A layer of a wall: it is drawn on what lies below it.
class WallLayer : public testcharttools::ChartLayer
{
public:
    bool drawsOnLayersBelow() const override { return true; }
};

/// Rectangles that are filled: places without a cabinet.
class FilledLayer : public WallLayer
{
public:
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    std::vector<QRect> rects;
    QColor color = Qt::black;
};

/// Lines along the inside of the edges of rectangles, the cabinets.
class EdgeLayer : public WallLayer
{
public:
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    std::vector<QRect> rects;
    int width = 1;
    QColor color = Qt::white;
};

} // namespace vardeno::walls
