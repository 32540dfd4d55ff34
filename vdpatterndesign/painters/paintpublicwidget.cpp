#include "paintpublicwidget.h"

#include "layers/chartpen.h"

#include <QPainter>

namespace vardeno::testcharttools {

class PaintPublicWidget::Impl : public QObject
{
public:
    bool outBorderVisible = true;
    int outLineWidth = 6;
    QColor outLineColor = Qt::white;
    ushort rows = 9;
    ushort columns = 16;
};

PaintPublicWidget::PaintPublicWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
}

PaintPublicWidget::~PaintPublicWidget() = default;

void PaintPublicWidget::setOutLineVisible(bool visible)
{
    assign(d->outBorderVisible, visible);
}

void PaintPublicWidget::setOutLineWidth(int width)
{
    assign(d->outLineWidth, width);
}

void PaintPublicWidget::setOutLineColor(const QColor& color)
{
    assign(d->outLineColor, color);
}

void PaintPublicWidget::setRows(ushort rows)
{
    assign(d->rows, rows);
}

void PaintPublicWidget::setColumns(ushort columns)
{
    assign(d->columns, columns);
}

void PaintPublicWidget::draw(QPainter& painter, const QSize& size)
{
    if (!d->outBorderVisible)
        return;
    painter.setPen(chartPen(d->outLineColor, d->outLineWidth));

    // The lines' centres lie half a pen inside the edges; the square caps fill the corners.
    const double half = d->outLineWidth * 0.5;
    const int near = int(half);
    const int right = int(size.width() - half);
    const int bottom = int(size.height() - half);
    painter.drawLine(near, near, right, near);
    painter.drawLine(near, bottom, right, bottom);
    painter.drawLine(near, near, near, bottom);
    painter.drawLine(right, near, right, bottom);
}

} // namespace vardeno::testcharttools
