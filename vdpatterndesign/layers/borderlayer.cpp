#include "layers/borderlayer.h"

#include "layers/chartpen.h"

#include <QPainter>

namespace vardeno::testcharttools {

LayerCoverage BorderLayer::coverage() const
{
    return visible ? LayerCoverage::Unknown : LayerCoverage::Nothing;
}

void BorderLayer::draw(QPainter& painter, const QSize& chart) const
{
    if (!visible)
        return;
    painter.setPen(chartPen(color, width));

    // The lines' centres lie half a pen inside the edges; the square caps fill the corners.
    const double half = width * 0.5;
    const int near = int(half);
    const int right = int(chart.width() - half);
    const int bottom = int(chart.height() - half);
    painter.drawLine(near, near, right, near);
    painter.drawLine(near, bottom, right, bottom);
    painter.drawLine(near, near, near, bottom);
    painter.drawLine(right, near, right, bottom);
}

} // namespace vardeno::testcharttools
