#pragma once

#include "testcharttoolsdata.h"
#include "vdchartcore_export.h"

#include <QRect>
#include <QString>

namespace vardeno::testcharttools {

/// The cabinets of a chart, by their 0-based row and column from the top left. Functions without state, for
/// any thread.
namespace ChartCabinets {

/// What the cabinet is labelled, "A-1": the row's part, a hyphen, the column's part, also where they are
/// drawn in two corners or not at all. Empty outside the grid.
VDCHARTCORE_EXPORT QString label(const TestChartToolsData& record, int row, int column);

/// The cabinet's place on the chart, in whole chart pixels. Where the grid does not divide the resolution,
/// neighbours leave a gap of one pixel here and there. Empty outside the grid.
VDCHARTCORE_EXPORT QRect rect(const TestChartToolsData& record, int row, int column);

/// What the cabinet is labelled that holds `pixel` of the chart; empty between cabinets and outside.
VDCHARTCORE_EXPORT QString labelAt(const TestChartToolsData& record, const QPoint& pixel);

} // namespace ChartCabinets

} // namespace vardeno::testcharttools
