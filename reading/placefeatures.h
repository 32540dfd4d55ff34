#pragma once

#include "lens.h"

namespace WallReading {

/// Local features of a picture, the strongest ones.
struct Features
{
    std::vector<cv::Point2f> points;
    std::vector<float> sizes;
    std::vector<float> angles; ///< degrees
    cv::Mat descriptors;       ///< a row of length 1 for each
};

Features featuresOf(const cv::Mat& grey, int most);

/// Places that features of chart and picture agree on, the best first. `chartScale` and `pictureScale`:
/// pixels of what the features were looked for in, per pixel of the whole.
std::vector<Lens> proposedByFeatures(const Features& chart, const Features& picture, double chartScale,
                                     double pictureScale, const cv::Size& chartSize,
                                     const cv::Size& pictureSize);

} // namespace WallReading
