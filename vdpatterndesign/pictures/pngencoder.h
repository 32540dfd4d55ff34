#pragma once

#include "picturerows.h"
#include "vdchartcore_export.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace vardeno::testcharttools {

/// A text in a PNG file under its keyword, which is Latin-1 of 1 to 79 letters. It is not empty.
struct PngText
{
    QByteArray keyword;
    QString text;
};

struct PngOptions
{
    int compression = 1; ///< 0 (stored) to 9
    int threads = 1;     ///< that compress at the same time
    std::vector<PngText> texts = {};
};

/// Writes a picture as a PNG file of 8 bits to `sink`: with a palette where it has at most 256 colours, else
/// red, green and blue; it says sRGB and 96 dots per inch, and has no transparency. Rows are filtered, and
/// blocks of them compressed, by what is in them; the file does not depend on the number of threads.
///
/// Rows are drawn once to count the colours, until there are too many, and once to be written. Of the picture
/// it holds one strip and what the threads work on. Throws `std::bad_alloc`. For any thread.
VDCHARTCORE_EXPORT void encodePng(const PictureRows& picture, const PngOptions& options,
                                  const ByteSink& sink);

/// `image` as a PNG file; empty for no picture. Throws `std::bad_alloc`. For any thread.
VDCHARTCORE_EXPORT QByteArray encodePng(const QImage& image, const PngOptions& options);

} // namespace vardeno::testcharttools
