#include "layers/inlinelayer.h"

#include "geometry/cabinetmarkers.h"
#include "geometry/circlepair.h"
#include "geometry/textfont.h"
#include "layers/cabinetpainter.h"
#include "layers/chartpen.h"
#include "layers/largechart.h"
#include "layers/largeshapes.h"
#include "layers/markerpainter.h"

#include <QPainter>

namespace vardeno::testcharttools {

LayerCoverage InlineLayer::coverage() const
{
    return circleVisible || diagonalVisible || serialVisible || markersVisible ? LayerCoverage::Unknown
                                                                               : LayerCoverage::Nothing;
}

void InlineLayer::fit(const QSize& chart)
{
    if (circleVisible)
        effectiveDiameter = testcharttools::effectiveDiameter(chart, circleRadius);
    if (serialVisible)
        workingSerialSize =
            ushort(fittedLabelSize(serialSize, textFont(), CabinetGrid{chart, rows, columns}));
    if (markersVisible)
        labelHeight = serialVisible ? labelLineHeight(workingSerialSize) : 0;
}

void InlineLayer::draw(QPainter& painter, const QSize& chart, const QRect& area) const
{
    if (diagonalVisible)
        drawDiagonals(painter, chart, area);
    if (circleVisible)
        drawCircles(painter, chart, area);
    if (serialVisible)
        drawCabinetLabels(painter, {chart, rows, columns}, serial, workingSerialSize, serialColor, area);
    if (markersVisible)
        drawMarkers(painter, chart, area);
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

void InlineLayer::drawMarkers(QPainter& painter, const QSize& chart, const QRect& area) const
{
    const CabinetGrid grid = {chart, rows, columns};
    const LabelRoom labels = {labelHeight, int(serial.position)};
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const QRect cell = grid.cell(row, column);
            if (cell.intersects(area))
                drawMarker(painter, markerOf(row * columns + column), markerSquare(cell, labels), area);
        }
    }
}

} // namespace vardeno::testcharttools
