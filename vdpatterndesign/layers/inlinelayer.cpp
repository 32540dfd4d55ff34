#include "layers/inlinelayer.h"

#include "geometry/circlepair.h"
#include "geometry/textfont.h"
#include "layers/cabinetpainter.h"
#include "layers/chartpen.h"

#include <QPainter>

namespace vardeno::testcharttools {

LayerCoverage InlineLayer::coverage() const
{
    return circleVisible || diagonalVisible || serialVisible ? LayerCoverage::Unknown
                                                             : LayerCoverage::Nothing;
}

void InlineLayer::fit(const QSize& chart)
{
    if (circleVisible)
        effectiveDiameter = testcharttools::effectiveDiameter(chart, circleRadius);
    if (serialVisible)
        workingSerialSize =
            ushort(fittedLabelSize(serialSize, textFont(), CabinetGrid{chart, rows, columns}));
}

void InlineLayer::draw(QPainter& painter, const QSize& chart) const
{
    if (diagonalVisible)
        drawDiagonals(painter, chart);
    if (circleVisible)
        drawCircles(painter, chart);
    if (serialVisible)
        drawCabinetLabels(painter, {chart, rows, columns}, serial, workingSerialSize, serialColor);
}

void InlineLayer::drawDiagonals(QPainter& painter, const QSize& chart) const
{
    painter.setPen(chartPen(diagonalColor, diagonalLineWidth));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawLine(0, 0, chart.width(), chart.height());
    painter.drawLine(chart.width(), 0, 0, chart.height());
}

void InlineLayer::drawCircles(QPainter& painter, const QSize& chart) const
{
    const auto [first, second] = circlePair(chart, effectiveDiameter, circleLineWidth);
    painter.setPen(chartPen(circleColor, circleLineWidth));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawEllipse(first);
    painter.drawEllipse(second);
}

} // namespace vardeno::testcharttools
