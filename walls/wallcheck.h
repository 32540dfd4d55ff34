#pragma once

#include "vdwalls_export.h"
#include "wallfile.h"

#include <QStringList>

namespace vardeno::walls {

/// What a technician should know of a wall that can be built, but may not be what was meant. Functions
/// without state and without widgets. They measure texts, so that they need a QGuiApplication with the fonts
/// that the chart is drawn with, and its thread.
namespace WallCheck {

/// Each warning names the field, its value and the reason: "data.portPixels: port 3 has 700000 pixels, 44640
/// more than the 655360 that it feeds". Those of the chart begin with "chart.record." or "chart.path: ". None
/// for a wall as it should be.
VDWALLS_EXPORT QStringList warnings(const WallDocument& wall, const WallFile::Chart& chart);

} // namespace WallCheck

} // namespace vardeno::walls
