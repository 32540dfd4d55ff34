#include "paintpublicbrightwidget.h"

#include "layers/veillayer.h"

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

} // namespace vardeno::testcharttools
