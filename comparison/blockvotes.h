#pragma once

#include <QImage>
#include <QPoint>

#include <vector>

namespace ChartComparison {

/// Places of `expected`'s origin on `actual` for which the most small squares speak that occur in both, the
/// most likely first. One pass over `expected`, whatever the number of squares.
std::vector<QPoint> votedPlaces(const QImage& expected, const QImage& actual);

} // namespace ChartComparison
