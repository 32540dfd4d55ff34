#include "chartview.h"

#include "cvimages.h"

#include <algorithm>
#include <cmath>

namespace WallReading {

ChartView viewOf(const cv::Mat& chart, int longSide)
{
    ChartView view;
    view.chart = chart.size();
    view.rgb = reduced(chart, std::min(1.0, double(longSide) / std::max(chart.cols, chart.rows)));
    view.scale = double(view.rgb.cols) / chart.cols;
    view.grey = greyOf(view.rgb);
    return view;
}

cv::Rect cabinetIn(const ChartView& view, const ChartComparison::CabinetGrid& grid, std::size_t index)
{
    const QRect rect = grid.cabinets[index].rect;
    const auto at = [&view](int chartPixel) { return int(std::lround(chartPixel * view.scale)); };
    const cv::Point from(at(rect.left()), at(rect.top()));
    const cv::Point to(at(rect.right() + 1), at(rect.bottom() + 1));
    return cv::Rect(from, to) & cv::Rect({}, view.size());
}

int cabinetSide(const ChartComparison::CabinetGrid& grid)
{
    int side = 1 << 20;
    for (const auto& cabinet : grid.cabinets)
        side = std::min({side, cabinet.rect.width(), cabinet.rect.height()});
    return std::max(side, 1);
}

} // namespace WallReading
