#include "paintinlinewidget.h"

#include "layers/inlinelayer.h"

namespace vardeno::testcharttools {

class PaintInLineWidget::Impl : public QObject
{
public:
    InlineLayer layer;
};

PaintInLineWidget::PaintInLineWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
    drawWith(d->layer);
}

PaintInLineWidget::~PaintInLineWidget() = default;

void PaintInLineWidget::setCircleVisible(bool visible)
{
    assign(d->layer.circleVisible, visible);
}

void PaintInLineWidget::setCircleColor(const QColor& color)
{
    assign(d->layer.circleColor, color);
}

void PaintInLineWidget::setCircleLineWidth(ushort width)
{
    assign(d->layer.circleLineWidth, width);
}

void PaintInLineWidget::setCircleRadius(ushort radius)
{
    assign(d->layer.circleRadius, radius);
}

void PaintInLineWidget::setDiagonalVisible(bool visible)
{
    assign(d->layer.diagonalVisible, visible);
}

void PaintInLineWidget::setDiagonalColor(const QColor& color)
{
    assign(d->layer.diagonalColor, color);
}

void PaintInLineWidget::setDiagonalLineWidth(ushort width)
{
    assign(d->layer.diagonalLineWidth, width);
}

void PaintInLineWidget::setSerialVisible(bool visible)
{
    assign(d->layer.serialVisible, visible);
}

void PaintInLineWidget::setSerialColor(const QColor& color)
{
    assign(d->layer.serialColor, color);
}

void PaintInLineWidget::setSerialSize(ushort pixelSize)
{
    assign(d->layer.serialSize, pixelSize);
}

void PaintInLineWidget::setSerialMode(uint mode)
{
    assign(d->layer.serial.mode, mode);
}

void PaintInLineWidget::setSerialSort(uint sort)
{
    assign(d->layer.serial.sort, sort);
}

void PaintInLineWidget::setSerialPosition(uint position)
{
    assign(d->layer.serial.position, position);
}

void PaintInLineWidget::setMarkersVisible(bool visible)
{
    assign(d->layer.markersVisible, visible);
}

bool PaintInLineWidget::areMarkersVisible() const
{
    return d->layer.markersVisible;
}

void PaintInLineWidget::setRows(ushort rows)
{
    assign(d->layer.rows, rows);
}

void PaintInLineWidget::setColumns(ushort columns)
{
    assign(d->layer.columns, columns);
}

ushort PaintInLineWidget::effectiveDiameter() const
{
    return d->layer.effectiveDiameter;
}

ushort PaintInLineWidget::workingSerialSize() const
{
    return d->layer.workingSerialSize;
}

void PaintInLineWidget::resizeEvent(QResizeEvent* event)
{
    refresh();
    QWidget::resizeEvent(event);
}

} // namespace vardeno::testcharttools
