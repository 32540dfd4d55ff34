#include "painttextlogowidget.h"

#include "geometry/logoplacement.h"

#include <QPainter>

#include <algorithm>

namespace vardeno::testcharttools {

class PaintTextLogoWidget::Impl : public QObject
{
public:
    int opacity = 100;
    int moveX = 0;
    int moveY = 0;
    int textSize = 100;
    QPoint applied;       ///< of the last render
    int fittedSize = 100; ///< of the last render
    QColor color = Qt::black;
    QString text = QStringLiteral("Vardeno_RT5_Pro").remove(QLatin1Char('_'));
    int position = 0;
};

PaintTextLogoWidget::PaintTextLogoWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
}

PaintTextLogoWidget::~PaintTextLogoWidget() = default;

void PaintTextLogoWidget::setText(QString text)
{
    assign(d->text, text);
}

void PaintTextLogoWidget::setTextColor(const QColor& color)
{
    assign(d->color, color);
}

void PaintTextLogoWidget::setTextSize(int pixels)
{
    assign(d->textSize, pixels);
}

void PaintTextLogoWidget::setOpacity(int percent)
{
    assign(d->opacity, percent);
}

void PaintTextLogoWidget::setPosition(int index)
{
    assign(d->position, index);
}

void PaintTextLogoWidget::setMoveX(int pixels)
{
    assign(d->moveX, pixels);
}

void PaintTextLogoWidget::setMoveY(int pixels)
{
    assign(d->moveY, pixels);
}

int PaintTextLogoWidget::appliedMoveX() const
{
    return d->applied.x();
}

int PaintTextLogoWidget::appliedMoveY() const
{
    return d->applied.y();
}

int PaintTextLogoWidget::fittedSize() const
{
    return d->fittedSize;
}

void PaintTextLogoWidget::draw(QPainter& painter, const QSize& size)
{
    // Not rounded: full opacity gives 254. It is meant.
    d->color.setAlpha(std::clamp(int(d->opacity * 2.55), 0, 255));
    const TextLogo logo = placedTextLogo(size, d->text, d->textSize, d->position, {d->moveX, d->moveY});
    d->fittedSize = logo.fitted.pixelSize;
    d->applied = logo.placement.applied;

    painter.translate(QPoint(size.width() / 2, size.height() / 2));
    painter.setPen(d->color);
    painter.setFont(logo.fitted.font);
    painter.drawText(logo.placement.at, d->text);
}

void PaintTextLogoWidget::showEvent(QShowEvent* event)
{
    render();
    LayerPainter::showEvent(event);
}

} // namespace vardeno::testcharttools
