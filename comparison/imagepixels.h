#pragma once

#include <QImage>
#include <QRect>

#include <vector>

/// Pictures as arrays of 8-bit colours. All of them have the format RGB32 with an alpha of 255, so that equal
/// colours are equal numbers.
namespace ChartComparison {

QImage plainColors(const QImage& image);

inline const QRgb* pixelRow(const QImage& image, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

inline QRgb* pixelRow(QImage& image, int y)
{
    return reinterpret_cast<QRgb*>(image.scanLine(y));
}

inline qint64 pixelCount(const QSize& size)
{
    return qint64(size.width()) * size.height();
}

/// The greatest difference of a channel of two colours.
int channelDistance(QRgb a, QRgb b);

bool isOneColor(const QImage& image, const QRect& rect);
inline bool isOneColor(const QImage& image)
{
    return isOneColor(image, image.rect());
}

/// Whether `rect` of `a` shows the same as the rectangle of its size at `corner` of `b`.
bool sameAt(const QImage& a, const QRect& rect, const QImage& b, const QPoint& corner);

/// The number of pixels in which that is so.
qint64 equalPixels(const QImage& a, const QRect& rect, const QImage& b, const QPoint& corner);

/// The share of equal pixels of two pictures of one size.
double equalShare(const QImage& a, const QImage& b);

/// The greatest and the mean difference of a colour channel of two pictures of one size.
struct ChannelDifference
{
    int greatest = 0;
    double mean = 0;
};
ChannelDifference channelDifference(const QImage& a, const QImage& b);

/// The mean colours of squares of `block` pixels, row by row; at the far edges of what is left.
struct BlockMeans
{
    QSize blocks;
    std::vector<float> channels; ///< red, green and blue of each
};
BlockMeans blockMeans(const QImage& image, int block);

/// The blocks in which a colour channel differs by more than `tolerance`, by their number.
std::vector<int> differingBlocks(const BlockMeans& a, const BlockMeans& b, float tolerance);

/// Random pixels of `rect`, the same ones every time.
std::vector<QPoint> samplePoints(const QRect& rect, int count);

} // namespace ChartComparison
