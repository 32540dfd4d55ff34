#pragma once

#include <QImage>
#include <QRect>
#include <QVector>

namespace vardeno::testcharttools {

/// Where a picture is not transparent.
struct Ink
{
    QVector<QRect> places; ///< disjoint, from the top down; whatever lies outside of them is transparent
    bool opaque = false;   ///< whether every pixel of the picture is opaque
};

/// The ink of `picture` (ARGB32_Premultiplied), which has none outside of `reach`. Places are made of whole
/// tiles, so they also hold some pixels that are transparent.
Ink inkOf(const QImage& picture, const QVector<QRect>& reach);
inline Ink inkOf(const QImage& picture)
{
    return inkOf(picture, {picture.rect()});
}

/// Makes the `places` of `picture` transparent.
void wipe(QImage& picture, const QVector<QRect>& places);

} // namespace vardeno::testcharttools
