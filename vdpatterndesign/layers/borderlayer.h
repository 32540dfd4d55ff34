#pragma once

#include "layers/chartlayer.h"

#include <QColor>

namespace vardeno::testcharttools {

/// The outer border, flush with the chart's edges.
class VDCHARTCORE_EXPORT BorderLayer : public ChartLayer
{
public:
    LayerCoverage coverage() const override;
    QVector<QRect> reach(const QSize& chart) const override;
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    bool visible = true;
    int width = 6;
    QColor color = Qt::white;

private:
    bool isDrawnAsLines(const QSize& chart) const;
    QVector<QRect> bars(const QSize& chart) const;
    void drawLines(QPainter& painter, const QSize& chart) const;
};

} // namespace vardeno::testcharttools
