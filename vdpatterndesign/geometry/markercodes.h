#pragma once

#include "geometry/cabinetmarkers.h"

#include <array>
#include <cstdint>

namespace vardeno::testcharttools {

/// The 36 modules within the black border of each marker of AprilTag 36h11, row by row from the highest of
/// the 36 bits on; 1 is white.
extern const std::array<std::uint64_t, markerCount> markerCodes;

} // namespace vardeno::testcharttools
