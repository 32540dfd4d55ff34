#pragma once

#include <QImage>
#include <QPoint>

#include <vector>

namespace ChartComparison {

/// Places of `expected`'s origin on `actual` for which the most small squares vote that occur in both, as in
/// a Hough transform, the most likely first. A rolling hash finds the squares in one pass over `expected`,
/// whatever their number.
std::vector<QPoint> votedPlaces(const QImage& expected, const QImage& actual);

} // namespace ChartComparison
