#pragma once

#include "markerdata.h"
#include "picturerows.h"
#include "vdchartcore_export.h"

#include <QImage>
#include <QString>

#include <memory>

namespace vardeno::testcharttools {

struct TestChartToolsData;

/// The words of a chart that its record does not hold.
struct VDCHARTCORE_EXPORT ChartCaptions
{
    QString resolution; ///< of the information line, before the resolution
    QString cabinets;   ///< and before the number of cabinets

    /// In the language of the process; empty before one has been chosen. GUI thread.
    static ChartCaptions current();
};

/// The picture of a record, drawn without widgets: pixel for pixel what the chart editor shows and saves.
///
/// Sizes are chart pixels. The numbers of the record are taken as they are: those of a record file are within
/// their ranges. Texts are drawn in the application's font, so there must be a QGuiApplication; everything
/// here may be used in any thread, and one picture be drawn by several threads at a time; one thread
/// that draws has idle cores help. A logo whose file
/// cannot be read is left out: `ChartCheck::pictureProblem` tells. Nothing is thrown but std::bad_alloc.
class VDCHARTCORE_EXPORT ChartPicture
{
public:
    explicit ChartPicture(const TestChartToolsData& record, const ChartCaptions& captions = {});
    ChartPicture(const TestChartToolsData& record, const ChartCaptions& captions, const MarkerData& markers);
    ChartPicture(const ChartPicture& other);
    ChartPicture& operator=(const ChartPicture& other);
    ~ChartPicture();

    /// The chart's resolution.
    QSize size() const;

    /// The whole chart, opaque (RGB32). Null where there is not enough memory.
    QImage image() const;

    /// Whether the chart is so large that its rows are drawn for themselves, and never stands in memory as a
    /// whole but in `image`: where a side is longer than 4320 pixels.
    bool isDrawnInParts() const;
    /// `count` rows of the same picture, from the row `top` on, which are rows of the chart.
    QImage rows(int top, int count) const;

    /// The same picture strip after strip, for an encoder: it never stands in memory as a whole. Layers that
    /// are drawn whole are drawn once, at the first strip. To be used by one thread at a time.
    PictureRows strips() const;

private:
    class Impl;
    std::shared_ptr<const Impl> d;
};

} // namespace vardeno::testcharttools
