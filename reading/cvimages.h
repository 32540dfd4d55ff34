#pragma once

#include <QImage>

#include <opencv2/core.hpp>

namespace WallReading {

/// A copy: red, green and blue, 8 bits each.
cv::Mat toMat(const QImage& image);
QImage toImage(const cv::Mat& rgb);

/// One channel, in the type and the range of the three.
cv::Mat greyOf(const cv::Mat& rgb);

/// Smaller by `factor`; as it is for 1 and more.
cv::Mat reduced(const cv::Mat& image, double factor);

} // namespace WallReading
