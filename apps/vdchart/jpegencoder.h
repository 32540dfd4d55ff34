#pragma once

#include <picturerows.h>

/// Writes a picture as a JPEG file of quality 100 to `sink`, each pixel with a colour of its own (4:4:4), at
/// 96 dots per inch. Throws `std::bad_alloc`. For any thread.
void encodeJpeg(const vardeno::testcharttools::PictureRows& picture,
                const vardeno::testcharttools::ByteSink& sink);
