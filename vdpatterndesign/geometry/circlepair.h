#pragma once

#include "vdchartcore_export.h"

#include <QRect>

#include <utility>

namespace vardeno::testcharttools {

/// The outer diameter of the chart's circles, whose radius is `radius`: limited to the chart's shorter side.
/// The doubled radius is kept to 16 bits.
VDCHARTCORE_EXPORT ushort effectiveDiameter(const QSize& chart, ushort radius);

/// The rectangles of the two circles' centre lines for a pen `lineWidth` wide: the circles touch the left and
/// the right edge of a chart that is at least as wide as high, else the top and the bottom edge, with the
/// stroke inside. A pen wider than the diameter leaves empty rectangles.
VDCHARTCORE_EXPORT std::pair<QRect, QRect> circlePair(const QSize& chart, ushort diameter, ushort lineWidth);

} // namespace vardeno::testcharttools
