#include "geometry/moverange.h"

#include <algorithm>

namespace vardeno::testcharttools {

QPoint keptInRange(const QPoint& target, const QSize& frame, const QRect& range)
{
    if (range.isNull())
        return target;
    return {std::min(target.x(), range.right() - frame.width()),
            std::min(target.y(), range.bottom() - frame.height())};
}

} // namespace vardeno::testcharttools
