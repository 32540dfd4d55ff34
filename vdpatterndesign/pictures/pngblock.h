#pragma once

#include <QByteArray>
#include <QImage>

namespace vardeno::testcharttools {

class ColorTable;

/// Some rows of a PNG file's picture, compressed by themselves: blocks of one picture can be compressed at
/// the same time, and put behind one another.
struct PngBlock
{
    QImage strip;                      ///< of the format RGB32
    int top = 0;                       ///< the first row in it
    int count = 0;                     ///< how many rows
    QImage above;                      ///< the row above the strip; null for the top of the picture
    const ColorTable* table = nullptr; ///< null for a picture without a palette
    int compression = 1;               ///< 0 to 9
    bool isLast = false;               ///< of the picture

    struct Deflated
    {
        QByteArray bytes;    ///< a part of a raw deflate stream
        bool isLast = false; ///< of the picture
        quint32 adler = 1;   ///< the checksum of what is compressed in it, and
        qint64 length = 0;   ///< its length
    };

    /// Chooses a filter for each row, and a strategy by what that leaves. For any thread; throws
    /// `std::bad_alloc`.
    Deflated deflated() const;
};

} // namespace vardeno::testcharttools
