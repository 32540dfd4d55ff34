#include "paintinlinewidget.h"

#include "geometry/circlepair.h"
#include "layers/cabinetpainter.h"
#include "layers/chartpen.h"

#include <QPainter>

namespace vardeno::testcharttools {

class PaintInLineWidget::Impl : public QObject
{
public:
    void drawDiagonals(QPainter& painter, const QSize& size) const;
    void drawCircles(QPainter& painter, const QSize& size);
    void drawLabels(QPainter& painter, const QSize& size);

    QColor circleColor = QColor(0x00, 0xff, 0x00);
    QColor diagonalColor = QColor(0x00, 0xff, 0x00);
    ushort circleLineWidth = 6;
    ushort diagonalLineWidth = 6;
    ushort circleRadius = 535;
    ushort effectiveDiameter = 0; ///< of the last render
    bool circleVisible = true;
    bool diagonalVisible = true;
    bool serialVisible = true;
    ushort rows = 9;
    ushort columns = 16;
    ushort workingSerialSize = 15; ///< of the last render
    ushort serialSize = 15;
    QColor serialColor = Qt::black;
    LabelStyle serial;
};

void PaintInLineWidget::Impl::drawDiagonals(QPainter& painter, const QSize& size) const
{
    painter.setPen(chartPen(diagonalColor, diagonalLineWidth));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawLine(0, 0, size.width(), size.height());
    painter.drawLine(size.width(), 0, 0, size.height());
}

void PaintInLineWidget::Impl::drawCircles(QPainter& painter, const QSize& size)
{
    effectiveDiameter = testcharttools::effectiveDiameter(size, circleRadius);
    const auto [first, second] = circlePair(size, effectiveDiameter, circleLineWidth);
    painter.setPen(chartPen(circleColor, circleLineWidth));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawEllipse(first);
    painter.drawEllipse(second);
}

void PaintInLineWidget::Impl::drawLabels(QPainter& painter, const QSize& size)
{
    const CabinetGrid grid{size, rows, columns};
    QFont font = painter.font();
    workingSerialSize = ushort(fittedLabelSize(serialSize, font, grid));
    if (workingSerialSize > 0)
        font.setPixelSize(workingSerialSize);
    drawCabinetLabels(painter, grid, serial, font, serialColor);
}

PaintInLineWidget::PaintInLineWidget(QWidget* parent)
    : LayerPainter(parent)
    , d(new Impl)
{
}

PaintInLineWidget::~PaintInLineWidget() = default;

void PaintInLineWidget::setCircleVisible(bool visible)
{
    assign(d->circleVisible, visible);
}

void PaintInLineWidget::setCircleColor(const QColor& color)
{
    assign(d->circleColor, color);
}

void PaintInLineWidget::setCircleLineWidth(ushort width)
{
    assign(d->circleLineWidth, width);
}

void PaintInLineWidget::setCircleRadius(ushort radius)
{
    assign(d->circleRadius, radius);
}

void PaintInLineWidget::setDiagonalVisible(bool visible)
{
    assign(d->diagonalVisible, visible);
}

void PaintInLineWidget::setDiagonalColor(const QColor& color)
{
    assign(d->diagonalColor, color);
}

void PaintInLineWidget::setDiagonalLineWidth(ushort width)
{
    assign(d->diagonalLineWidth, width);
}

void PaintInLineWidget::setSerialVisible(bool visible)
{
    assign(d->serialVisible, visible);
}

void PaintInLineWidget::setSerialColor(const QColor& color)
{
    assign(d->serialColor, color);
}

void PaintInLineWidget::setSerialSize(ushort pixelSize)
{
    assign(d->serialSize, pixelSize);
}

void PaintInLineWidget::setSerialMode(uint mode)
{
    assign(d->serial.mode, mode);
}

void PaintInLineWidget::setSerialSort(uint sort)
{
    assign(d->serial.sort, sort);
}

void PaintInLineWidget::setSerialPosition(uint position)
{
    assign(d->serial.position, position);
}

void PaintInLineWidget::setRows(ushort rows)
{
    assign(d->rows, rows);
}

void PaintInLineWidget::setColumns(ushort columns)
{
    assign(d->columns, columns);
}

ushort PaintInLineWidget::effectiveDiameter() const
{
    return d->effectiveDiameter;
}

ushort PaintInLineWidget::workingSerialSize() const
{
    return d->workingSerialSize;
}

void PaintInLineWidget::draw(QPainter& painter, const QSize& size)
{
    if (d->diagonalVisible)
        d->drawDiagonals(painter, size);
    if (d->circleVisible)
        d->drawCircles(painter, size);
    if (d->serialVisible)
        d->drawLabels(painter, size);
}

void PaintInLineWidget::resizeEvent(QResizeEvent* event)
{
    refresh();
    QWidget::resizeEvent(event);
}

} // namespace vardeno::testcharttools
