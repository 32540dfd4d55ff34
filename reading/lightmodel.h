#pragma once

#include <opencv2/core.hpp>

namespace WallReading {

/// How the camera shows the chart's colours: a tone curve for each channel, with what it takes from the other
/// two, and a gain that changes slowly over the wall.
struct Light
{
    cv::Mat gain;       ///< float, over the view
    cv::Vec3f pedestal; ///< what a dark wall comes to, of 255: the gain does not change it
    cv::Mat toned;      ///< the chart in the picture's colours, three floats of 255, without the gain
    cv::Vec3f white;    ///< the brightest that the chart shows, and the darkest, so toned
    cv::Vec3f black;
    double noise = 1;  ///< steps of 255 that a pixel is off
    double slope = 1;  ///< of the picture's values over the chart's, in the mean
    double offset = 0; ///< the picture's value for the chart's black, where both are known
    bool isKnown = false;
};

/// Fits it to what the wall shows; faults in up to a third of it do no harm. Both are of one size, three
/// floats of 255 each; `inside` says where the picture is.
Light lightOf(const cv::Mat& chart, const cv::Mat& seen, const cv::Mat& inside);

} // namespace WallReading
