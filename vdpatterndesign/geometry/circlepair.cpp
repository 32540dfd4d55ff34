#include "geometry/circlepair.h"

#include <algorithm>

namespace vardeno::testcharttools {

ushort effectiveDiameter(const QSize& chart, ushort radius)
{
    const auto diameter = ushort(radius * 2);
    return ushort(std::min(int(diameter), std::min(chart.width(), chart.height())));
}

std::pair<QRect, QRect> circlePair(const QSize& chart, ushort diameter, ushort lineWidth)
{
    const int w = chart.width();
    const int h = chart.height();
    const int d = std::max(diameter - lineWidth, 0);
    const int half = lineWidth / 2;
    if (w >= h) {
        const int y = (h - d) / 2;
        return {QRect(half, y, d, d), QRect(w - half - d, y, d, d)};
    }
    const int x = (w - d) / 2;
    return {QRect(x, half, d, d), QRect(x, h - half - d, d, d)};
}

} // namespace vardeno::testcharttools
