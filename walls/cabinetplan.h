#pragma once

#include "vdwalls_export.h"
#include "walldocument.h"

#include <QRect>
#include <QSize>

#include <vector>

namespace vardeno::walls {

/// A cabinet where it hangs.
struct WallCabinet
{
    Place at; ///< its top left place in the grid
    int columns = 1;
    int rows = 1;
    QRect rect;         ///< chart pixels
    int turned = 0;     ///< degrees clockwise
    int exception = -1; ///< its index in the document's list, if it is there
};

/// The cabinets of a wall with their places and rectangles. A plain value, computed once from a wall that was
/// read without problems.
class VDWALLS_EXPORT CabinetPlan
{
public:
    explicit CabinetPlan(const WallDocument& wall);

    QSize size() const { return {m_lefts.back(), m_tops.back()}; } ///< of the wall, in pixels
    int columns() const { return int(m_lefts.size()) - 1; }
    int rows() const { return int(m_tops.size()) - 1; }

    /// Row by row, by their top left places.
    const std::vector<WallCabinet>& cabinets() const { return m_cabinets; }
    /// The index of the cabinet that covers `place`, -1 for a hole.
    int cabinetAt(Place place) const;
    /// The index of the cabinet that has the pixel, -1 for a hole and outside.
    int cabinetAt(const QPoint& pixel) const;

    /// The places in the grid, as rectangles in pixels.
    QRect rect(Place place, int columns = 1, int rows = 1) const;
    /// Those without a cabinet, row by row.
    std::vector<QRect> holes() const;

    /// Whether all places have one size and no cabinet spans more than one: the grid of a record.
    bool isUniform() const { return m_isUniform; }
    /// The size that most columns and most rows have; of several the first.
    QSize usualCabinet() const { return m_usual; }

private:
    std::size_t indexOf(Place place) const { return std::size_t(place.row) * columns() + place.column; }

    std::vector<int> m_lefts; ///< edges of columns, from 0 to the width
    std::vector<int> m_tops;
    std::vector<WallCabinet> m_cabinets;
    std::vector<int> m_indices; ///< of the cabinets, by place
    QSize m_usual;
    bool m_isUniform = true;
};

} // namespace vardeno::walls
