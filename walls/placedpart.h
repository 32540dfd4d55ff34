#pragma once

#include "showdocument.h"

#include <QImage>

namespace vardeno::walls {

/// Where the pixels of a placed wall come to lie on its output. It is a value for one placement of a wall of
/// that size.
class VDWALLS_EXPORT PlacedPart
{
public:
    PlacedPart(const WallPlacement& placement, const QSize& wall);

    QRect part() const { return m_part; }     ///< of the wall that is shown, in its pixels; may lie beyond it
    QRect placed() const { return m_placed; } ///< where that lies, in pixels of the output

    /// The pixel of the output that shows that pixel of the wall, and the way back. Neither looks whether the
    /// pixel is in the part.
    QPoint toOutput(const QPoint& wall) const;
    QPoint toWall(const QPoint& output) const;
    QRect toOutput(const QRect& wall) const;
    QRect toWall(const QRect& output) const;

    /// A picture of some of the part's pixels as it stands on the output.
    QImage turned(const QImage& picture) const;

private:
    QRect m_part;
    QRect m_placed;
    int m_degrees;
    bool m_mirrored;
};

} // namespace vardeno::walls
