#pragma once

#include "cabinetcomparison.h"

#include <QImage>

#include <optional>

namespace ChartComparison {

/// Whether two pictures of one size differ a little everywhere, as after a lossy compression: in many places,
/// with the same mean colours.
std::optional<Finding> findLossyCompression(const QImage& expected, const QImage& actual,
                                            const CabinetGrid& grid);

} // namespace ChartComparison
