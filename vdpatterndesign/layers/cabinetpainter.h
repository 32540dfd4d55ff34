#pragma once

#include "geometry/cabinetlabels.h"
#include "vdchartcore_export.h"

class QColor;
class QPainter;
class QRect;

namespace vardeno::testcharttools {

/// Draws the label of every cabinet of `grid` that reaches into `area`, in `font` and `color`.
VDCHARTCORE_EXPORT void drawCabinetLabels(QPainter& painter, const CabinetGrid& grid, const LabelStyle& style,
                                          const QFont& font, const QColor& color, const QRect& area);

/// The same in the painter's font at that many pixels; at 0 in the size that it has.
void drawCabinetLabels(QPainter& painter, const CabinetGrid& grid, const LabelStyle& style, int pixelSize,
                       const QColor& color, const QRect& area);

} // namespace vardeno::testcharttools
