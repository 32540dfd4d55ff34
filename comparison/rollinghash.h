#pragma once

#include "imagepixels.h"

#include <vector>

/// The rolling hash of Rabin and Karp in two dimensions: a polynomial of the pixels of a square, from which
/// the column and the row that it leaves are subtracted as it moves on.
namespace ChartComparison {

constexpr quint64 columnFactor = 0x9e3779b97f4a7c15U;
constexpr quint64 rowFactor = 0xc2b2ae3d27d4eb4fU;

inline quint64 power(quint64 base, int exponent)
{
    quint64 result = 1;
    for (int i = 0; i < exponent; ++i)
        result *= base;
    return result;
}

inline quint64 squareHash(const QImage& image, const QPoint& at, int side)
{
    quint64 hash = 0;
    for (int y = 0; y < side; ++y) {
        quint64 row = 0;
        for (int x = 0; x < side; ++x)
            row = row * columnFactor + pixelRow(image, at.y() + y)[at.x() + x];
        hash = hash * rowFactor + row;
    }
    return hash;
}

/// Slides a square of `side` over the picture and tells `visit` the hash at every place.
template <typename Visit>
void visitSquares(const QImage& image, int side, const Visit& visit)
{
    const int places = image.width() - side + 1;
    const quint64 leavingColumn = power(columnFactor, side);
    const quint64 leavingRow = power(rowFactor, side);
    const auto count = std::size_t(places);
    const std::vector<quint64> none(count, 0);
    std::vector<quint64> hashes = none;
    std::vector<std::vector<quint64>> rows;
    rows.resize(std::size_t(side), none);
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* const pixels = pixelRow(image, y);
        std::vector<quint64>& row = rows[std::size_t(y % side)]; // holds the row that leaves the squares
        quint64 hash = 0;
        for (int x = 0; x < side - 1; ++x)
            hash = hash * columnFactor + pixels[x];
        for (int x = 0; x < places; ++x) {
            hash = hash * columnFactor + pixels[x + side - 1];
            if (x > 0)
                hash -= leavingColumn * pixels[x - 1];
            quint64& below = hashes[std::size_t(x)];
            below = below * rowFactor + hash - leavingRow * row[std::size_t(x)];
            row[std::size_t(x)] = hash;
            if (y >= side - 1)
                visit(QPoint(x, y - side + 1), below);
        }
    }
}

} // namespace ChartComparison
