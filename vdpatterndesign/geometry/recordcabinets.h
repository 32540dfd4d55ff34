#pragma once

#include "geometry/cabinetlabels.h"
#include "vdchartcore_export.h"

namespace vardeno::testcharttools {

struct InLineChartData;
struct PublicChartData;

/// The cabinets of a record's chart, and how they are labelled. Of several modes that are set, the last one
/// counts, as it does in the panel; where none is, letters do.
CabinetGrid cabinetGrid(const PublicChartData& data);
VDCHARTCORE_EXPORT LabelStyle labelStyle(const InLineChartData& data);

} // namespace vardeno::testcharttools
