#pragma once

#include "geometry/fittedtext.h"
#include "vdchartcore_export.h"

#include <QPoint>
#include <QSize>

namespace vardeno::testcharttools {

/// Where a logo stands on the chart. All positions are chart pixels from the chart's centre, x to the right,
/// y downwards; the halves of the chart's sides are truncated.
struct LogoPlacement
{
    QPoint at;      ///< a picture's top left corner, a text's baseline start
    QPoint applied; ///< what is left of the user's adjustment after the logo was kept on the chart
};

/// The size in which a picture of `size` is drawn at `scale`, truncated to whole pixels.
VDCHARTCORE_EXPORT QSize scaledPicture(const QSize& size, float scale);

/// How far a text reaches, as its font metrics tell it.
struct TextExtent
{
    int advance;
    int height;
    int lineWidth;
};

/// Places a picture at its anchor (0 centre, 1 left up, 2 left down, 3 right up, 4 right down; any other
/// value puts its corner at the centre), moved by `adjustment`. The picture cannot leave the chart; where it
/// is larger than the room left, the right and bottom limits win. A picture as wide or as high as the chart
/// ignores the adjustment in that direction.
VDCHARTCORE_EXPORT LogoPlacement placedPicture(const QSize& chart, const QSize& picture, int anchor,
                                               const QPoint& adjustment);

/// The same for a line of text, which keeps its line width from the edges.
LogoPlacement placedText(const QSize& chart, const TextExtent& text, int anchor, const QPoint& adjustment);

/// A text logo: what is drawn, and where.
struct TextLogo
{
    FittedText fitted;
    LogoPlacement placement;
};

/// Fits `text` into 80 % of the chart's width and height, from `requested` pixels downwards, and places it.
VDCHARTCORE_EXPORT TextLogo placedTextLogo(const QSize& chart, const QString& text, int requested, int anchor,
                                           const QPoint& adjustment);

} // namespace vardeno::testcharttools
