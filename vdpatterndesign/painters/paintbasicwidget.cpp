#include "paintbasicwidget.h"

#include "layers/patternlayer.h"

#include <QListWidget>
#include <QPointer>

namespace vardeno::testcharttools {

class PaintBasicWidget::Impl : public QObject
{
public:
    QVector<QColor> barColors() const;

    PatternLayer layer; ///< its colours are those of the last render
    QPointer<QListWidget> gradientList;
    QPointer<QListWidget> colorStripeList;
};

QVector<QColor> PaintBasicWidget::Impl::barColors() const
{
    QVector<QColor> colors;
    const int count = colorStripeList ? colorStripeList->count() : 0;
    colors.reserve(count);
    for (int row = 0; row < count; ++row)
        colors.append(colorStripeList->item(row)->background().color());
    return colors;
}

PaintBasicWidget::PaintBasicWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
    drawWith(d->layer);
}

PaintBasicWidget::~PaintBasicWidget() = default;

void PaintBasicWidget::setMode(uint mode)
{
    assign(d->layer.mode, mode);
}

uint PaintBasicWidget::mode() const
{
    return d->layer.mode;
}

void PaintBasicWidget::setOddColor(const QColor& color)
{
    assign(d->layer.oddColor, color);
}

void PaintBasicWidget::setEvenColor(const QColor& color)
{
    assign(d->layer.evenColor, color);
}

void PaintBasicWidget::setRows(ushort rows)
{
    assign(d->layer.rows, rows);
}

void PaintBasicWidget::setColumns(ushort columns)
{
    assign(d->layer.columns, columns);
}

void PaintBasicWidget::setGradientList(QListWidget* list)
{
    assign(d->gradientList, QPointer<QListWidget>(list));
}

void PaintBasicWidget::setColorStripeList(QListWidget* list)
{
    assign(d->colorStripeList, QPointer<QListWidget>(list));
}

void PaintBasicWidget::prepare()
{
    d->layer.colors = d->barColors();
    LayerPainter::prepare();
}

bool PaintBasicWidget::sourceChanged() const
{
    return d->barColors() != d->layer.colors;
}

} // namespace vardeno::testcharttools
