#pragma once

#include <QSize>

namespace vardeno::testcharttools {

/// The longest side of a chart that is drawn in one piece, in pixels.
constexpr int longestWhole = 4320;

/// Whether all of the chart is drawn at once. Wide lines that the toolkit clips are others at their edges
/// than those that it does not: in a larger chart everything is drawn in ways that do not depend on the part
/// that is asked for.
inline bool isDrawnWhole(const QSize& chart)
{
    return chart.width() <= longestWhole && chart.height() <= longestWhole;
}

} // namespace vardeno::testcharttools
