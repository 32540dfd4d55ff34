#pragma once

#include "geometry/logoplacement.h"
#include "layers/chartlayer.h"

#include <QImage>

namespace vardeno::testcharttools {

/// A picture as the chart's logo.
class VDCHARTCORE_EXPORT PictureLogoLayer : public ChartLayer
{
public:
    bool drawsOnLayersBelow() const override { return true; }
    void fit(const QSize& chart) override;
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    QImage picture; ///< null draws nothing
    float scale = 1.0F;
    float opacity = 1.0F;
    int position = 0; ///< the anchor: 0 centre, 1 left up, 2 left down, 3 right up, 4 right down
    int moveX = 0;    ///< from the anchor; the picture stays on the chart
    int moveY = 0;

    QImage scaled;           ///< found by `fit`: the picture as it is drawn
    LogoPlacement placement; ///< and where
};

} // namespace vardeno::testcharttools
