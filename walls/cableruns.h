#pragma once

#include "cabinetplan.h"

#include <vector>

namespace vardeno::walls {

/// A cable from cabinet to cabinet. The number of its port or circuit is its place in the list, from 1.
struct CableRun
{
    std::vector<int> cabinets; ///< their indices in the plan, from where it is fed on
    qint64 pixels = 0;         ///< of all of them
};

/// The pixels that a port feeds at the wall's bit depth and frame rate: `portPixels` x 8 / bits x 60 / Hz,
/// rounded down.
VDWALLS_EXPORT qint64 portCapacity(const DataCabling& data);

/// The pixels whose cabinets a circuit feeds; 0 where it is not known what a cabinet takes.
VDWALLS_EXPORT qint64 circuitCapacity(const WallDocument& wall, const CabinetPlan& plan);

/// What so many pixels take, in watts, rounded up; 0 where it is not known.
VDWALLS_EXPORT qint64 wattsOf(const WallDocument& wall, const CabinetPlan& plan, qint64 pixels);

/// The wall's data cables: those by hand as they are, or by the pattern. Such a run ends where the next
/// cabinet would be one pixel or one cabinet too much for its port, and with `EachLine` at the end of its
/// row or column. A cabinet that is too large for any port has one by itself.
VDWALLS_EXPORT std::vector<CableRun> dataRuns(const WallDocument& wall, const CabinetPlan& plan);

/// The power cables likewise, by watts. None by the pattern where it is not known what a cabinet takes.
VDWALLS_EXPORT std::vector<CableRun> powerRuns(const WallDocument& wall, const CabinetPlan& plan);

} // namespace vardeno::walls
