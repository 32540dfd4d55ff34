#pragma once

#include <opencv2/core.hpp>

#include <vector>

namespace WallReading {

/// A point of the chart and where the picture has it, both in pixels, (0, 0) being the top left corner.
struct Match
{
    cv::Point2d chart;
    cv::Point2d picture;
};

/// From chart pixels to picture pixels: a homography, then one radial term around the picture's middle.
struct Lens
{
    cv::Matx33d homography = cv::Matx33d::eye();
    cv::Point2d middle;
    double reach = 1;  ///< from the middle to a corner, in pixels
    double radial = 0; ///< what is as far as a corner moves outwards by this part

    cv::Point2d operator()(const cv::Point2d& chart) const;
};

Lens lensOf(const cv::Matx33d& homography, const cv::Size& picture);

/// `lens` for a chart that was moved, scaled or turned by `change` before.
Lens after(const Lens& lens, const cv::Matx33d& change);

/// The lens that fits best from `start` on; what is further off than some pixels counts little. The radial
/// term is fitted only where there are matches enough.
Lens fitted(const Lens& start, const std::vector<Match>& matches, double tolerance);

/// Picture pixels per chart pixel, in the mean, about the point `chart`.
double scaleAt(const Lens& lens, const cv::Point2d& chart);

/// Whether the chart stays a quadrangle that is not turned inside out, nor squeezed to nothing.
bool isSensible(const Lens& lens, const cv::Size& chart);

/// The part of the picture that the chart of the size `chart` shows, as an image of the size `size`.
/// Where there is no picture it is black, and `inside` 0.
cv::Mat rectified(const cv::Mat& picture, const Lens& lens, const cv::Size2d& chart, const cv::Size& size,
                  cv::Mat* inside = nullptr);

} // namespace WallReading
