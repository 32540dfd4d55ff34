#pragma once

#include "cabinetplan.h"

#include <vector>

namespace vardeno::walls {

/// A way through all cabinets of a wall.
struct CabinetOrder
{
    Corner corner = Corner::TopLeft; ///< where it begins
    Direction direction = Direction::Rows;
    bool backAndForth = false; ///< each other line is gone along the other way
};

/// The cabinets by that way: the rows or columns from the corner on, each with its cabinets in the order in
/// which it comes by them. A cabinet that spans several of them belongs to the first one. One without
/// cabinets of its own is left out, and does not turn the way.
VDWALLS_EXPORT std::vector<std::vector<int>> cabinetLines(const CabinetPlan& plan, const CabinetOrder& order);

/// The name of each cabinet of the plan: its own, or what the numbering gives, or what `record` labels it. A
/// cabinet with a name of its own keeps its number, which is then not used.
VDWALLS_EXPORT std::vector<QString> cabinetNames(const WallDocument& wall, const CabinetPlan& plan,
                                                 const testcharttools::TestChartToolsData& record);

} // namespace vardeno::walls
