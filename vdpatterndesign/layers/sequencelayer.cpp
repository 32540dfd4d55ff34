#include "layers/sequencelayer.h"

#include "geometry/textfont.h"
#include "layers/cabinetpainter.h"
#include "layers/chartpen.h"

#include <QPainter>

namespace vardeno::testcharttools {

LayerCoverage SequenceLayer::coverage() const
{
    return linesVisible || labelsVisible ? LayerCoverage::Unknown : LayerCoverage::Nothing;
}

void SequenceLayer::fit(const QSize& chart)
{
    if (linesVisible || labelsVisible)
        fittedLabelSize =
            ushort(testcharttools::fittedLabelSize(labelSize, textFont(), CabinetGrid{chart, rows, columns}));
}

void SequenceLayer::draw(QPainter& painter, const QSize& chart, const QRect& area) const
{
    const CabinetGrid grid{chart, rows, columns};
    if (linesVisible)
        drawLines(painter, grid);
    if (labelsVisible)
        drawCabinetLabels(painter, grid, style, fittedLabelSize, labelColor, area);
}

void SequenceLayer::drawLines(QPainter& painter, const CabinetGrid& grid) const
{
    painter.setPen(chartPen(lineColor, 1.0));
    for (int row = 1; row < rows; ++row) {
        const int y = int(row * grid.cellHeight());
        painter.drawLine(0, y, grid.chart.width(), y);
    }
    for (int column = 1; column < columns; ++column) {
        const int x = int(column * grid.cellWidth());
        painter.drawLine(x, 0, x, grid.chart.height());
    }
}

} // namespace vardeno::testcharttools
