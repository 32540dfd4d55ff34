#include "layers/ink.h"

#include <algorithm>
#include <numeric>

namespace vardeno::testcharttools {

namespace {

// Wide enough to be read fast, and few enough to be drawn one by one.
constexpr int tileWidth = 64;
constexpr int tileHeight = 32;

const QRgb* pixels(const QImage& picture, int x, int y)
{
    return reinterpret_cast<const QRgb*>(picture.constScanLine(y)) + x;
}

bool hasInk(const QRgb* first, int count)
{
    QRgb all = 0;
    for (int i = 0; i < count; ++i)
        all |= first[i];
    return all != 0;
}

bool isOpaque(const QRgb* first, int count)
{
    QRgb all = 0xff000000;
    for (int i = 0; i < count; ++i)
        all &= first[i];
    return all == 0xff000000;
}

bool hasInk(const QImage& picture, const QRect& tile)
{
    for (int y = tile.top(); y <= tile.bottom(); ++y) {
        if (hasInk(pixels(picture, tile.left(), y), tile.width()))
            return true;
    }
    return false;
}

bool isOpaque(const QImage& picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        if (!isOpaque(pixels(picture, 0, y), picture.width()))
            return false;
    }
    return true;
}

bool intersects(const QVector<QRect>& places, const QRect& tile)
{
    return std::any_of(places.begin(), places.end(),
                       [&tile](const QRect& place) { return place.intersects(tile); });
}

/// Appends `tile`, or widens the last place when that lies to its left.
void append(QVector<QRect>& places, const QRect& tile)
{
    if (!places.isEmpty() && places.last().top() == tile.top() && places.last().right() + 1 == tile.left())
        places.last().setRight(tile.right());
    else
        places.append(tile);
}

} // namespace

Ink inkOf(const QImage& picture, const QVector<QRect>& reach)
{
    Ink ink;
    for (int y = 0; y < picture.height(); y += tileHeight) {
        for (int x = 0; x < picture.width(); x += tileWidth) {
            const QRect tile = QRect(x, y, tileWidth, tileHeight) & picture.rect();
            if (intersects(reach, tile) && hasInk(picture, tile))
                append(ink.places, tile);
        }
    }
    const auto area = [](qint64 sum, const QRect& place) {
        return sum + qint64(place.width()) * place.height();
    };
    const qint64 covered = std::accumulate(ink.places.begin(), ink.places.end(), qint64(0), area);
    ink.opaque = covered > 0 && covered == qint64(picture.width()) * picture.height() && isOpaque(picture);
    return ink;
}

void wipe(QImage& picture, const QVector<QRect>& places)
{
    for (const QRect& place : places) {
        for (int y = place.top(); y <= place.bottom(); ++y)
            std::fill_n(reinterpret_cast<QRgb*>(picture.scanLine(y)) + place.left(), place.width(), 0U);
    }
}

} // namespace vardeno::testcharttools
