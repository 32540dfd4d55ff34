#pragma once

#include "walldocument.h"

#include <QStringList>

namespace vardeno::walls {

/// What of a wall does not fit together, each with its field: "cabinets.exceptions: (cabinet 2) column 16 is
/// not in 1..15". None where the wall can be built.
QStringList placementProblems(const WallDocument& wall);

} // namespace vardeno::walls
