#include "paintbasicwidget.h"

#include <QListWidget>
#include <QPainter>
#include <QPointer>

#include <cmath>

namespace vardeno::testcharttools {

class PaintBasicWidget::Impl : public QObject
{
public:
    QVector<QColor> barColors() const;

    void drawChess(QPainter& painter, const QSize& size) const;
    void drawGradient(QPainter& painter, const QSize& size) const;
    void drawStripes(QPainter& painter, const QSize& size) const;

    uint mode = 0;
    QColor oddColor = QColor(0xff, 0xaa, 0xff);
    QColor evenColor = QColor(0x55, 0xaa, 0xff);
    QPointer<QListWidget> gradientList;
    QPointer<QListWidget> colorStripeList;
    ushort rows = 9;
    ushort columns = 16;

    QVector<QColor> drawnColors; ///< of the last render
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

void PaintBasicWidget::Impl::drawChess(QPainter& painter, const QSize& size) const
{
    const double cellHeight = double(size.height()) / rows;
    const double cellWidth = double(size.width()) / columns;
    // Edges are running sums: where rounding keeps the last one below the far edge, a sliver of one more cell
    // is drawn there. It is meant.
    for (double y = 0.0; y < size.height(); y += cellHeight) {
        for (double x = 0.0; x < size.width(); x += cellWidth) {
            const bool odd = (std::lround(y / cellHeight) + std::lround(x / cellWidth)) % 2 == 0;
            painter.fillRect(QRectF(x, y, cellWidth, cellHeight), odd ? oddColor : evenColor);
        }
    }
}

void PaintBasicWidget::Impl::drawGradient(QPainter& painter, const QSize& size) const
{
    QLinearGradient gradient(0, 0, size.width(), 0);
    // One colour alone stands at 0 / 0, which is passed on as it is: there is no special case for it.
    for (int i = 0; i < drawnColors.size(); ++i)
        gradient.setColorAt(i / (drawnColors.size() - 1.0), drawnColors.at(i));
    painter.fillRect(QRect(QPoint(), size), QBrush(gradient));
}

void PaintBasicWidget::Impl::drawStripes(QPainter& painter, const QSize& size) const
{
    if (drawnColors.isEmpty())
        return;
    // Stripes are not widened to absorb the remainder: the last columns stay transparent.
    const int stripeWidth = size.width() / drawnColors.size();
    for (int i = 0; i < drawnColors.size(); ++i)
        painter.fillRect(i * stripeWidth, 0, stripeWidth, size.height(), drawnColors.at(i));
}

PaintBasicWidget::PaintBasicWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
}

PaintBasicWidget::~PaintBasicWidget() = default;

void PaintBasicWidget::setMode(uint mode)
{
    assign(d->mode, mode);
}

uint PaintBasicWidget::mode() const
{
    return d->mode;
}

void PaintBasicWidget::setOddColor(const QColor& color)
{
    assign(d->oddColor, color);
}

void PaintBasicWidget::setEvenColor(const QColor& color)
{
    assign(d->evenColor, color);
}

void PaintBasicWidget::setRows(ushort rows)
{
    assign(d->rows, rows);
}

void PaintBasicWidget::setColumns(ushort columns)
{
    assign(d->columns, columns);
}

void PaintBasicWidget::setGradientList(QListWidget* list)
{
    assign(d->gradientList, QPointer<QListWidget>(list));
}

void PaintBasicWidget::setColorStripeList(QListWidget* list)
{
    assign(d->colorStripeList, QPointer<QListWidget>(list));
}

bool PaintBasicWidget::isDrawable() const
{
    return d->mode != 0 || (d->rows > 0 && d->columns > 0);
}

LayerPainter::Coverage PaintBasicWidget::coverage() const
{
    const bool opaqueChess = d->mode == 0 && d->oddColor.alpha() == 255 && d->evenColor.alpha() == 255;
    return opaqueChess ? Coverage::Opaque : Coverage::Unknown;
}

void PaintBasicWidget::draw(QPainter& painter, const QSize& size)
{
    d->drawnColors = d->barColors();
    switch (d->mode) {
    case 0:
        d->drawChess(painter, size);
        break;
    case 1:
        d->drawGradient(painter, size);
        break;
    case 2:
        d->drawStripes(painter, size);
        break;
    default:
        break;
    }
}

bool PaintBasicWidget::sourceChanged() const
{
    return d->barColors() != d->drawnColors;
}

} // namespace vardeno::testcharttools
