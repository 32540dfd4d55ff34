#include "paintpublicbrightwidget.h"

#include <QPainter>

namespace vardeno::testcharttools {

class PaintPublicBrightWidget::Impl : public QObject
{
public:
    ushort brightness = 100;
};

PaintPublicBrightWidget::PaintPublicBrightWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
}

PaintPublicBrightWidget::~PaintPublicBrightWidget() = default;

void PaintPublicBrightWidget::setBrightness(ushort percent)
{
    assign(d->brightness, percent);
}

void PaintPublicBrightWidget::draw(QPainter& painter, const QSize& size)
{
    const int alpha = 255 - d->brightness * 255 / 100;
    if (alpha > 0)
        painter.fillRect(QRect(QPoint(), size), QColor(0, 0, 0, alpha));
}

} // namespace vardeno::testcharttools
