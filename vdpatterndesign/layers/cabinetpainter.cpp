#include "layers/cabinetpainter.h"

#include "geometry/textfont.h"
#include "layers/chartpen.h"
#include "layers/textbatch.h"

#include <QPainter>

namespace vardeno::testcharttools {

void drawCabinetLabels(QPainter& painter, const CabinetGrid& grid, const LabelStyle& style, const QFont& font,
                       const QColor& color)
{
    painter.setFont(font);
    painter.setPen(chartPen(color, 1.0));
    TextBatch texts(painter);
    for (int row = 0; row < grid.rows; ++row) {
        for (int column = 0; column < grid.columns; ++column) {
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
                       const QColor& color)
{
    QFont font = painter.font();
    font.setHintingPreference(textFont().hintingPreference());
    if (pixelSize > 0)
        font.setPixelSize(pixelSize);
    drawCabinetLabels(painter, grid, style, font, color);
}

} // namespace vardeno::testcharttools
