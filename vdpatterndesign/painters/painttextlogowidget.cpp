#include "painttextlogowidget.h"

#include "layers/textlogolayer.h"

namespace vardeno::testcharttools {

class PaintTextLogoWidget::Impl : public QObject
{
public:
    TextLogoLayer layer;
};

PaintTextLogoWidget::PaintTextLogoWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
    drawWith(d->layer);
}

PaintTextLogoWidget::~PaintTextLogoWidget() = default;

void PaintTextLogoWidget::setText(QString text)
{
    assign(d->layer.text, text);
}

void PaintTextLogoWidget::setTextColor(const QColor& color)
{
    assign(d->layer.color, color);
}

void PaintTextLogoWidget::setTextSize(int pixels)
{
    assign(d->layer.textSize, pixels);
}

void PaintTextLogoWidget::setOpacity(int percent)
{
    assign(d->layer.opacity, percent);
}

void PaintTextLogoWidget::setPosition(int index)
{
    assign(d->layer.position, index);
}

void PaintTextLogoWidget::setMoveX(int pixels)
{
    assign(d->layer.moveX, pixels);
}

void PaintTextLogoWidget::setMoveY(int pixels)
{
    assign(d->layer.moveY, pixels);
}

int PaintTextLogoWidget::appliedMoveX() const
{
    return d->layer.applied.x();
}

int PaintTextLogoWidget::appliedMoveY() const
{
    return d->layer.applied.y();
}

int PaintTextLogoWidget::fittedSize() const
{
    return d->layer.fittedSize;
}

void PaintTextLogoWidget::showEvent(QShowEvent* event)
{
    render();
    LayerPainter::showEvent(event);
}

} // namespace vardeno::testcharttools
