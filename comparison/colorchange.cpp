#include "colorchange.h"

#include "imagepixels.h"
#include "namedcolorchange.h"
#include "thresholds.h"

#include <QSet>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <unordered_map>
#include <vector>

namespace ChartComparison {

namespace {

/// What became of each colour, or nothing where a colour has become two. A direct-mapped cache of the last
/// colours answers for most pixels.
class Correspondence
{
public:
    bool add(QRgb from, QRgb to, qint64 pixels)
    {
        Slot& slot = m_recent[(from * 0x9e3779b1U) >> 20U];
        if (slot.pair && slot.from == from) {
            slot.pair->pixels += pixels;
            return slot.pair->to == to;
        }
        ColorPair& pair = m_pairs.try_emplace(from, ColorPair{from, to, 0}).first->second;
        pair.pixels += pixels;
        slot = {from, &pair};
        return pair.to == to;
    }

    std::vector<ColorPair> pairs() const
    {
        std::vector<ColorPair> all;
        all.reserve(m_pairs.size());
        for (const auto& [from, pair] : m_pairs)
            all.push_back(pair);
        std::sort(all.begin(), all.end(), [](const ColorPair& a, const ColorPair& b) {
            return a.pixels != b.pixels ? a.pixels > b.pixels : a.from < b.from;
        });
        return all;
    }

private:
    struct Slot
    {
        QRgb from = 0;
        ColorPair* pair = nullptr;
    };
    std::unordered_map<QRgb, ColorPair> m_pairs;
    std::vector<Slot> m_recent = std::vector<Slot>(4096);
};

bool sameRow(const QImage& image, int y)
{
    return std::memcmp(image.constScanLine(y), image.constScanLine(y - 1),
                       std::size_t(image.width()) * sizeof(QRgb)) == 0;
}

bool addRow(Correspondence& colors, const QRgb* expected, const QRgb* actual, int width)
{
    for (int x = 0; x < width;) {
        int end = x + 1;
        while (end < width && expected[end] == expected[x] && actual[end] == actual[x])
            ++end;
        if (!colors.add(expected[x], actual[x], end - x))
            return false;
        x = end;
    }
    return true;
}

bool samplesCorrespond(const QImage& expected, const QImage& actual)
{
    Correspondence colors;
    const std::vector<QPoint> points = samplePoints(expected.rect(), Thresholds::firstColorSamples);
    return std::all_of(points.begin(), points.end(), [&](const QPoint& at) {
        return colors.add(pixelRow(expected, at.y())[at.x()], pixelRow(actual, at.y())[at.x()], 1);
    });
}

std::vector<ColorPair> correspondence(const QImage& expected, const QImage& actual)
{
    Correspondence colors;
    if (!samplesCorrespond(expected, actual))
        return {};
    for (int y = 0; y < expected.height(); ++y) {
        if (y > 0 && sameRow(expected, y) && sameRow(actual, y))
            continue;
        if (!addRow(colors, pixelRow(expected, y), pixelRow(actual, y), expected.width()))
            return {};
    }
    return colors.pairs();
}

/// What most samples of each colour have become.
std::vector<ColorPair> mostFrequent(const QImage& expected, const QImage& actual)
{
    QHash<QRgb, QHash<QRgb, int>> counts;
    for (const QPoint& at : samplePoints(expected.rect(), Thresholds::colorSamples))
        ++counts[pixelRow(expected, at.y())[at.x()]][pixelRow(actual, at.y())[at.x()]];
    std::vector<ColorPair> pairs;
    for (auto from = counts.cbegin(); from != counts.cend(); ++from) {
        const auto most = std::max_element(from->cbegin(), from->cend());
        pairs.push_back({from.key(), most.key(), *most});
    }
    return pairs;
}

/// Where two colours become one, or nearly every pixel has a colour of its own, an exchange proves nothing.
bool isExchange(const std::vector<ColorPair>& pairs, qint64 pixels)
{
    if (std::all_of(pairs.begin(), pairs.end(), [](const ColorPair& pair) { return pair.from == pair.to; }))
        return false;
    QSet<QRgb> shown;
    for (const ColorPair& pair : pairs)
        shown.insert(pair.to);
    return shown.size() == int(pairs.size()) && qint64(pairs.size()) * Thresholds::pixelsPerColor <= pixels;
}

/// An exchange without a name.
ColorEffect exchange(const std::vector<ColorPair>& pairs)
{
    ColorEffect effect;
    std::copy_if(pairs.begin(), pairs.end(), std::back_inserter(effect.pairs),
                 [](const ColorPair& pair) { return pair.from != pair.to; });
    return effect;
}

} // namespace

std::optional<ColorChange> ColorChange::find(const QImage& expected, const QImage& actual)
{
    const std::vector<ColorPair> pairs = correspondence(expected, actual);
    const auto named = namedColorChange(pairs, 0);
    if (!named && !isExchange(pairs, pixelCount(expected.size())))
        return std::nullopt;
    ColorChange change;
    change.m_effect = named ? named->effect : exchange(pairs);
    for (const ColorPair& pair : pairs)
        change.m_seen.insert(pair.from, pair.to);
    return change;
}

std::optional<ColorChange> ColorChange::guess(const QImage& expected, const QImage& actual)
{
    const std::vector<ColorPair> pairs = mostFrequent(expected, actual);
    const auto named = namedColorChange(pairs, Thresholds::toleratedInGuess);
    if (!named)
        return std::nullopt;
    ColorChange change;
    change.m_effect = named->effect;
    change.m_map = named->map;
    change.learnRounding(expected, actual);
    return change;
}

/// Where the calculation is not exact, the pixels that are near tell how each colour has been rounded: by the
/// majority vote of Boyer and Moore, in one pass.
void ColorChange::learnRounding(const QImage& expected, const QImage& actual)
{
    struct Vote
    {
        QRgb mapped;
        QRgb to;
        qint64 votes;
    };
    QHash<QRgb, Vote> elections;
    qint64 nearPixels = 0;
    qint64 exactPixels = 0;
    for (int y = 0; y < expected.height(); ++y) {
        const QRgb* const from = pixelRow(expected, y);
        const QRgb* const to = pixelRow(actual, y);
        for (int x = 0, end = 0; x < expected.width(); x = end) {
            for (end = x + 1; end < expected.width() && from[end] == from[x] && to[end] == to[x];)
                ++end;
            auto it = elections.find(from[x]);
            if (it == elections.end())
                it = elections.insert(from[x], {m_map(from[x]), 0, 0});
            if (channelDistance(it->mapped, to[x]) > Thresholds::roundingSteps)
                continue;
            nearPixels += end - x;
            exactPixels += it->mapped == to[x] ? end - x : 0;
            it->votes += it->to == to[x] ? end - x : x - end;
            if (it->votes < 0)
                *it = {it->mapped, to[x], -it->votes};
        }
    }
    if (double(exactPixels) >= Thresholds::surelyExact * double(nearPixels))
        return;
    for (auto it = elections.cbegin(); it != elections.cend(); ++it)
        m_seen.insert(it.key(), it->votes > 0 ? it->to : it->mapped);
}

QImage ColorChange::applied(const QImage& image) const
{
    QImage changed = image;
    QRgb lastFrom = 0;
    QRgb lastTo = 0;
    bool known = false;
    for (int y = 0; y < changed.height(); ++y) {
        QRgb* const row = pixelRow(changed, y);
        for (int x = 0; x < changed.width(); ++x) {
            if (!known || row[x] != lastFrom) {
                lastFrom = row[x];
                const auto seen = m_seen.constFind(lastFrom);
                lastTo = seen != m_seen.constEnd() ? *seen : m_map ? m_map(lastFrom) : lastFrom;
                known = true;
            }
            row[x] = lastTo;
        }
    }
    return changed;
}

} // namespace ChartComparison
