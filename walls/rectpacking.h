#pragma once

#include "vdwalls_export.h"

#include <QRect>

#include <vector>

namespace vardeno::walls {

/// Where a rectangle was put.
struct PackedRect
{
    int bin = -1; ///< -1 where it fits none
    QRect rect;
    bool turned = false; ///< by 90 degrees
};

/// Puts rectangles into bins so that few bins are begun and little is wasted, by maximal rectangles with the
/// best short side fit: each one goes into the free rectangle that leaves the least beside it. Several orders
/// are tried (by area, longer side, width, height, perimeter, and as given), and the result taken that leaves
/// out the fewest, then begins the fewest bins, then has the least waste: the area of the smallest rectangles
/// around what lies in each bin. Bins are begun in their order.
VDWALLS_EXPORT std::vector<PackedRect> packRects(const std::vector<QSize>& rects,
                                                 const std::vector<QSize>& bins, bool mayTurn);

} // namespace vardeno::walls
