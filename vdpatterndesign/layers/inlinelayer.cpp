#include "layers/inlinelayer.h"

#include "geometry/circlepair.h"
#include "geometry/textfont.h"
#include "layers/cabinetpainter.h"
#include "layers/chartpen.h"
#include "layers/largechart.h"
#include "layers/largeshapes.h"

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

void InlineLayer::draw(QPainter& painter, const QSize& chart, const QRect& area) const
{
    if (diagonalVisible)
        drawDiagonals(painter, chart, area);
    if (circleVisible)
        drawCircles(painter, chart, area);
    if (serialVisible)
        drawCabinetLabels(painter, {chart, rows, columns}, serial, workingSerialSize, serialColor, area);
}

void InlineLayer::drawDiagonals(QPainter& painter, const QSize& chart, const QRect& area) const
{
    const QPoint ends[][2] = {{{0, 0}, {chart.width(), chart.height()}},
                              {{chart.width(), 0}, {0, chart.height()}}};
    if (!isDrawnWhole(chart)) {
        for (const auto& [from, to] : ends)
            drawSmoothLine(painter, {diagonalColor, double(diagonalLineWidth)}, from, to, area);
        return;
    }
    painter.setPen(chartPen(diagonalColor, diagonalLineWidth));
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& [from, to] : ends)
        painter.drawLine(from, to);
}

void InlineLayer::drawCircles(QPainter& painter, const QSize& chart, const QRect& area) const
{
    const auto [first, second] = circlePair(chart, effectiveDiameter, circleLineWidth);
    if (!isDrawnWhole(chart)) {
        for (const QRect& circle : {first, second})
            drawSmoothCircle(painter, {circleColor, double(circleLineWidth)}, circle, area);
        return;
    }
    painter.setPen(chartPen(circleColor, circleLineWidth));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawEllipse(first);
    painter.drawEllipse(second);
}

} // namespace vardeno::testcharttools
