#pragma once

#include "markerdata.h"
#include "testcharttoolsdata.h"
#include "vdchartcore_export.h"

#include <QStringList>

namespace vardeno::testcharttools {

/// What a technician should know about a chart record that is valid, but may not show what was meant.
/// Functions without state and without widgets. They measure texts, so that they need a QGuiApplication with
/// the fonts that the chart is drawn with, and its thread. They read the picture of the logo.
namespace ChartCheck {

/// The smallest font, in chart pixels, whose texts count as readable: a capital letter is seven tenths of its
/// font high, and below seven rows of pixels letters and digits are no longer told apart.
constexpr int readableTextSize = 10;

/// Each warning names the field, its value and the reason: "publicData.boxCol: 1920 pixels / 7 cabinets leave
/// a remainder of 2". In the order of the record's groups; none for a chart as it should be.
VDCHARTCORE_EXPORT QStringList warnings(const TestChartToolsData& record);

/// The same of a record with what its document says beside it.
VDCHARTCORE_EXPORT QStringList warnings(const TestChartToolsData& record, const MarkerData& markers);

/// Why the picture of the record's logo is not drawn: "logoData.picturePath: "logo.png" does not exist; no
/// logo is drawn". Empty where it is, or where the record wants none.
VDCHARTCORE_EXPORT QString pictureProblem(const TestChartToolsData& record);

} // namespace ChartCheck

} // namespace vardeno::testcharttools
