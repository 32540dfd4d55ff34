#pragma once

#include <QImage>

#include <functional>
#include <new>

namespace vardeno::testcharttools {

/// A picture by its rows: one that is drawn while it is encoded never stands in memory as a whole.
struct PictureRows
{
    QSize size;
    /// The rows `top` to `top + count - 1` as an image of that size, in any format: its colours count, its
    /// transparency is left out. Asked for in the thread that encodes, strip after strip, from the top or
    /// from the bottom, and where two passes pay off a second time. What it throws ends the encoding.
    std::function<QImage(int top, int count)> rows;
    int atOnce = 0; ///< the most rows that are asked for at once; 0 for all of them

    int stripHeight() const { return atOnce > 0 ? qMin(atOnce, size.height()) : size.height(); }
};

/// The rows of a picture that is there.
inline PictureRows rowsOf(const QImage& image)
{
    const auto rows = [image](int top, int count) {
        return count == image.height() ? image : image.copy(0, top, image.width(), count);
    };
    return {image.size(), rows, 0};
}

/// How many rows of a picture of `width` pixels are compressed by themselves: 2 MiB, so that it hardly costs
/// compression.
inline int blockHeight(int width)
{
    constexpr qint64 blockBytes = 2 * 1024 * 1024;
    return int(qMax<qint64>(1, blockBytes / (width * qint64(sizeof(QRgb)))));
}

/// The rows of a picture that is drawn in strips of some blocks. `rows` gives a null image where there is not
/// enough memory, for which std::bad_alloc is thrown.
inline PictureRows inStrips(const QSize& size, const std::function<QImage(int top, int count)>& rows)
{
    constexpr int blocksAtOnce = 2;
    const auto required = [rows](int top, int count) {
        const QImage strip = rows(top, count);
        return strip.isNull() ? throw std::bad_alloc() : strip;
    };
    return {size, required, blocksAtOnce * blockHeight(size.width())};
}

/// Takes the bytes of a file one part after the other. What it throws ends the encoding.
using ByteSink = std::function<void(const char* bytes, qint64 count)>;

/// What every picture file says of its resolution: a pixel is 1/96 inch, as programs take it that place
/// pictures by size. A wall has none.
constexpr int dotsPerInch = 96;
constexpr int dotsPerMeter = 3780;

} // namespace vardeno::testcharttools
