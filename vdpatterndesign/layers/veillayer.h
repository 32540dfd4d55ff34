#pragma once

#include "layers/chartlayer.h"

#include <QtGlobal>

namespace vardeno::testcharttools {

/// The brightness veil: an even, translucent black.
class VDCHARTCORE_EXPORT VeilLayer : public ChartLayer
{
public:
    LayerCoverage coverage() const override;
    bool drawsOnLayersBelow() const override { return true; }
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    ushort brightness = 100; ///< percent, 0 (black) to 100 (no veil)

private:
    int alpha() const { return 255 - brightness * 255 / 100; }
};

} // namespace vardeno::testcharttools
