#include "paintpublicbrightwidget.h"

#include <QPainter>

namespace vardeno::testcharttools {

class PaintPublicBrightWidget::Impl : public QObject
{
public:
    int alpha() const { return 255 - brightness * 255 / 100; }

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

LayerPainter::Coverage PaintPublicBrightWidget::coverage() const
{
    return d->alpha() > 0 ? Coverage::Whole : Coverage::Nothing;
}

void PaintPublicBrightWidget::draw(QPainter& painter, const QSize& size)
{
    if (d->alpha() == 0)
        return;
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(QRect(QPoint(), size), QColor(0, 0, 0, d->alpha()));
}

/// One colour all over needs no picture to be read.
void PaintPublicBrightWidget::paintStored(QPaintEvent* event)
{
    if (!showsOwnPicture())
        LayerPainter::paintStored(event);
    else if (d->alpha() > 0)
        QPainter(this).fillRect(QRect(QPoint(), pixmap(Qt::ReturnByValue).size()),
                                QColor(0, 0, 0, d->alpha()));
}

} // namespace vardeno::testcharttools
