#pragma once

#include "vdchartcore_export.h"

#include <QFont>
#include <QRect>
#include <QString>

#include <optional>
#include <vector>

namespace vardeno::testcharttools {

/// The screen's cabinet grid on a chart of `chart` pixels. Rows and columns count from 0 at the top left.
struct VDCHARTCORE_EXPORT CabinetGrid
{
    QSize chart;
    ushort rows;
    ushort columns;

    /// Chart pixels, not rounded. A count of 0 is divided by as 65536.
    double cellHeight() const;
    double cellWidth() const;

    /// The cabinet's rectangle in whole pixels; position and size are truncated each on its own, so that
    /// neighbours may overlap or leave a gap of one pixel.
    QRect cell(int row, int column) const;
};

/// The two parts of a cabinet's label.
struct CabinetLabel
{
    QString row;
    QString column;
};

/// How cabinets are labelled.
struct LabelStyle
{
    uint mode = 0;     ///< 0 letters, 1 numbers, 2 letter and number
    uint sort = 0;     ///< rows counted from the bottom with 2 and 3, columns from the right with 1 and 3
    uint position = 0; ///< 0 one text in the centre, 1 left up and right down, 2 left down and right up
};

/// The label of the cabinet in `row` and `column` of a grid of `rows` x `columns`; none for an unknown mode
/// or sort.
VDCHARTCORE_EXPORT std::optional<CabinetLabel> cabinetLabel(const LabelStyle& style, int row, int column,
                                                            int rows, int columns);

/// A text, the rectangle it is drawn in, and how it is aligned there. The text is `head` and `tail` in one;
/// each of them occurs in many cabinets.
struct PlacedText
{
    QRect box;
    int alignment;
    QString head;
    QString tail;
};

/// The one or two texts of `label` in `cell`; none for an unknown position.
VDCHARTCORE_EXPORT std::vector<PlacedText> placedLabel(const CabinetLabel& label, uint position,
                                                       const QRect& cell);

/// The largest pixel size from `requested` downwards at which `font` is at most 51 % of a cell high and two
/// of its widest letters are at most half a cell wide; 1 where none is. A `requested` size of 0 stays 0.
VDCHARTCORE_EXPORT int fittedLabelSize(int requested, const QFont& font, const CabinetGrid& grid);

} // namespace vardeno::testcharttools
