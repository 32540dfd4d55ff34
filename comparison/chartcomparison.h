#pragma once

#include "cabinetcomparison.h"
#include "finding.h"
#include "vdcomparison_export.h"

#include <QImage>
#include <QStringList>

#include <vector>

/// Is a picture a chart, pixel for pixel, and what has happened to it where it is not? Functions of values,
/// for any thread.
namespace ChartComparison {

struct Result
{
    bool equal = false;
    int tolerated = 0; ///< of equal pictures: the greatest difference of a channel
    /// What is wrong, the most far-reaching first; empty only for equal pictures.
    std::vector<Finding> findings;
    /// The chart, darkened, with every pixel that differs bright yellow and every cabinet that differs
    /// outlined in red; null for equal pictures. Of the chart's size where the picture has it or what has
    /// happened to it could be undone, else as large as both.
    QImage difference;

    VDCOMPARISON_EXPORT QStringList sentences() const;
};

/// Compares by 8-bit colours: neither format nor alpha counts. `cabinets` are those of the chart, row by row.
///
/// Of what explains the whole picture the simplest is told, and what else would; where nothing does, what is
/// nearest, and what is then left.
///
/// A channel that is off by up to `tolerance`, 0 to 255, counts as equal.
VDCOMPARISON_EXPORT Result compare(const QImage& expected, const QImage& actual, const CabinetGrid& cabinets,
                                   int tolerance = 0);

} // namespace ChartComparison
