#pragma once

#include "cableruns.h"

#include <vector>

namespace vardeno::walls {

/// A cable whose cabinets are all bad from one of them on, and good before: what a pulled cable looks like.
struct RunFault
{
    int run;  ///< its index in the list
    int from; ///< the place in the run of the first bad cabinet
};

/// The cables of `runs` that are so. `bad` tells of each cabinet of the plan. A single cabinet at the end of
/// others may as well be broken itself: it makes no fault.
VDWALLS_EXPORT std::vector<RunFault> faultyRuns(const std::vector<CableRun>& runs,
                                                const std::vector<bool>& bad);

} // namespace vardeno::walls
