#pragma once

#include "chartpicture.h"
#include "showfile.h"

#include <QImage>

#include <memory>

namespace vardeno::walls {

/// The picture of an output of a show: its walls where they are placed, later ones over those before, and
/// black where there is none. Sizes are pixels of the output.
///
/// Texts are drawn in the application's font, so there must be a QGuiApplication; everything here may be used
/// in any thread, and one picture be drawn by several threads at a time.
class VDWALLS_EXPORT ShowPicture
{
public:
    /// A show that was read without problems, its walls as `ShowFile::wallsOf` gives them, and the number of
    /// the output, from 0.
    ShowPicture(const ShowDocument& show, const std::vector<ShowFile::PlacedWall>& walls, int output,
                const testcharttools::ChartCaptions& captions = {});
    ShowPicture(const ShowPicture& other);
    ShowPicture& operator=(const ShowPicture& other);
    ~ShowPicture();

    QSize size() const;

    /// The whole output, opaque (RGB32). Null where there is not enough memory.
    QImage image() const;

    /// Whether it is so large that its rows are drawn for themselves: where a side is longer than 4320
    /// pixels.
    bool isDrawnInParts() const;
    /// `count` rows of the same picture, from the row `top` on.
    QImage rows(int top, int count) const;

    /// The same picture strip after strip, for an encoder. To be used by one thread at a time.
    testcharttools::PictureRows strips() const;

private:
    class Impl;
    std::shared_ptr<const Impl> d;
};

} // namespace vardeno::walls
