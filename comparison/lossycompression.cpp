#include "lossycompression.h"

#include "imagepixels.h"

#include <algorithm>

namespace ChartComparison {

namespace {

constexpr int blockSide = 16; ///< compression halves the colours' resolution, in squares of 8
constexpr float blockTolerance = 16;
constexpr double mostMean = 8;
constexpr int hardlySeen = 24; ///< of 255: faults differ by more

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
    return differing * 10 >= marked * 9;
}

bool differInMuch(const QImage& expected, const QImage& actual)
{
    const qint64 all = pixelCount(expected.size());
    return (all - equalPixels(expected, expected.rect(), actual, {})) * 50 >= all;
}

} // namespace

std::optional<Finding> findLossyCompression(const QImage& expected, const QImage& actual,
                                            const CabinetGrid& grid)
{
    const ChannelDifference difference = channelDifference(expected, actual);
    const bool isWide = differInMuch(expected, actual) || difference.greatest <= hardlySeen;
    if (!isWide || !differEverywhere(expected, actual, grid))
        return std::nullopt;
    if (difference.mean > mostMean ||
        !differingBlocks(blockMeans(expected, blockSide), blockMeans(actual, blockSide), blockTolerance)
             .empty())
        return std::nullopt;
    return Finding{
        Kind::Lossy,
        QStringLiteral("a little different everywhere, as after lossy compression: by up to %1 and in "
                       "the mean %2 of 255")
            .arg(difference.greatest)
            .arg(difference.mean, 0, 'f', 2)};
}

} // namespace ChartComparison
