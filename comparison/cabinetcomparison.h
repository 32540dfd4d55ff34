#pragma once

#include "finding.h"

#include <QImage>
#include <QRect>

#include <vector>

namespace ChartComparison {

/// A cabinet of the chart, in chart pixels.
struct Cabinet
{
    QRect rect;
    QString name; ///< as it is labelled; need not be unique
};

/// All of them, row by row. Their rectangles may overlap, leave gaps and differ in size by a pixel.
struct CabinetGrid
{
    int columns = 0;
    std::vector<Cabinet> cabinets;

    int rowOf(std::size_t cabinet) const { return int(cabinet) / (columns > 0 ? columns : 1); }
    int columnOf(std::size_t cabinet) const { return int(cabinet) % (columns > 0 ? columns : 1); }
};

struct CabinetReport
{
    std::vector<Finding> findings;
    std::vector<QRect> differing; ///< cabinets, in chart pixels
    qint64 differingPixels = 0;
    qint64 unexplainedPixels = 0; ///< of them, those in no cabinet that is swapped, missing or turned
};

/// What differs between two pictures of one size, cabinet by cabinet. Contents that occur more than once
/// prove no swap. With `allOrNothing` it ends with the first cabinet that is not explained, and the report is
/// of use only where there is none.
CabinetReport compareCabinets(const QImage& expected, const QImage& actual, const CabinetGrid& grid,
                              bool allOrNothing = false);

} // namespace ChartComparison
