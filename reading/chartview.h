#pragma once

#include "wallreading.h"

#include <opencv2/core.hpp>

#include <vector>

namespace WallReading {

/// The chart as it is compared: reduced, with its cabinets.
struct ChartView
{
    cv::Size chart;   ///< chart pixels
    double scale = 1; ///< pixels of the view per chart pixel, 1 at most
    cv::Mat rgb;
    cv::Mat grey;

    cv::Size size() const { return rgb.size(); }
};

/// `longSide`: the most pixels that the view may have on its longer side.
ChartView viewOf(const cv::Mat& chart, int longSide);

/// The cabinet `index` in pixels of the view.
cv::Rect cabinetIn(const ChartView& view, const ChartComparison::CabinetGrid& grid, std::size_t index);

/// The smaller side of the cabinets, in chart pixels.
int cabinetSide(const ChartComparison::CabinetGrid& grid);

} // namespace WallReading
