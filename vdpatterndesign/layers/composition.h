#pragma once

#include "vdchartcore_export.h"

#include <QImage>

#include <functional>
#include <vector>

class QPainter;

namespace vardeno::testcharttools {

class ChartLayer;
class LayerPicture;

/// What lies on a chart, bottom to top. It holds what it is given by address.
class VDCHARTCORE_EXPORT Composition
{
public:
    /// Draws what is to be seen in `area`, with a painter on chart pixels; in any thread.
    using Paint = std::function<void(QPainter& painter, const QRect& area)>;

    void add(const Paint& paint, bool covers = false);
    /// Draws the layer on what lies below it.
    void add(const ChartLayer& layer, const QSize& chart);
    void add(const LayerPicture& picture, const QSize& chart);

    /// Paints what is in `area` with a painter on chart pixels.
    void paint(QPainter& painter, const QRect& area) const;
    /// Paints the part of the chart that begins in `top` on `image`, which is as wide as the chart and RGB32,
    /// in bands and on all cores. What nothing covers is black: dark on the wall.
    void paintInParallel(QImage& image, int top = 0) const;

private:
    void paintBand(QImage& rows, int top) const;

    std::vector<Paint> m_paints;
    bool m_isCovered = false; ///< whether the lowest one leaves nothing free
};

} // namespace vardeno::testcharttools
