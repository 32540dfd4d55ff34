#pragma once

#include <QRect>

namespace vardeno::testcharttools {

/// Where a window of `frame` pixels that is to move to `target` may go within `range`: it stops at the bottom
/// and at the right edge; it may leave at the top and to the left. A null range holds nothing back.
QPoint keptInRange(const QPoint& target, const QSize& frame, const QRect& range);

} // namespace vardeno::testcharttools
