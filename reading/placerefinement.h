#pragma once

#include "chartview.h"
#include "lens.h"

namespace WallReading {

/// What block matching came to.
struct Refinement
{
    Lens lens;
    int blocks = 0;    ///< that were found in the picture
    int tried = 0;     ///< of so many in it
    double error = 99; ///< the median of what they are off, in chart pixels
};

/// Moves `start` to where blocks of the chart are found again, up to `search` pixels of the view off.
Refinement refined(const ChartView& view, const cv::Mat& picture, const Lens& start, int search, int rounds);

} // namespace WallReading
