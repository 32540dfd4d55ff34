#include "paintrowcolsequewidget.h"

#include "layers/sequencelayer.h"

namespace vardeno::testcharttools {

class PaintRowColSequeWidget::Impl : public QObject
{
public:
    SequenceLayer layer;
};

PaintRowColSequeWidget::PaintRowColSequeWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
    drawWith(d->layer);
}

PaintRowColSequeWidget::~PaintRowColSequeWidget() = default;

void PaintRowColSequeWidget::setRows(ushort rows)
{
    assign(d->layer.rows, rows);
}

void PaintRowColSequeWidget::setColumns(ushort columns)
{
    assign(d->layer.columns, columns);
}

void PaintRowColSequeWidget::setRowColVisible(bool visible)
{
    assign(d->layer.linesVisible, visible);
}

void PaintRowColSequeWidget::setRowColColor(const QColor& color)
{
    assign(d->layer.lineColor, color);
}

void PaintRowColSequeWidget::setSequeVisible(bool visible)
{
    assign(d->layer.labelsVisible, visible);
}

void PaintRowColSequeWidget::setSequeColor(const QColor& color)
{
    assign(d->layer.labelColor, color);
}

void PaintRowColSequeWidget::setSequeSize(ushort pixelSize)
{
    assign(d->layer.labelSize, pixelSize);
}

void PaintRowColSequeWidget::setShowModel(int model)
{
    assign(d->layer.style.mode, uint(model));
}

void PaintRowColSequeWidget::setSortType(int sort)
{
    assign(d->layer.style.sort, uint(sort));
}

void PaintRowColSequeWidget::setLocation(int location)
{
    assign(d->layer.style.position, uint(location));
}

int PaintRowColSequeWidget::sequeSize() const
{
    return d->layer.fittedLabelSize;
}

} // namespace vardeno::testcharttools
