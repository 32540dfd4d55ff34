#pragma once

#include "chartview.h"
#include "lens.h"

namespace WallReading {

/// How well a place shows the chart, window by window.
struct PlaceScore
{
    double mean = 0; ///< of all windows that show anything in the chart, -1 to 1; 0 outside the picture
    double seen = 0; ///< part of these windows that is in the picture
    std::vector<float> windows; ///< the correlation of each, 0 outside the picture
};

/// Compares the chart with what is at a place, in windows smaller than a cabinet.
class PlaceScorer
{
public:
    PlaceScorer(const ChartView& view, int windowSide);

    PlaceScore score(const cv::Mat& picture, const Lens& lens) const;

private:
    ChartView m_view;
    int m_side;
    cv::Mat m_mean;
    cv::Mat m_deviation;
};

/// By how many standard errors `a` is better than `b`; positive where it is.
double betterBy(const PlaceScore& a, const PlaceScore& b);

} // namespace WallReading
