#pragma once

#include "layers/chartlayer.h"

#include <QColor>

namespace vardeno::testcharttools {

/// The outer border, flush with the chart's edges.
class VDCHARTCORE_EXPORT BorderLayer : public ChartLayer
{
public:
    LayerCoverage coverage() const override;
    void draw(QPainter& painter, const QSize& chart) const override;

    bool visible = true;
    int width = 6;
    QColor color = Qt::white;
};

} // namespace vardeno::testcharttools
