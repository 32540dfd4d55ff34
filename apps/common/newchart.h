#pragma once

#include <testcharttoolsdata.h>

/// A new chart for a wall, whose resolution, rows and columns of cabinets `wall` has. Lines, circles and
/// texts are as large on it as those of a default record are on 1920 x 1080 pixels, labels as large in their
/// cabinets; the texts and the logo stand where they cover no label, whatever the language is and whatever is
/// written in their place. What there is no room for is switched off. Measures texts: needs the application
/// with its fonts, and its thread.
vardeno::testcharttools::TestChartToolsData
newChart(const vardeno::testcharttools::PublicChartData& wall = {});
