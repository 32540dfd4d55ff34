#include "paintrowcolsequewidget.h"

#include "layers/cabinetpainter.h"
#include "layers/chartpen.h"

#include <QPainter>

namespace vardeno::testcharttools {

class PaintRowColSequeWidget::Impl : public QObject
{
public:
    void drawLines(QPainter& painter, const CabinetGrid& grid) const;

    bool rowColVisible = false;
    bool sequeVisible = false;
    ushort rows = 9;
    ushort columns = 16;
    ushort fittedSequeSize = 15; ///< of the last render
    ushort sequeSize = 15;
    QColor rowColColor = Qt::black;
    QColor sequeColor = Qt::black;
    LabelStyle style;
};

void PaintRowColSequeWidget::Impl::drawLines(QPainter& painter, const CabinetGrid& grid) const
{
    painter.setPen(chartPen(rowColColor, 1.0));
    for (int row = 1; row < rows; ++row) {
        const int y = int(row * grid.cellHeight());
        painter.drawLine(0, y, grid.chart.width(), y);
    }
    for (int column = 1; column < columns; ++column) {
        const int x = int(column * grid.cellWidth());
        painter.drawLine(x, 0, x, grid.chart.height());
    }
}

PaintRowColSequeWidget::PaintRowColSequeWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
}

PaintRowColSequeWidget::~PaintRowColSequeWidget() = default;

void PaintRowColSequeWidget::setRows(ushort rows)
{
    assign(d->rows, rows);
}

void PaintRowColSequeWidget::setColumns(ushort columns)
{
    assign(d->columns, columns);
}

void PaintRowColSequeWidget::setRowColVisible(bool visible)
{
    assign(d->rowColVisible, visible);
}

void PaintRowColSequeWidget::setRowColColor(const QColor& color)
{
    assign(d->rowColColor, color);
}

void PaintRowColSequeWidget::setSequeVisible(bool visible)
{
    assign(d->sequeVisible, visible);
}

void PaintRowColSequeWidget::setSequeColor(const QColor& color)
{
    assign(d->sequeColor, color);
}

void PaintRowColSequeWidget::setSequeSize(ushort pixelSize)
{
    assign(d->sequeSize, pixelSize);
}

void PaintRowColSequeWidget::setShowModel(int model)
{
    assign(d->style.mode, uint(model));
}

void PaintRowColSequeWidget::setSortType(int sort)
{
    assign(d->style.sort, uint(sort));
}

void PaintRowColSequeWidget::setLocation(int location)
{
    assign(d->style.position, uint(location));
}

int PaintRowColSequeWidget::sequeSize() const
{
    return d->fittedSequeSize;
}

void PaintRowColSequeWidget::draw(QPainter& painter, const QSize& size)
{
    if (!d->rowColVisible && !d->sequeVisible)
        return;
    const CabinetGrid grid{size, d->rows, d->columns};
    QFont font = painter.font();
    d->fittedSequeSize = ushort(fittedLabelSize(d->sequeSize, font, grid));
    if (d->fittedSequeSize > 0)
        font.setPixelSize(d->fittedSequeSize);
    if (d->rowColVisible)
        d->drawLines(painter, grid);
    if (d->sequeVisible)
        drawCabinetLabels(painter, grid, d->style, font, d->sequeColor);
}

} // namespace vardeno::testcharttools
