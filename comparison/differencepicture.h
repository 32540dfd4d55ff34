#pragma once

#include <QImage>
#include <QRect>

#include <vector>

namespace ChartComparison {

/// The chart `expected`, darkened, with every pixel that differs in `actual` bright yellow, and `outlined`
/// rectangles of the chart in red. `at` is where on the picture the chart's origin is. Where one of them has
/// no pixel, it differs.
QImage differencePicture(const QImage& expected, const QImage& actual, const QPoint& at,
                         const std::vector<QRect>& outlined);

} // namespace ChartComparison
