#pragma once

#include "chartpicture.h"
#include "vdwalls_export.h"
#include "walldocument.h"

#include <QImage>

#include <memory>

namespace vardeno::walls {

/// The picture of a wall: its chart's record and over it the layers that the wall switches on. On a uniform
/// wall that draws none of its own it is the record's picture, pixel for pixel.
///
/// Sizes are chart pixels. Texts are drawn in the application's font, so there must be a QGuiApplication;
/// everything here may be used in any thread, and one picture be drawn by several threads at a time.
class VDWALLS_EXPORT WallPicture
{
public:
    /// A wall that was read without problems, and its record as `WallFile::chartOf` gives it.
    WallPicture(const WallDocument& wall, const testcharttools::TestChartToolsData& record,
                const testcharttools::ChartCaptions& captions = {});
    /// The same with a coded marker in every cabinet, if `WallFile::markersOf` wants them.
    WallPicture(const WallDocument& wall, const testcharttools::TestChartToolsData& record,
                const testcharttools::ChartCaptions& captions, const testcharttools::MarkerData& markers);
    WallPicture(const WallPicture& other);
    WallPicture& operator=(const WallPicture& other);
    ~WallPicture();

    QSize size() const;

    /// The whole wall, opaque (RGB32). Null where there is not enough memory.
    QImage image() const;

    /// Whether it is so large that its rows are drawn for themselves: where a side is longer than 4320
    /// pixels.
    bool isDrawnInParts() const;
    /// `count` rows of the same picture, from the row `top` on.
    QImage rows(int top, int count) const;
    /// Likewise what is in `area`, which lies within the wall.
    QImage area(const QRect& area) const;

    /// The same picture strip after strip, for an encoder. To be used by one thread at a time.
    testcharttools::PictureRows strips() const;

private:
    class Impl;
    std::shared_ptr<const Impl> d;
};

} // namespace vardeno::walls
