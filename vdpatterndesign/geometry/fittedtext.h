#pragma once

#include <QFont>
#include <QRect>
#include <QString>

namespace vardeno::testcharttools {

/// A line of text in the largest font that lets it fit.
struct FittedText
{
    QFont font;
    int pixelSize = 0; ///< 0 where even one pixel is too large; the font then stays at one pixel
    int advance = 0;   ///< chart pixels, as the font metrics tell it
    int height = 0;
};

/// Where the line `text` may have ink, from the start of its baseline; with room to spare.
QRect lineReach(const FittedText& line, const QString& text);

/// Fits `text`, in the chart's text family, into a box: from `requested` pixels downwards, one at a time,
/// while it is wider than `widthLimit` or higher than `heightLimit`.
FittedText fitText(const QString& text, int requested, double widthLimit, double heightLimit);

} // namespace vardeno::testcharttools
