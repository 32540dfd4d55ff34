#pragma once

#include "showfile.h"

namespace vardeno::walls {

/// What a technician should know of a show that can be drawn, but may not be what was meant. Functions
/// without state and without widgets.
namespace ShowCheck {

/// Each warning names the field and the numbers: "show.placements: (placement 2) and (placement 1) overlap on
/// output "Left": 480 x 1080 pixels at 1440, 0". Those of the walls begin with "show.walls: (wall 1) " and
/// the path; they measure texts, so that there must be a QGuiApplication, and its thread.
VDWALLS_EXPORT QStringList warnings(const ShowDocument& show, const std::vector<ShowFile::PlacedWall>& walls);

} // namespace ShowCheck

} // namespace vardeno::walls
