#pragma once

#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

/// What differs between a chart at its place and the display: how many of the chart's pixels are cut off at
/// each side, and how many of the display's stay black there.
struct PlacementDifference
{
    QMargins cut;
    QMargins black;

    /// The display shows the whole chart and nothing else.
    bool isNone() const { return cut.isNull() && black.isNull(); }
};

/// Where a chart stands on a display, in physical pixels. A plain value.
struct OutputPlacement
{
    QSize display;
    QSize chart;
    QPoint at; ///< of the chart's top left on the display; negative to begin outside of it

    /// The part of the display that shows the chart; empty where none of it does.
    QRect shown() const;
    PlacementDifference difference() const;
};

/// "120,-40"; `isValid` tells whether `text` is such a place.
QPoint placeFrom(const QString& text, bool* isValid);

/// What differs, in sentences with numbers, in the language of the desk; empty for no difference.
QString differenceText(const OutputPlacement& placement);
