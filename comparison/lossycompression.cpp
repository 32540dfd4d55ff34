#include "lossycompression.h"

#include "imagepixels.h"
#include "thresholds.h"

#include <algorithm>

namespace ChartComparison {

namespace {

/// Compression spares no cabinet that has anything in it; faults do.
bool differEverywhere(const QImage& expected, const QImage& actual, const CabinetGrid& grid)
{
    std::size_t marked = 0;
    std::size_t differing = 0;
    for (const Cabinet& cabinet : grid.cabinets) {
        const QRect rect = cabinet.rect & expected.rect();
        if (rect.isEmpty() || isOneColor(expected, rect))
            continue;
        ++marked;
        differing += sameAt(expected, rect, actual, rect.topLeft()) ? 0 : 1;
    }
    return differing * 10 >= marked * Thresholds::lossyCabinetsInTen;
}

} // namespace

std::optional<Finding> findLossyCompression(const QImage& expected, const QImage& actual,
                                            const CabinetGrid& grid)
{
    const ChannelDifference difference = channelDifference(expected, actual);
    const double differing = 1 - equalShare(expected, actual);
    const bool isWide =
        differing * Thresholds::pixelsForOneLossy >= 1 || difference.greatest <= Thresholds::hardlySeen;
    if (!isWide || !differEverywhere(expected, actual, grid))
        return std::nullopt;
    const auto means = [](const QImage& image) { return blockMeans(image, Thresholds::lossyBlockSide); };
    if (difference.mean > Thresholds::mostLossyMean ||
        !differingBlocks(means(expected), means(actual), Thresholds::lossyBlockTolerance).empty())
        return std::nullopt;
    return Finding{Kind::Lossy, Deviation{difference.greatest, difference.mean, differing}, {}, {}};
}

} // namespace ChartComparison
