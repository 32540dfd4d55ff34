#pragma once

#include "showfile.h"

namespace vardeno::walls {

/// Walls put on outputs by themselves. Functions without state, for any thread.
namespace ShowArrangement {

/// Each wall as a whole at the upper left of an output of its own; behind the last output others like it
/// follow.
VDWALLS_EXPORT void placeSideBySide(ShowDocument& show, const std::vector<WallDocument>& walls);

/// All walls on as few outputs, with as little waste, as `packRects` finds. A wall that is larger than every
/// output is cut, at edges of its grid where there are some. Behind the last output others like it follow.
/// Returns an empty text, or which wall could not be placed.
VDWALLS_EXPORT QString autoPack(ShowDocument& show, const std::vector<WallDocument>& walls, bool mayTurn);

/// The parts of a wall of which each fits into `most`: cut at edges of its grid, or where a single column or
/// row is too large in it.
VDWALLS_EXPORT std::vector<QRect> partsWithin(const WallDocument& wall, const QSize& most);

} // namespace ShowArrangement

} // namespace vardeno::walls
