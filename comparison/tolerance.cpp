#include "tolerance.h"

#include "imagepixels.h"
#include "thresholds.h"

#include <QHash>
#include <QSet>

#include <vector>

namespace ChartComparison {

namespace {

/// Empty where there are too many.
std::vector<QRgb> colorsOf(const QImage& image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* const row = pixelRow(image, y);
        for (int x = 0; x < image.width(); ++x) {
            if (x > 0 && row[x] == row[x - 1])
                continue;
            colors.insert(row[x]);
            if (colors.size() > Thresholds::mostTolerantColors)
                return {};
        }
    }
    return {colors.begin(), colors.end()};
}

/// `color` itself where none is near enough.
QRgb nearestColor(const std::vector<QRgb>& colors, QRgb color, int tolerance)
{
    QRgb nearest = color;
    int least = tolerance + 1;
    for (const QRgb candidate : colors) {
        const int distance = channelDistance(candidate, color);
        if (distance < least || (distance == least && distance <= tolerance && candidate < nearest)) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

QImage withinTolerance(const QImage& expected, const QImage& actual, int tolerance)
{
    QImage within = actual;
    for (int y = 0; y < within.height(); ++y) {
        const QRgb* const wanted = pixelRow(expected, y);
        QRgb* const row = pixelRow(within, y);
        for (int x = 0; x < within.width(); ++x) {
            if (row[x] != wanted[x] && channelDistance(row[x], wanted[x]) <= tolerance)
                row[x] = wanted[x];
        }
    }
    return within;
}

QImage inColorsOf(const QImage& expected, const QImage& actual, int tolerance)
{
    const std::vector<QRgb> colors = colorsOf(expected);
    if (colors.empty())
        return actual;
    QHash<QRgb, QRgb> known;
    QImage changed = actual;
    for (int y = 0; y < changed.height(); ++y) {
        QRgb* const row = pixelRow(changed, y);
        for (int x = 0; x < changed.width(); ++x) {
            auto it = known.find(row[x]);
            if (it == known.end())
                it = known.insert(row[x], nearestColor(colors, row[x], tolerance));
            row[x] = *it;
        }
    }
    return changed;
}

} // namespace

QImage toleratedPicture(const QImage& expected, const QImage& actual, int tolerance)
{
    if (tolerance <= 0)
        return actual;
    if (expected.size() != actual.size())
        return inColorsOf(expected, actual, tolerance);
    const QImage inPlace = withinTolerance(expected, actual, tolerance);
    const bool isInPlace = equalShare(expected, inPlace) >= Thresholds::surelyInPlace;
    return isInPlace ? inPlace : inColorsOf(expected, inPlace, tolerance);
}

} // namespace ChartComparison
