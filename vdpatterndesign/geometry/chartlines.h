#pragma once

#include "geometry/fittedtext.h"
#include "vdchartcore_export.h"

#include <QPoint>
#include <QSize>

namespace vardeno::testcharttools {

/// The lines of text across the chart are placed from here, in chart pixels: halfway across, two thirds down.
VDCHARTCORE_EXPORT QPointF chartLinesOrigin(const QSize& chart);

/// A line of text and its baseline's start, from `chartLinesOrigin`.
struct ChartLine
{
    FittedText fitted;
    QPoint at;
};

/// The custom text, in the largest size up to `requested` that fits the chart.
VDCHARTCORE_EXPORT ChartLine customTextLine(const QSize& chart, const QString& text, int requested);

/// The line that tells the chart's resolution, a sixth of the chart below the custom text.
VDCHARTCORE_EXPORT ChartLine informationLine(const QSize& chart, const QString& text, int requested);

/// What that line says: the two captions, the resolution and, where there is one, the number of cabinets.
VDCHARTCORE_EXPORT QString informationText(const QSize& chart, const QString& resolutionCaption);
VDCHARTCORE_EXPORT QString informationText(const QSize& chart, const QString& resolutionCaption,
                                           const QString& cabinetsCaption, quint32 cabinets);

} // namespace vardeno::testcharttools
