#include "paintpublicbrightwidget.h"

#include "layers/veillayer.h"

#include <QPainter>

namespace vardeno::testcharttools {

class PaintPublicBrightWidget::Impl : public QObject
{
public:
    VeilLayer layer;
};

PaintPublicBrightWidget::PaintPublicBrightWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
    drawWith(d->layer);
}

PaintPublicBrightWidget::~PaintPublicBrightWidget() = default;

void PaintPublicBrightWidget::setBrightness(ushort percent)
{
    assign(d->layer.brightness, percent);
}

/// One colour all over needs no picture to be read.
void PaintPublicBrightWidget::paintStored(QPaintEvent* event)
{
    if (!showsOwnPicture()) {
        LayerPainter::paintStored(event);
        return;
    }
    QPainter painter(this);
    d->layer.draw(painter, pixmap(Qt::ReturnByValue).size());
}

} // namespace vardeno::testcharttools
