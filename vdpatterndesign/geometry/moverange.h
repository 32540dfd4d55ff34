#pragma once

#include "vdchartcore_export.h"

#include <QRect>

namespace vardeno::testcharttools {

/// Where a window of `frame` pixels that is to move to `target` may go within `range`: it stops a pixel
/// before the bottom and the right edge; it may leave at the top and to the left. A null range holds nothing
/// back.
VDCHARTCORE_EXPORT QPoint keptInRange(const QPoint& target, const QSize& frame, const QRect& range);

} // namespace vardeno::testcharttools
