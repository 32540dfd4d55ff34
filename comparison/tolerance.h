#pragma once

#include <QImage>

namespace ChartComparison {

/// `actual` without what is tolerated: with the chart's colour in every pixel where no channel is further off
/// than `tolerance`, of 255. A chart that has moved is not found so: then each colour is replaced by the
/// nearest one of the chart's that is no further off, unless the chart has very many, which are near to
/// anything.
QImage toleratedPicture(const QImage& expected, const QImage& actual, int tolerance);

} // namespace ChartComparison
