#include "layers/cabinetpainter.h"

#include "geometry/textfont.h"
#include "layers/chartpen.h"
#include "layers/textbatch.h"

#include <QFontMetrics>
#include <QPainter>

namespace vardeno::testcharttools {

namespace {

bool isRowIn(const CabinetGrid& grid, int row, const QRect& area)
{
    const QRect cell = grid.cell(row, 0);
    return cell.bottom() >= area.top() && cell.top() <= area.bottom();
}

} // namespace

void drawCabinetLabels(QPainter& painter, const CabinetGrid& grid, const LabelStyle& style, const QFont& font,
                       const QColor& color, const QRect& area)
{
    painter.setFont(font);
    painter.setPen(chartPen(color, 1.0));
    TextBatch texts(painter);
    const int ink = QFontMetrics(font).height(); // which may stick out of its cabinet
    const QRect reached = area.adjusted(-ink, -ink, ink, ink);
    for (int row = 0; row < grid.rows; ++row) {
        if (!isRowIn(grid, row, reached))
            continue;
        for (int column = 0; column < grid.columns; ++column) {
            if (!grid.cell(row, column).intersects(reached))
                continue;
            const auto label = cabinetLabel(style, row, column, grid.rows, grid.columns);
            if (!label)
                return;
            for (const PlacedText& placed : placedLabel(*label, style.position, grid.cell(row, column)))
                texts.add(placed.box, placed.alignment, placed.head, placed.tail);
        }
    }
    texts.draw();
}

void drawCabinetLabels(QPainter& painter, const CabinetGrid& grid, const LabelStyle& style, int pixelSize,
                       const QColor& color, const QRect& area)
{
    QFont font = painter.font();
    font.setHintingPreference(textFont().hintingPreference());
    if (pixelSize > 0)
        font.setPixelSize(pixelSize);
    drawCabinetLabels(painter, grid, style, font, color, area);
}

} // namespace vardeno::testcharttools
