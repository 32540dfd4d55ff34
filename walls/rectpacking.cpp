#include "rectpacking.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <tuple>

namespace vardeno::walls {

namespace {

qint64 areaOf(const QSize& size)
{
    return qint64(size.width()) * size.height();
}

/// A bin with its maximal free rectangles: none of them lies in another one.
class FreeSpace
{
public:
    explicit FreeSpace(const QSize& size)
        : m_free{QRect(QPoint(), size)}
    {
    }

    struct Fit
    {
        QPoint at;
        int shorter = -1; ///< side that is left over; -1 where it does not fit
        int longer = 0;

        bool isBetterThan(const Fit& other) const
        {
            return shorter >= 0 &&
                   (other.shorter < 0 || std::tie(shorter, longer) < std::tie(other.shorter, other.longer));
        }
    };

    Fit bestFit(const QSize& size) const
    {
        Fit best;
        for (const QRect& free : m_free) {
            const int across = free.width() - size.width();
            const int down = free.height() - size.height();
            if (across < 0 || down < 0)
                continue;
            const Fit fit = {free.topLeft(), std::min(across, down), std::max(across, down)};
            if (fit.isBetterThan(best))
                best = fit;
        }
        return best;
    }

    void take(const QRect& taken)
    {
        std::vector<QRect> left;
        for (const QRect& free : m_free) {
            if (!free.intersects(taken)) {
                left.push_back(free);
                continue;
            }
            for (const QRect& part :
                 {QRect(QPoint(free.left(), free.top()), QPoint(taken.left() - 1, free.bottom())),
                  QRect(QPoint(taken.right() + 1, free.top()), free.bottomRight()),
                  QRect(free.topLeft(), QPoint(free.right(), taken.top() - 1)),
                  QRect(QPoint(free.left(), taken.bottom() + 1), free.bottomRight())}) {
                if (!part.isEmpty())
                    left.push_back(part);
            }
        }
        m_free = maximal(left);
    }

private:
    static std::vector<QRect> maximal(const std::vector<QRect>& rects)
    {
        std::vector<QRect> kept;
        for (std::size_t i = 0; i < rects.size(); ++i) {
            const auto holds = [&, i](const QRect& other) {
                return other.contains(rects[i]) && (other != rects[i] || &other < &rects[i]);
            };
            if (std::none_of(rects.begin(), rects.end(), holds))
                kept.push_back(rects[i]);
        }
        return kept;
    }

    std::vector<QRect> m_free;
};

/// Packs in one order.
class Packer
{
public:
    Packer(const std::vector<QSize>& bins, bool mayTurn)
        : m_bins(bins)
        , m_mayTurn(mayTurn)
    {
    }

    PackedRect put(const QSize& size)
    {
        PackedRect packed = putInBegun(size);
        while (packed.bin < 0 && m_begun.size() < m_bins.size() && fitsAnyNew(size)) {
            m_begun.emplace_back(m_bins[m_begun.size()]);
            packed = putInBegun(size);
        }
        return packed;
    }

private:
    bool fits(const QSize& size, const QSize& bin) const
    {
        const auto isIn = [&bin](const QSize& one) {
            return one.width() <= bin.width() && one.height() <= bin.height();
        };
        return isIn(size) || (m_mayTurn && isIn(size.transposed()));
    }

    bool fitsAnyNew(const QSize& size) const
    {
        return std::any_of(m_bins.begin() + std::ptrdiff_t(m_begun.size()), m_bins.end(),
                           [&](const QSize& bin) { return fits(size, bin); });
    }

    PackedRect putInBegun(const QSize& size)
    {
        PackedRect packed;
        FreeSpace::Fit best;
        const auto look = [&](const QSize& side, int bin, bool turned) {
            const FreeSpace::Fit fit = m_begun[std::size_t(bin)].bestFit(side);
            if (!fit.isBetterThan(best))
                return;
            best = fit;
            packed = {bin, QRect(fit.at, side), turned};
        };
        for (int bin = 0; bin < int(m_begun.size()); ++bin) {
            look(size, bin, false);
            if (m_mayTurn)
                look(size.transposed(), bin, true);
        }
        if (packed.bin >= 0)
            m_begun[std::size_t(packed.bin)].take(packed.rect);
        return packed;
    }

    const std::vector<QSize>& m_bins;
    const bool m_mayTurn;
    std::vector<FreeSpace> m_begun;
};

using PackingOrder = std::function<qint64(const QSize&)>; ///< the greatest first

std::vector<PackedRect> packed(const std::vector<QSize>& rects, const std::vector<QSize>& bins, bool mayTurn,
                               const PackingOrder& key)
{
    std::vector<std::size_t> order(rects.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return key(rects[a]) > key(rects[b]); });
    Packer packer(bins, mayTurn);
    std::vector<PackedRect> result(rects.size());
    for (const std::size_t index : order)
        result[index] = packer.put(rects[index]);
    return result;
}

/// The smaller, the better.
std::tuple<int, int, qint64> costOf(const std::vector<PackedRect>& result, std::size_t binCount)
{
    std::vector<QRect> used(binCount);
    int leftOut = 0;
    for (const PackedRect& one : result) {
        if (one.bin < 0)
            ++leftOut;
        else
            used[std::size_t(one.bin)] |= one.rect;
    }
    int begun = 0;
    qint64 area = 0;
    for (const QRect& rect : used) {
        begun += !rect.isEmpty();
        area += areaOf(rect.size());
    }
    return {leftOut, begun, area};
}

} // namespace

std::vector<PackedRect> packRects(const std::vector<QSize>& rects, const std::vector<QSize>& bins,
                                  bool mayTurn)
{
    const PackingOrder orders[] = {[](const QSize& size) { return areaOf(size); },
                                   [](const QSize& size) { return std::max(size.width(), size.height()); },
                                   [](const QSize& size) { return size.width(); },
                                   [](const QSize& size) { return size.height(); },
                                   [](const QSize& size) { return size.width() + size.height(); },
                                   [](const QSize&) { return 0; }};
    std::vector<PackedRect> best;
    for (const PackingOrder& order : orders) {
        std::vector<PackedRect> result = packed(rects, bins, mayTurn, order);
        if (best.empty() || costOf(result, bins.size()) < costOf(best, bins.size()))
            best = std::move(result);
    }
    return best;
}

} // namespace vardeno::walls
