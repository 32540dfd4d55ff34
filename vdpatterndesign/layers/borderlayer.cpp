#include "layers/borderlayer.h"

#include "layers/chartpen.h"
#include "layers/largechart.h"

#include <QPainter>

#include <algorithm>

namespace vardeno::testcharttools {

LayerCoverage BorderLayer::coverage() const
{
    return visible ? LayerCoverage::Unknown : LayerCoverage::Nothing;
}

QVector<QRect> BorderLayer::reach(const QSize& chart) const
{
    return isDrawnAsLines(chart) ? QVector<QRect>{QRect(QPoint(), chart)} : bars(chart);
}

/// Where opposite sides overlap, rounding lets one of them or the other reach a pixel farther. A width of 0
/// is the thinnest line that there is.
bool BorderLayer::isDrawnAsLines(const QSize& chart) const
{
    return isDrawnWhole(chart) && (width < 1 || 2 * width > std::min(chart.width(), chart.height()));
}

/// Its four sides, each as long as the chart.
QVector<QRect> BorderLayer::bars(const QSize& chart) const
{
    const int w = chart.width();
    const int h = chart.height();
    return {{0, 0, w, width}, {0, h - width, w, width}, {0, 0, width, h}, {w - width, 0, width, h}};
}

void BorderLayer::draw(QPainter& painter, const QSize& chart, const QRect& area) const
{
    if (!visible)
        return;
    if (isDrawnAsLines(chart)) {
        drawLines(painter, chart);
        return;
    }
    for (const QRect& bar : bars(chart))
        painter.fillRect(bar & area, color);
}

void BorderLayer::drawLines(QPainter& painter, const QSize& chart) const
{
    painter.setPen(chartPen(color, width));

    // The lines' centres lie half a pen inside the edges; the square caps fill the corners.
    const double half = width * 0.5;
    const int near = int(half);
    const int right = int(chart.width() - half);
    const int bottom = int(chart.height() - half);
    painter.drawLine(near, near, right, near);
    painter.drawLine(near, bottom, right, bottom);
    painter.drawLine(near, near, near, bottom);
    painter.drawLine(right, near, right, bottom);
}

} // namespace vardeno::testcharttools
