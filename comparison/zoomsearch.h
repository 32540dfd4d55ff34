#pragma once

#include <QImage>
#include <QRectF>

#include <optional>

namespace ChartComparison {

/// The part of `expected`, of the proportions of `actual`, that `actual` is most likely to show enlarged, by
/// 2 percent to 8 times; none where no part comes near. From coarse to fine.
std::optional<QRectF> findZoomedPart(const QImage& expected, const QImage& actual);

/// That part in `size`, smooth.
QImage zoomedPart(const QImage& expected, const QRectF& part, const QSize& size);

} // namespace ChartComparison
