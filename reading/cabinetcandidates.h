#pragma once

#include <opencv2/core.hpp>

#include <vector>

namespace WallReading {

/// One of the eight ways to lay a cabinet: mirrored left to right or not, then turned to the right.
struct Orientation
{
    bool isMirrored = false;
    int turn = 0; ///< degrees

    bool isStraight() const { return !isMirrored && turn == 0; }
};

/// Those that keep the sides of a cabinet of this size: four, or all eight of a square one.
std::vector<Orientation> orientationsFor(const cv::Size& cabinet);

cv::Mat laid(const cv::Mat& patch, const Orientation& orientation);

/// Content of the chart that a cabinet may show.
struct Content
{
    int cabinet = 0;
    Orientation orientation;
    double distance = 0; ///< squared, per value
};

/// For each patch of `seen` the contents that are nearest to it, the nearest first: a change of brightness by
/// a few percent does not count. `chart` are the patches of the chart's cabinets.
std::vector<std::vector<Content>> nearestContents(const std::vector<cv::Mat>& seen,
                                                  const std::vector<cv::Mat>& chart, int most);

} // namespace WallReading
