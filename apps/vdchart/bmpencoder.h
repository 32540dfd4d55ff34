#pragma once

#include <picturerows.h>

/// Writes a picture as a BMP file of 24 bits to `sink`, from the bottom to the top as is usual, at 96 dots
/// per inch. For any thread.
void encodeBmp(const vardeno::testcharttools::PictureRows& picture,
               const vardeno::testcharttools::ByteSink& sink);
