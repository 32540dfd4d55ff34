#pragma once

#include "testcharttoolsdata.h"
#include "vdpatterndesign_export.h"

#include <QRect>

namespace vardeno::testcharttools {

/// Where the parts of a chart are drawn, for programs that place them. In chart pixels; empty for what is
/// switched off or draws nothing. Functions without state and without widgets. They measure texts, so that
/// they need a QGuiApplication with the fonts that the chart is drawn with, and its thread.
namespace ChartInk {

/// As high and as wide as the text's glyphs.
VDPATTERNDESIGN_EXPORT QRect customText(const TestChartToolsData& record);

/// The logo, transparent or not, as far as it lies on the chart.
VDPATTERNDESIGN_EXPORT QRect logo(const TestChartToolsData& record);

/// The font's pixel size that is left of `inLineData.serialSize` so that labels fit their cabinets.
VDPATTERNDESIGN_EXPORT int labelSize(const TestChartToolsData& record);

/// Whether `area` touches a cabinet's label.
VDPATTERNDESIGN_EXPORT bool coversLabels(const TestChartToolsData& record, const QRect& area);

} // namespace ChartInk

} // namespace vardeno::testcharttools
