#include "linepattern.h"

#include "hosttext.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int band = 32; ///< rows of a diagonal that are covered by one rectangle

} // namespace

LinePattern::LinePattern(const QSize& chart, LineDirection direction)
    : m_chart(chart.expandedTo(QSize(1, 1)))
    , m_direction(direction)
{
}

int LinePattern::steps() const
{
    return m_direction == LineDirection::Horizontal ? m_chart.height() : m_chart.width();
}

void LinePattern::draw(QPainter& painter, int step, const QRect& place) const
{
    if (m_direction == LineDirection::Diagonal)
        drawDiagonal(painter, step, place);
    else
        painter.fillRect(covering(step).boundingRect() & place, Qt::white);
}

void LinePattern::drawDiagonal(QPainter& painter, int step, const QRect& place) const
{
    for (int y = place.top(); y <= place.bottom(); ++y) {
        const QPoint pixel((step + y) % m_chart.width(), y);
        if (place.contains(pixel))
            painter.fillRect(QRect(pixel, QSize(1, 1)), Qt::white);
    }
}

QRegion LinePattern::covering(int step) const
{
    if (m_direction == LineDirection::Horizontal)
        return QRect(0, step, m_chart.width(), 1);
    if (m_direction == LineDirection::Vertical)
        return QRect(step, 0, 1, m_chart.height());
    const QRect chart(QPoint(), m_chart);
    QRegion region;
    for (int y = 0; y < m_chart.height(); y += band) {
        const QRect part((step + y) % m_chart.width(), y, band, band);
        region += part & chart;
        region += part.translated(-m_chart.width(), 0) & chart; // where it begins at the left again
    }
    return region;
}

QRegion LinePattern::changed(int from, int to) const
{
    return covering(from) + covering(to);
}

QString LinePattern::text(int step) const
{
    switch (m_direction) {
    case LineDirection::Horizontal:
        return hostText(QStringLiteral("Horizontal line at %1")).arg(step);
    case LineDirection::Vertical:
        return hostText(QStringLiteral("Vertical line at %1")).arg(step);
    case LineDirection::Diagonal:
        break;
    }
    return hostText(QStringLiteral("Diagonal line at %1")).arg(step);
}
