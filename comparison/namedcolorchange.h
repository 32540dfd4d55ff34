#pragma once

#include <QColor>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace ChartComparison {

/// A colour of the chart, what is shown instead, and in how many pixels.
struct ColorPair
{
    QRgb from;
    QRgb to;
    qint64 pixels;
};

struct NamedColorChange
{
    QString text;
    std::function<QRgb(QRgb)> map;
};

/// The change that turns the colours into those that are shown instead, but for the rounding of one or two
/// steps, in all but `tolerated` of the pixels (0 to 1). None for less than two colours, which would prove
/// too little.
std::optional<NamedColorChange> namedColorChange(const std::vector<ColorPair>& pairs, double tolerated);

} // namespace ChartComparison
