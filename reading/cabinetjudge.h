#pragma once

#include "chartmarkers.h"
#include "placesearch.h"
#include "wallreading.h"

namespace WallReading {

/// Looks at each cabinet of the chart at `place`, and adds what is wrong to `reading`. What markers say is
/// exact.
void judgeCabinets(Reading& reading, const cv::Mat& chart, const ChartComparison::CabinetGrid& grid,
                   const cv::Mat& picture, const FoundPlace& place, const MarkedContents& marked);

} // namespace WallReading
