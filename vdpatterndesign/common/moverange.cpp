#include "common/moverange.h"

#include <algorithm>

namespace vardeno::testcharttools {

QPoint keptInRange(const QPoint& target, const QSize& frame, const QRect& range)
{
    if (range.isNull())
        return target;
    const int bottom = range.y() + range.height();
    const int right = range.x() + range.width();
    return {std::min(target.x(), right - frame.width()), std::min(target.y(), bottom - frame.height())};
}

} // namespace vardeno::testcharttools
