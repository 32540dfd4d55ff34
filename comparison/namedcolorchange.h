#pragma once

#include "finding.h"

#include <QColor>

#include <functional>
#include <optional>
#include <vector>

namespace ChartComparison {

/// A change of colours that has a name, and how it is calculated.
struct NamedColorChange
{
    ColorEffect effect;
    std::function<QRgb(QRgb)> map;
};

/// The change that turns the colours into those that are shown instead, but for the rounding of one or two
/// steps, in all but `tolerated` of the pixels (0 to 1). None for less than two colours, which would prove
/// too little.
std::optional<NamedColorChange> namedColorChange(const std::vector<ColorPair>& pairs, double tolerated);

} // namespace ChartComparison
