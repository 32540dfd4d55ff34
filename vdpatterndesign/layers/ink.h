#pragma once

#include <QImage>
#include <QRect>
#include <QVector>

namespace vardeno::testcharttools {

/// Where a picture is not transparent.
struct Ink
{
    QVector<QRect> places; ///< disjoint; whatever lies outside of them is transparent
    bool opaque = false;   ///< whether every pixel of the picture is opaque
};

/// The ink of `picture` (ARGB32_Premultiplied). Places are made of whole tiles, so they also hold some pixels
/// that are transparent.
Ink inkOf(const QImage& picture);

/// Makes the `places` of `picture` transparent.
void wipe(QImage& picture, const QVector<QRect>& places);

} // namespace vardeno::testcharttools
