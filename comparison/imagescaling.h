#pragma once

#include "cabinetcomparison.h"

#include <QImage>
#include <QRect>
#include <QRectF>

#include <optional>
#include <vector>

namespace ChartComparison {

/// A chart, or a part of it, in another scale.
struct Scaling
{
    QRectF part;                 ///< of the chart
    QRect content;               ///< where the picture shows it; around it are bars
    bool smooth = false;         ///< mixed from neighbouring pixels, not taken from the nearest one
    double explained = 1;        ///< the share of the picture that it explains
    std::vector<QRectF> failing; ///< places of the chart that it does not explain
    double error = 0;            ///< mean difference of a channel that it leaves
};

/// Whether `actual` shows `expected` scaled: whole, also between bars of one colour, or zoomed in. How
/// colours are mixed differs from program to program: what counts are the mean colours of small squares.
std::optional<Scaling> findScaling(const QImage& expected, const QImage& actual);

/// Whether it shows all of it in another size between bars. Of several places the one with the least error.
std::optional<Scaling> findScalingBetweenBars(const QImage& expected, const QImage& actual);

/// The cabinets that it does not explain.
std::vector<CabinetPlace> failingCabinets(const Scaling& scaling, const CabinetGrid& grid);

Finding scalingFinding(const QSize& expected, const QSize& actual, const Scaling& scaling);

} // namespace ChartComparison
