#pragma once

#include "readingthresholds.h"

#include <opencv2/core.hpp>

namespace WallReading {

/// Which blocks of each cabinet do not show what they should.
struct Blocks
{
    cv::Mat wrong; ///< of the wall, 6 x 6 for each cabinet
    int columns = 0;

    cv::Mat of(std::size_t cabinet) const
    {
        const int row = int(cabinet) / columns;
        const int column = int(cabinet) % columns;
        return wrong(cv::Rect(column * Thresholds::blocks, row * Thresholds::blocks, Thresholds::blocks,
                              Thresholds::blocks));
    }
    double share(std::size_t cabinet) const
    {
        return double(cv::countNonZero(of(cabinet))) / (Thresholds::blocks * Thresholds::blocks);
    }
};

} // namespace WallReading
