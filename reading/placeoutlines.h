#pragma once

#include "lens.h"

namespace WallReading {

/// Places whose outline is that of something bright with four corners, the largest first.
std::vector<Lens> proposedByOutlines(const cv::Mat& grey, const cv::Size& chartSize);

/// The places of a capture: the chart fills the picture, as it is.
Lens filling(const cv::Size& picture, const cv::Size& chart);

} // namespace WallReading
