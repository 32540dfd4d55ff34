#pragma once

#include "layercoverage.h"
#include "vdchartcore_export.h"

#include <QRect>
#include <QVector>

class QPainter;

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

    /// Whether it has texts. A thread that draws the first one reads the font, which takes longer than the
    /// text.
    virtual bool hasTexts() const { return false; }

    /// Finds the sizes and places of what is drawn on a chart of that size (never empty).
    virtual void fit(const QSize&) {}
    /// Draws what was fitted to a chart of that size, or only what is to be seen of it in `area`; with a
    /// painter on chart pixels.
    virtual void draw(QPainter& painter, const QSize& chart, const QRect& area) const = 0;
    void draw(QPainter& painter, const QSize& chart) const { draw(painter, chart, QRect(QPoint(), chart)); }

    /// Outside of these places of the chart nothing is drawn.
    virtual QVector<QRect> reach(const QSize& chart) const { return {QRect(QPoint(), chart)}; }

protected:
    ChartLayer() = default;
    ChartLayer(const ChartLayer&) = default;
    ChartLayer(ChartLayer&&) = default;
    ChartLayer& operator=(const ChartLayer&) = default;
    ChartLayer& operator=(ChartLayer&&) = default;
};

} // namespace vardeno::testcharttools
