#include "cabinetplan.h"

#include <algorithm>
#include <map>

namespace vardeno::walls {

namespace {

constexpr int notPlaced = -2;
constexpr int hole = -1;

std::vector<int> edgesOf(const CabinetSizes& sizes)
{
    std::vector<int> edges = {0};
    for (const int pixels : sizes.pixels)
        edges.push_back(edges.back() + pixels);
    return edges;
}

int usualOf(const CabinetSizes& sizes)
{
    std::map<int, int> counts;
    for (const int pixels : sizes.pixels)
        ++counts[pixels];
    return *std::max_element(sizes.pixels.begin(), sizes.pixels.end(),
                             [&](int a, int b) { return counts[a] < counts[b]; });
}

bool areEqual(const CabinetSizes& sizes)
{
    return std::all_of(sizes.pixels.begin(), sizes.pixels.end(),
                       [&](int pixels) { return pixels == sizes.pixels.front(); });
}

/// The index of the interval of `edges` that has `at`, -1 outside.
int intervalOf(const std::vector<int>& edges, int at)
{
    if (at < 0 || at >= edges.back())
        return -1;
    return int(std::upper_bound(edges.begin(), edges.end(), at) - edges.begin()) - 1;
}

} // namespace

CabinetPlan::CabinetPlan(const WallDocument& wall)
    : m_lefts(edgesOf(wall.columnWidths))
    , m_tops(edgesOf(wall.rowHeights))
    , m_indices(std::size_t(columns()) * rows(), notPlaced)
    , m_usual(usualOf(wall.columnWidths), usualOf(wall.rowHeights))
    , m_isUniform(areEqual(wall.columnWidths) && areEqual(wall.rowHeights))
{
    std::vector<int> exceptions(m_indices.size(), -1);
    const auto& list = wall.exceptions.list;
    for (std::size_t i = 0; i < list.size(); ++i)
        exceptions[indexOf(list[i].at)] = int(i);
    for (int row = 0; row < rows(); ++row) {
        for (int column = 0; column < columns(); ++column) {
            const Place at = {column, row};
            if (m_indices[indexOf(at)] != notPlaced)
                continue;
            const int exception = exceptions[indexOf(at)];
            const CabinetException as = exception < 0 ? CabinetException() : list[std::size_t(exception)];
            for (int i = 0; i < as.columns * as.rows; ++i)
                m_indices[indexOf({column + i % as.columns, row + i / as.columns})] =
                    as.missing ? hole : int(m_cabinets.size());
            m_isUniform &= as.missing || as.columns * as.rows == 1;
            if (!as.missing)
                m_cabinets.push_back(
                    {at, as.columns, as.rows, rect(at, as.columns, as.rows), as.turned, exception});
        }
    }
}

int CabinetPlan::cabinetAt(Place place) const
{
    return m_indices[indexOf(place)];
}

int CabinetPlan::cabinetAt(const QPoint& pixel) const
{
    const Place place = {intervalOf(m_lefts, pixel.x()), intervalOf(m_tops, pixel.y())};
    return place.column < 0 || place.row < 0 ? hole : cabinetAt(place);
}

QRect CabinetPlan::rect(Place place, int columns, int rows) const
{
    const int left = m_lefts[std::size_t(place.column)];
    const int top = m_tops[std::size_t(place.row)];
    return {left, top, m_lefts[std::size_t(place.column + columns)] - left,
            m_tops[std::size_t(place.row + rows)] - top};
}

std::vector<QRect> CabinetPlan::holes() const
{
    std::vector<QRect> holes;
    for (int row = 0; row < rows(); ++row) {
        for (int column = 0; column < columns(); ++column) {
            if (cabinetAt(Place{column, row}) == hole)
                holes.push_back(rect({column, row}));
        }
    }
    return holes;
}

} // namespace vardeno::walls
