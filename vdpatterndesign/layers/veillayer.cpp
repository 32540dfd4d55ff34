#include "layers/veillayer.h"

#include <QPainter>

namespace vardeno::testcharttools {

LayerCoverage VeilLayer::coverage() const
{
    return alpha() > 0 ? LayerCoverage::Whole : LayerCoverage::Nothing;
}

void VeilLayer::draw(QPainter& painter, const QSize&, const QRect& area) const
{
    if (alpha() > 0)
        painter.fillRect(area, QColor(0, 0, 0, alpha()));
}

} // namespace vardeno::testcharttools
