#include "blockvotes.h"

#include "imagepixels.h"

#include <QHash>

#include <algorithm>
#include <map>
#include <numeric>

namespace ChartComparison {

namespace {

constexpr int blockCount = 2048;
constexpr int rareMatches = 64; ///< a square with more of them does not tell the place alone
constexpr int bestJoint = 12;
constexpr int bestAlong = 3;

constexpr quint64 columnFactor = 0x9e3779b97f4a7c15U;
constexpr quint64 rowFactor = 0xc2b2ae3d27d4eb4fU;

quint64 power(quint64 base, int exponent)
{
    quint64 result = 1;
    for (int i = 0; i < exponent; ++i)
        result *= base;
    return result;
}

quint64 blockHash(const QImage& image, const QPoint& at, int side)
{
    quint64 hash = 0;
    for (int y = 0; y < side; ++y) {
        quint64 row = 0;
        for (int x = 0; x < side; ++x)
            row = row * columnFactor + pixelRow(image, at.y() + y)[at.x() + x];
        hash = hash * rowFactor + row;
    }
    return hash;
}

/// The squares of a picture by their hash, and a filter that answers most questions without looking.
class Blocks
{
public:
    Blocks(const QImage& image, int side)
        : m_filter(1U << 16U)
    {
        const QRect corners(0, 0, image.width() - side + 1, image.height() - side + 1);
        for (const QPoint& at : samplePoints(corners, blockCount)) {
            if (side > 1 && isOneColor(image, QRect(at, QSize(side, side))))
                continue;
            const quint64 hash = blockHash(image, at, side);
            m_filter[hash >> 48U] = true;
            m_blocks.insert(hash, at);
        }
    }

    const QPoint* find(quint64 hash) const
    {
        if (!m_filter[hash >> 48U])
            return nullptr;
        const auto it = m_blocks.constFind(hash);
        return it == m_blocks.constEnd() ? nullptr : &*it;
    }

private:
    std::vector<bool> m_filter;
    QHash<quint64, QPoint> m_blocks;
};

/// Counts the moves of squares.
class Votes
{
public:
    Votes(const QSize& expected, const QSize& actual)
        : m_origin(expected.width(), expected.height())
        , m_along(std::size_t(expected.width() + actual.width()) + 1)
        , m_across(std::size_t(expected.height() + actual.height()) + 1)
    {
    }

    void add(const QPoint& block, const QPoint& found)
    {
        const QPoint move = block - found;
        const QPoint moved = move + m_origin;
        ++m_along[std::size_t(moved.x())];
        ++m_across[std::size_t(moved.y())];
        auto& moves = m_moves[{block.x(), block.y()}];
        if (moves.size() <= rareMatches)
            moves.push_back(move);
    }

    std::vector<QPoint> best() const;

private:
    static std::vector<int> highest(const std::vector<int>& counts);

    QPoint m_origin;
    std::vector<int> m_along;
    std::vector<int> m_across;
    std::map<std::pair<int, int>, std::vector<QPoint>> m_moves;
};

std::vector<int> Votes::highest(const std::vector<int>& counts)
{
    std::vector<int> indices(counts.size());
    std::iota(indices.begin(), indices.end(), 0);
    const auto count = std::min<std::size_t>(bestAlong, indices.size());
    std::partial_sort(indices.begin(), indices.begin() + std::ptrdiff_t(count), indices.end(),
                      [&](int a, int b) { return counts[std::size_t(a)] > counts[std::size_t(b)]; });
    indices.resize(count);
    return indices;
}

std::vector<QPoint> Votes::best() const
{
    std::map<std::pair<int, int>, int> joint;
    for (const auto& [block, moves] : m_moves) {
        if (moves.size() > rareMatches)
            continue;
        for (const QPoint& move : moves)
            ++joint[{move.x(), move.y()}];
    }
    std::vector<std::pair<int, QPoint>> ranked;
    ranked.reserve(joint.size());
    for (const auto& [move, votes] : joint)
        ranked.emplace_back(votes, QPoint(move.first, move.second));
    std::sort(ranked.begin(), ranked.end(), [](const auto& a, const auto& b) {
        return a.first != b.first ? a.first > b.first
                                  : a.second.manhattanLength() < b.second.manhattanLength();
    });
    std::vector<QPoint> places;
    for (std::size_t i = 0; i < ranked.size() && i < bestJoint; ++i)
        places.push_back(ranked[i].second);
    for (const int x : highest(m_along)) {
        for (const int y : highest(m_across))
            places.push_back(QPoint(x, y) - m_origin);
    }
    return places;
}

/// Slides a square of `side` over the picture and tells `visit` the hash at every place.
template <typename Visit>
void visitBlocks(const QImage& image, int side, const Visit& visit)
{
    const int places = image.width() - side + 1;
    const quint64 leavingColumn = power(columnFactor, side);
    const quint64 leavingRow = power(rowFactor, side);
    const auto count = std::size_t(places);
    const std::vector<quint64> none(count, 0);
    std::vector<quint64> hashes = none;
    std::vector<std::vector<quint64>> rows;
    rows.resize(std::size_t(side), none);
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* const pixels = pixelRow(image, y);
        std::vector<quint64>& row = rows[std::size_t(y % side)]; // holds the row that leaves the squares
        quint64 hash = 0;
        for (int x = 0; x < side - 1; ++x)
            hash = hash * columnFactor + pixels[x];
        for (int x = 0; x < places; ++x) {
            hash = hash * columnFactor + pixels[x + side - 1];
            if (x > 0)
                hash -= leavingColumn * pixels[x - 1];
            quint64& below = hashes[std::size_t(x)];
            below = below * rowFactor + hash - leavingRow * row[std::size_t(x)];
            row[std::size_t(x)] = hash;
            if (y >= side - 1)
                visit(QPoint(x, y - side + 1), below);
        }
    }
}

} // namespace

std::vector<QPoint> votedPlaces(const QImage& expected, const QImage& actual)
{
    const int least = std::min({expected.width(), expected.height(), actual.width(), actual.height()});
    const int side = std::clamp(least / 4, 1, 16);
    const Blocks blocks(actual, side);
    Votes votes(expected.size(), actual.size());
    visitBlocks(expected, side, [&](const QPoint& at, quint64 hash) {
        if (const QPoint* const block = blocks.find(hash))
            votes.add(*block, at);
    });
    return votes.best();
}

} // namespace ChartComparison
