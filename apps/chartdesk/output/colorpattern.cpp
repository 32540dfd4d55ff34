#include "colorpattern.h"

#include "hosttext.h"

#include <QPainter>

ColorPattern::ColorPattern(const QSize& chart, const std::vector<QColor>& colors)
    : m_chart(QPoint(), chart)
    , m_colors(colors)
{
}

std::vector<QColor> ColorPattern::primaries()
{
    return {Qt::red, Qt::green, Qt::blue, Qt::white, Qt::black};
}

std::vector<QColor> ColorPattern::greys()
{
    constexpr int step = 17; // divides 255
    std::vector<QColor> found;
    for (int level = 0; level <= 255; level += step)
        found.emplace_back(level, level, level);
    return found;
}

void ColorPattern::draw(QPainter& painter, int step, const QRect& place) const
{
    painter.fillRect(place, color(step));
}

QRegion ColorPattern::changed(int from, int to) const
{
    return color(from) == color(to) ? QRegion() : m_chart;
}

QString ColorPattern::text(int step) const
{
    const QColor shown = color(step);
    return hostText(QStringLiteral("Color %1, %2, %3")).arg(shown.red()).arg(shown.green()).arg(shown.blue());
}
