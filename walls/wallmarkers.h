#pragma once

#include "cabinetmarkers.h"
#include "cabinetplan.h"

namespace vardeno::walls {

/// The coded markers of a wall's cabinets, in the order of the plan. The square of a cabinet that has no room
/// for one is empty. Needs the application's fonts: markers leave the labels of `record` free.
VDWALLS_EXPORT std::vector<testcharttools::CabinetMarker>
cabinetMarkers(const CabinetPlan& plan, const testcharttools::TestChartToolsData& record);

} // namespace vardeno::walls
