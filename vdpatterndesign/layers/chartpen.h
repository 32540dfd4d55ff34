#pragma once

#include <QPen>

namespace vardeno::testcharttools {

/// The pen of all lines of the chart: solid, with square caps and bevelled joins, `width` chart pixels wide.
inline QPen chartPen(const QColor& color, double width)
{
    return {QBrush(color), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin};
}

} // namespace vardeno::testcharttools
