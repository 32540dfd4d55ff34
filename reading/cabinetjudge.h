#pragma once

#include "placesearch.h"
#include "wallreading.h"

namespace WallReading {

/// Looks at each cabinet of the chart at `place`, and adds what is wrong to `reading`.
void judgeCabinets(Reading& reading, const cv::Mat& chart, const ChartComparison::CabinetGrid& grid,
                   const cv::Mat& picture, const FoundPlace& place);

} // namespace WallReading
