#include "placevotes.h"

#include "imagepixels.h"
#include "rollinghash.h"
#include "thresholds.h"

#include <QHash>

#include <algorithm>
#include <map>
#include <numeric>

namespace ChartComparison {

namespace {

/// The squares of a picture by their hash, and a Bloom filter of one bit that answers most
/// questions without looking.
class Squares
{
public:
    Squares(const QImage& image, int side)
        : m_filter(1U << 16U)
    {
        const QRect corners(0, 0, image.width() - side + 1, image.height() - side + 1);
        for (const QPoint& at : samplePoints(corners, Thresholds::votingSquares)) {
            if (side > 1 && isOneColor(image, QRect(at, QSize(side, side))))
                continue;
            const quint64 hash = squareHash(image, at, side);
            m_filter[hash >> 48U] = true;
            m_squares.insert(hash, at);
        }
    }

    const QPoint* find(quint64 hash) const
    {
        if (!m_filter[hash >> 48U])
            return nullptr;
        const auto it = m_squares.constFind(hash);
        return it == m_squares.constEnd() ? nullptr : &*it;
    }

private:
    std::vector<bool> m_filter;
    QHash<quint64, QPoint> m_squares;
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
        if (moves.size() <= Thresholds::mostVotesOfASquare)
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
    const auto count = std::min<std::size_t>(Thresholds::mostVotedMoves, indices.size());
    std::partial_sort(indices.begin(), indices.begin() + std::ptrdiff_t(count), indices.end(),
                      [&](int a, int b) { return counts[std::size_t(a)] > counts[std::size_t(b)]; });
    indices.resize(count);
    return indices;
}

std::vector<QPoint> Votes::best() const
{
    std::map<std::pair<int, int>, int> joint;
    for (const auto& [block, moves] : m_moves) {
        if (moves.size() > Thresholds::mostVotesOfASquare)
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
    for (std::size_t i = 0; i < ranked.size() && i < Thresholds::mostVotedPlaces; ++i)
        places.push_back(ranked[i].second);
    for (const int x : highest(m_along)) {
        for (const int y : highest(m_across))
            places.push_back(QPoint(x, y) - m_origin);
    }
    return places;
}

} // namespace

std::vector<QPoint> votedPlaces(const QImage& expected, const QImage& actual)
{
    const int least = std::min({expected.width(), expected.height(), actual.width(), actual.height()});
    const int side = std::clamp(least / Thresholds::votingSides, 1, Thresholds::mostVotingSide);
    const Squares squares(actual, side);
    Votes votes(expected.size(), actual.size());
    visitSquares(expected, side, [&](const QPoint& at, quint64 hash) {
        if (const QPoint* const block = squares.find(hash))
            votes.add(*block, at);
    });
    return votes.best();
}

} // namespace ChartComparison
