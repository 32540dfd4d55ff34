#pragma once

#include "vdchartcore_export.h"

#include <QRect>

#include <vector>

namespace vardeno::testcharttools {

struct TestChartToolsData;

/// The coded markers that cabinets carry for photographs, of the family AprilTag 36h11: a black square of 8 x
/// 8 modules in a white one of 10 x 10. A module is a square of whole chart pixels.
constexpr int markerCount = 587;
constexpr int markerModules = 8;

/// Whether the module of the black square is white; `row` and `column` from 0 at its top left. All are black
/// of a marker that there is not.
VDCHARTCORE_EXPORT bool isMarkerWhite(int marker, int row, int column);

/// The marker of the cabinet, counted from 0 row by row. The first 587 cabinets have the markers in their
/// order, the next 587 every second one, the next every third one, always going round: a marker that is there
/// twice has other neighbours, and they tell which it is. It is 587 being a prime that gives each round all
/// of them.
VDCHARTCORE_EXPORT int markerOf(int cabinet);

/// What of a cabinet labels take: the height of a line in chart pixels, 0 without labels, and where they are:
/// 0 in the centre, 1 and 2 in two opposite corners.
struct LabelRoom
{
    int height = 0;
    int position = 0;
};

/// The black square of a marker in the cabinet `cell`: in its middle, or above a label that is there. It
/// takes half of the cabinet at most, and leaves its edges and labels free. Empty where there is no room for
/// modules of two pixels.
VDCHARTCORE_EXPORT QRect markerSquare(const QRect& cell, const LabelRoom& labels);

/// The pixels of a side that a marker needs, with the white around it and what is left free.
VDCHARTCORE_EXPORT int leastMarkerRoom();

/// How high a line of labels in a font of so many pixels is. Needs the application's fonts.
VDCHARTCORE_EXPORT int labelLineHeight(int pixelSize);

/// What the labels of `record` take in a font of so many pixels. Needs the application's fonts.
VDCHARTCORE_EXPORT LabelRoom labelRoom(const TestChartToolsData& record, int pixelSize);

struct CabinetMarker
{
    int marker = 0;
    QRect square; ///< its black one, in chart pixels
};

/// Those of the record's chart, cabinet by cabinet, row by row. None at all where there is no room for them.
VDCHARTCORE_EXPORT std::vector<CabinetMarker> cabinetMarkers(const TestChartToolsData& record);

} // namespace vardeno::testcharttools
