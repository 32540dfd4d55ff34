#pragma once

#include "vdchartcore_export.h"

#include <QRect>

namespace vardeno::testcharttools {

/// Where a chart of `chart` pixels is shown in a view of `view` pixels: as large as fits, with the chart's
/// proportions, in the middle. Integer divisions truncate; an empty chart or view gives an empty rectangle.
VDCHARTCORE_EXPORT QRect fittedPreview(const QSize& view, const QSize& chart);

} // namespace vardeno::testcharttools
