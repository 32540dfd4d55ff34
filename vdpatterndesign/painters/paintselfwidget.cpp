#include "paintselfwidget.h"

#include "layers/textlayer.h"
#include "support/translation.h"

namespace vardeno::testcharttools {

class PaintSelfWidget::Impl : public QObject
{
public:
    TextLayer layer;
    QColor boxNumColor = Qt::black; ///< kept, not drawn
};

PaintSelfWidget::PaintSelfWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
    drawWith(d->layer);
}

PaintSelfWidget::~PaintSelfWidget() = default;

void PaintSelfWidget::setSelfTextVisible(bool visible)
{
    assign(d->layer.selfTextVisible, visible);
}

void PaintSelfWidget::setSelfText(QString text)
{
    assign(d->layer.selfText, text);
}

void PaintSelfWidget::setSelfTextColor(const QColor& color)
{
    assign(d->layer.selfTextColor, color);
}

void PaintSelfWidget::setSelfTextSize(ushort pixelSize)
{
    assign(d->layer.selfTextSize, pixelSize);
}

void PaintSelfWidget::setResolutionVisible(bool visible)
{
    assign(d->layer.resolutionVisible, visible);
}

void PaintSelfWidget::setResolutionColor(const QColor& color)
{
    assign(d->layer.resolutionColor, color);
}

void PaintSelfWidget::setResolutionSize(ushort pixelSize)
{
    assign(d->layer.resolutionSize, pixelSize);
}

void PaintSelfWidget::setBoxNumVisible(bool visible)
{
    assign(d->layer.boxNumVisible, visible);
}

void PaintSelfWidget::setBoxNumColor(const QColor& color)
{
    assign(d->boxNumColor, color);
}

void PaintSelfWidget::setRows(ushort rows)
{
    assign(d->layer.rows, rows);
}

void PaintSelfWidget::setColumns(ushort columns)
{
    assign(d->layer.columns, columns);
}

int PaintSelfWidget::selfTextSize() const
{
    return d->layer.fittedSelfTextSize;
}

int PaintSelfWidget::resolutionSize() const
{
    return d->layer.fittedResolutionSize;
}

void PaintSelfWidget::retranslate()
{
    assign(d->layer.resolutionCaption, translated(QStringLiteral("ResolutionShow")));
    assign(d->layer.boxNumCaption, translated(QStringLiteral("BoxNumShow")));
}

void PaintSelfWidget::showEvent(QShowEvent* event)
{
    render();
    LayerPainter::showEvent(event);
}

} // namespace vardeno::testcharttools
