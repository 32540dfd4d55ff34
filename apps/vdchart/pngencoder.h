#pragma once

#include <QByteArray>
#include <QImage>

/// `image` as a PNG file of 8 bits each of red, green and blue, without row filters: charts are flat areas,
/// where filters cost time and gain little. `compression`: 0 (stored) to 9. Any format of image is read by
/// its colours, transparency is left out. Empty where there is not enough memory. For any thread.
QByteArray encodePng(const QImage& image, int compression);
