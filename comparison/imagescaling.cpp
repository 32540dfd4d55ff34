#include "imagescaling.h"

#include "imagepixels.h"
#include "thresholds.h"
#include "zoomsearch.h"

#include <algorithm>

namespace ChartComparison {

namespace {

constexpr int blockSide = Thresholds::scalingBlockSide;

bool isColumnOf(const QImage& image, int x, const QRect& rect, QRgb color)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        if (pixelRow(image, y)[x] != color)
            return false;
    }
    return true;
}

bool isRowOf(const QImage& image, int y, const QRect& rect, QRgb color)
{
    const QRgb* const row = pixelRow(image, y);
    return std::all_of(row + rect.left(), row + rect.right() + 1,
                       [color](QRgb pixel) { return pixel == color; });
}

/// The picture without bars of that colour around it.
QRect withoutBars(const QImage& image, QRgb bars)
{
    QRect rect = image.rect();
    while (rect.height() > 1 && isRowOf(image, rect.top(), rect, bars))
        rect.setTop(rect.top() + 1);
    while (rect.height() > 1 && isRowOf(image, rect.bottom(), rect, bars))
        rect.setBottom(rect.bottom() - 1);
    while (rect.width() > 1 && isColumnOf(image, rect.left(), rect, bars))
        rect.setLeft(rect.left() + 1);
    while (rect.width() > 1 && isColumnOf(image, rect.right(), rect, bars))
        rect.setRight(rect.right() - 1);
    return rect;
}

/// The source of each of `length` pixels, by the conventions that programs follow: the pixel under the
/// centre, under the near edge, or with the ends on the ends.
std::vector<int> nearestSources(int source, int length, int convention)
{
    std::vector<int> sources;
    for (int i = 0; i < length; ++i) {
        const double at = convention == 0   ? (i + 0.5) * source / length
                          : convention == 1 ? double(i) * source / length
                                            : i * (source - 1.0) / std::max(1, length - 1) + 0.5;
        sources.push_back(std::clamp(int(at), 0, source - 1));
    }
    return sources;
}

bool isNearestNeighbour(const QImage& expected, const QImage& content, int convention)
{
    const std::vector<int> columns = nearestSources(expected.width(), content.width(), convention);
    const std::vector<int> rows = nearestSources(expected.height(), content.height(), convention);
    for (int y = 0; y < content.height(); ++y) {
        const QRgb* const source = pixelRow(expected, rows[std::size_t(y)]);
        const QRgb* const shown = pixelRow(content, y);
        for (int x = 0; x < content.width(); ++x) {
            if (shown[x] != source[columns[std::size_t(x)]])
                return false;
        }
    }
    return true;
}

bool isNearestNeighbour(const QImage& expected, const QImage& content)
{
    return isNearestNeighbour(expected, content, 0) || isNearestNeighbour(expected, content, 1) ||
           isNearestNeighbour(expected, content, 2) ||
           plainColors(expected.scaled(content.size())) == content;
}

/// The chart's places under the squares of the picture that show something else.
std::vector<QRectF> failingPlaces(const QImage& wanted, const QImage& content, const QRectF& part)
{
    const BlockMeans means = blockMeans(content, blockSide);
    const double fx = part.width() / content.width();
    const double fy = part.height() / content.height();
    std::vector<QRectF> places;
    for (const int block :
         differingBlocks(blockMeans(wanted, blockSide), means, Thresholds::scalingBlockTolerance)) {
        const int column = block % means.blocks.width();
        const int row = block / means.blocks.width();
        places.emplace_back(part.left() + column * blockSide * fx, part.top() + row * blockSide * fy,
                            blockSide * fx, blockSide * fy);
    }
    return places;
}

double scaledShare(const std::vector<QRectF>& failing, const QSize& content)
{
    const double blocks = std::max(1.0, double(pixelCount(content)) / (blockSide * blockSide));
    return 1 - double(failing.size()) / blocks;
}

std::optional<Scaling> smoothScaling(const QImage& wanted, const QImage& shown, const QRectF& part,
                                     const QRect& content)
{
    Scaling scaling{
        part, content, true, 1, failingPlaces(wanted, shown, part), channelDifference(wanted, shown).mean};
    scaling.explained = scaledShare(scaling.failing, content.size());
    if (scaling.explained < Thresholds::leastScaled)
        return std::nullopt;
    return scaling;
}

std::optional<Scaling> scaledInto(const QImage& expected, const QImage& actual, const QRect& content)
{
    if (content.size() == expected.size() || content.width() < 2 || content.height() < 2)
        return std::nullopt;
    const QImage shown = actual.copy(content);
    const QRectF whole(QPointF(), expected.size());
    if (isOneColor(shown))
        return std::nullopt;
    if (isNearestNeighbour(expected, shown))
        return Scaling{whole, content, false, 1, {}, 0};
    const QImage wanted =
        plainColors(expected.scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return smoothScaling(wanted, shown, whole, content);
}

std::optional<Scaling> zoomed(const QImage& expected, const QImage& actual)
{
    const std::optional<QRectF> part = findZoomedPart(expected, actual);
    if (!part)
        return std::nullopt;
    for (const QRect& whole : {part->toAlignedRect(), part->toRect()}) {
        const QRect pixels = whole & expected.rect();
        if (isNearestNeighbour(expected.copy(pixels), actual))
            return Scaling{pixels, actual.rect(), false, 1, {}, 0};
    }
    return smoothScaling(zoomedPart(expected, *part, actual.size()), actual, *part, actual.rect());
}

/// Where the chart's `bare` part may be `shown`: edges of the bars' own colour are lost in them.
QRect wholeContent(const QRect& bare, const QRect& shown, const QSize& chart)
{
    const double across = double(shown.width()) / bare.width();
    const double down = double(shown.height()) / bare.height();
    return QRectF(shown.left() - bare.left() * across, shown.top() - bare.top() * down,
                  chart.width() * across, chart.height() * down)
        .toRect();
}

/// As far from the left as from the right, and from the top as from the bottom.
QRect centered(const QRect& shown, const QSize& picture)
{
    const int x = std::min(shown.left(), picture.width() - 1 - shown.right());
    const int y = std::min(shown.top(), picture.height() - 1 - shown.bottom());
    return QRect(QPoint(), picture).adjusted(x, y, -x, -y);
}

/// Where between the picture's bars, if it has some, the chart may be.
std::vector<QRect> contentsBetweenBars(const QImage& expected, const QImage& actual)
{
    const QRgb bars = pixelRow(actual, 0)[0];
    const QRect shown = withoutBars(actual, bars);
    if (shown == actual.rect())
        return {};
    std::vector<QRect> contents;
    for (const QRect& content : {shown, wholeContent(withoutBars(expected, bars), shown, expected.size()),
                                 centered(shown, actual.size())}) {
        if (actual.rect().contains(content) && std::count(contents.begin(), contents.end(), content) == 0)
            contents.push_back(content);
    }
    return contents;
}

} // namespace

std::optional<Scaling> findScalingBetweenBars(const QImage& expected, const QImage& actual)
{
    std::optional<Scaling> best;
    for (const QRect& content : contentsBetweenBars(expected, actual)) {
        const auto scaling = scaledInto(expected, actual, content);
        if (scaling && (!best || scaling->error < best->error))
            best = scaling;
    }
    return best;
}

std::optional<Scaling> findScaling(const QImage& expected, const QImage& actual)
{
    std::optional<Scaling> best = scaledInto(expected, actual, actual.rect());
    if (!best || !best->failing.empty()) {
        const auto between = findScalingBetweenBars(expected, actual);
        if (between && (!best || between->failing.size() < best->failing.size()))
            best = between;
    }
    return best ? best : zoomed(expected, actual);
}

std::vector<CabinetPlace> failingCabinets(const Scaling& scaling, const CabinetGrid& grid)
{
    std::vector<CabinetPlace> failing;
    for (std::size_t i = 0; i < grid.cabinets.size(); ++i) {
        if (std::any_of(scaling.failing.begin(), scaling.failing.end(),
                        [&](const QRectF& place) { return place.intersects(grid.cabinets[i].rect); }))
            failing.push_back({grid.rowOf(i), grid.columnOf(i), grid.cabinets[i].name, true});
    }
    return failing;
}

Finding scalingFinding(const QSize& expected, const QSize& actual, const Scaling& scaling)
{
    return {
        Kind::Scaled, ScaleChange{scaling.part, scaling.content, scaling.smooth, {actual, expected}}, {}, {}};
}

} // namespace ChartComparison
