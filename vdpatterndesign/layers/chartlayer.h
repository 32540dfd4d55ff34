#pragma once

#include "layercoverage.h"
#include "vdchartcore_export.h"

class QPainter;
class QSize;

namespace vardeno::testcharttools {

/// One layer of the chart as a value: its fields are what it shows, and it draws itself. Sizes are chart
/// pixels.
///
/// A layer is made ready for a chart by `fit`, which looks fonts up and notes what it finds in the layer's
/// own results. From then on `draw` only reads: several threads may draw one layer at a time.
class VDCHARTCORE_EXPORT ChartLayer
{
public:
    virtual ~ChartLayer() = default;

    /// Whether there is anything to draw from.
    virtual bool isDrawable() const { return true; }
    /// What `draw` is about to do.
    virtual LayerCoverage coverage() const { return LayerCoverage::Unknown; }
    /// Whether the layer is drawn on the layers below it rather than on a picture of its own, of which there
    /// would be nothing to gain.
    virtual bool drawsOnLayersBelow() const { return coverage() == LayerCoverage::Opaque; }

    /// Finds the sizes and places of what is drawn on a chart of that size (never empty).
    virtual void fit(const QSize&) {}
    /// Draws what was fitted to a chart of that size.
    virtual void draw(QPainter& painter, const QSize& chart) const = 0;

protected:
    ChartLayer() = default;
    ChartLayer(const ChartLayer&) = default;
    ChartLayer(ChartLayer&&) = default;
    ChartLayer& operator=(const ChartLayer&) = default;
    ChartLayer& operator=(ChartLayer&&) = default;
};

} // namespace vardeno::testcharttools
