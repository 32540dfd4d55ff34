#include "paintpublicwidget.h"

#include "layers/borderlayer.h"

namespace vardeno::testcharttools {

class PaintPublicWidget::Impl : public QObject
{
public:
    BorderLayer layer;
    ushort rows = 9; ///< kept, not drawn, and so are
    ushort columns = 16;
};

PaintPublicWidget::PaintPublicWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
    drawWith(d->layer);
}

PaintPublicWidget::~PaintPublicWidget() = default;

void PaintPublicWidget::setOutLineVisible(bool visible)
{
    assign(d->layer.visible, visible);
}

void PaintPublicWidget::setOutLineWidth(int width)
{
    assign(d->layer.width, width);
}

void PaintPublicWidget::setOutLineColor(const QColor& color)
{
    assign(d->layer.color, color);
}

void PaintPublicWidget::setRows(ushort rows)
{
    assign(d->rows, rows);
}

void PaintPublicWidget::setColumns(ushort columns)
{
    assign(d->columns, columns);
}

} // namespace vardeno::testcharttools
