#include "layers/patternlayer.h"

#include "layers/largechart.h"

#include <QPainter>

#include <cmath>

namespace vardeno::testcharttools {

bool PatternLayer::isDrawable() const
{
    return mode != 0 || (rows > 0 && columns > 0);
}

LayerCoverage PatternLayer::coverage() const
{
    const bool opaqueChess = mode == 0 && oddColor.alpha() == 255 && evenColor.alpha() == 255;
    return opaqueChess ? LayerCoverage::Opaque : LayerCoverage::Unknown;
}

void PatternLayer::draw(QPainter& painter, const QSize& chart, const QRect& area) const
{
    switch (mode) {
    case 0:
        drawChess(painter, chart, area);
        break;
    case 1:
        drawGradient(painter, chart, area);
        break;
    case 2:
        drawStripes(painter, chart);
        break;
    default:
        break;
    }
}

void PatternLayer::drawChess(QPainter& painter, const QSize& chart, const QRect& area) const
{
    const double cellHeight = double(chart.height()) / rows;
    const double cellWidth = double(chart.width()) / columns;
    // Edges are running sums: where rounding keeps the last one below the far edge, a sliver of one more cell
    // is drawn there. It is meant.
    const QRectF reached = QRectF(area).adjusted(-1, -1, 1, 1); // edges are rounded
    for (double y = 0.0; y < chart.height(); y += cellHeight) {
        if (y > reached.bottom() || y + cellHeight < reached.top())
            continue;
        for (double x = 0.0; x < chart.width(); x += cellWidth) {
            if (x > reached.right() || x + cellWidth < reached.left())
                continue;
            const bool odd = (std::lround(y / cellHeight) + std::lround(x / cellWidth)) % 2 == 0;
            painter.fillRect(QRectF(x, y, cellWidth, cellHeight), odd ? oddColor : evenColor);
        }
    }
}

void PatternLayer::drawGradient(QPainter& painter, const QSize& chart, const QRect& area) const
{
    QLinearGradient gradient(0, 0, chart.width(), 0);
    // One colour alone stands at 0 / 0, which is passed on as it is: there is no special case for it.
    for (int i = 0; i < colors.size(); ++i)
        gradient.setColorAt(i / (colors.size() - 1.0), colors.at(i));
    if (isDrawnWhole(chart)) {
        painter.fillRect(QRect(QPoint(), chart), QBrush(gradient));
        return;
    }
    // The toolkit adds up rounded steps from where it begins: it is to begin anew before that can be seen,
    // and at the same places whatever is drawn.
    constexpr int step = 64;
    for (int x = area.left() / step * step; x <= area.right(); x += step)
        painter.fillRect(x, area.top(), step, area.height(), QBrush(gradient));
}

void PatternLayer::drawStripes(QPainter& painter, const QSize& chart) const
{
    if (colors.isEmpty())
        return;
    // Stripes are not widened to absorb the remainder: the last columns stay transparent.
    const int stripeWidth = chart.width() / colors.size();
    for (int i = 0; i < colors.size(); ++i)
        painter.fillRect(i * stripeWidth, 0, stripeWidth, chart.height(), colors.at(i));
}

} // namespace vardeno::testcharttools
