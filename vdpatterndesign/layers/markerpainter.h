#pragma once

#include "vdchartcore_export.h"

class QPainter;
class QRect;

namespace vardeno::testcharttools {

/// Draws a coded marker with its black square in `square`, which `markerSquare` gave, and the white around
/// it; nothing where that is empty or does not reach into `area`. Its pixels are whole.
VDCHARTCORE_EXPORT void drawMarker(QPainter& painter, int marker, const QRect& square, const QRect& area);

} // namespace vardeno::testcharttools
