#pragma once

#include <opencv2/core.hpp>

namespace WallReading {

/// The products of each row of `a` with each row of `b`, both of floats and equally long.
cv::Mat productsOf(const cv::Mat& a, const cv::Mat& b);

} // namespace WallReading
