#include "imagepixels.h"

#include <QColorSpace>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <random>

namespace ChartComparison {

QImage plainColors(const QImage& image)
{
    QImage plain =
        image.format() == QImage::Format_RGB32 ? image.copy() : image.convertToFormat(QImage::Format_ARGB32);
    plain.reinterpretAsFormat(QImage::Format_RGB32);
    plain.setDevicePixelRatio(1);
    plain.setColorSpace({}); // which Qt 6 compares too
    for (int y = 0; y < plain.height(); ++y) {
        QRgb* const row = pixelRow(plain, y);
        std::transform(row, row + plain.width(), row, [](QRgb color) { return color | 0xff000000U; });
    }
    return plain;
}

int channelDistance(QRgb a, QRgb b)
{
    return std::max(
        {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

bool isOneColor(const QImage& image, const QRect& rect)
{
    const QRgb color = pixelRow(image, rect.top())[rect.left()];
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const QRgb* const row = pixelRow(image, y) + rect.left();
        if (!std::all_of(row, row + rect.width(), [color](QRgb pixel) { return pixel == color; }))
            return false;
    }
    return true;
}

bool sameAt(const QImage& a, const QRect& rect, const QImage& b, const QPoint& corner)
{
    for (int y = 0; y < rect.height(); ++y) {
        if (std::memcmp(pixelRow(a, rect.top() + y) + rect.left(), pixelRow(b, corner.y() + y) + corner.x(),
                        std::size_t(rect.width()) * sizeof(QRgb)) != 0)
            return false;
    }
    return true;
}

qint64 equalPixels(const QImage& a, const QRect& rect, const QImage& b, const QPoint& corner)
{
    qint64 equal = 0;
    for (int y = 0; y < rect.height(); ++y) {
        const QRgb* const rowA = pixelRow(a, rect.top() + y) + rect.left();
        const QRgb* const rowB = pixelRow(b, corner.y() + y) + corner.x();
        int inRow = 0;
        for (int x = 0; x < rect.width(); ++x)
            inRow += rowA[x] == rowB[x] ? 1 : 0;
        equal += inRow;
    }
    return equal;
}

double equalShare(const QImage& a, const QImage& b)
{
    return double(equalPixels(a, a.rect(), b, {})) / double(pixelCount(a.size()));
}

ChannelDifference channelDifference(const QImage& a, const QImage& b)
{
    ChannelDifference difference;
    qint64 sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        const uchar* const rowA = a.constScanLine(y);
        const uchar* const rowB = b.constScanLine(y);
        const int bytes = a.width() * 4; // the alphas are equal
        int inRow = 0;
        for (int i = 0; i < bytes; ++i) {
            const int channel = std::abs(rowA[i] - rowB[i]);
            difference.greatest = std::max(difference.greatest, channel);
            inRow += channel;
        }
        sum += inRow;
    }
    difference.mean = double(sum) / (3.0 * double(pixelCount(a.size())));
    return difference;
}

BlockMeans blockMeans(const QImage& image, int block)
{
    const QSize blocks((image.width() + block - 1) / block, (image.height() + block - 1) / block);
    BlockMeans means{blocks, std::vector<float>(std::size_t(pixelCount(blocks)) * 3)};
    std::vector<int> sums(std::size_t(blocks.width()) * 3);
    for (int top = 0; top < image.height(); top += block) {
        std::fill(sums.begin(), sums.end(), 0);
        const int bottom = std::min(top + block, image.height());
        for (int y = top; y < bottom; ++y) {
            const QRgb* const row = pixelRow(image, y);
            const int width = image.width();
            for (int x = 0; x < width; ++x) {
                int* const sum = &sums[std::size_t(x / block) * 3];
                sum[0] += qRed(row[x]);
                sum[1] += qGreen(row[x]);
                sum[2] += qBlue(row[x]);
            }
        }
        float* const channels = means.channels.data() + std::ptrdiff_t(top / block) * blocks.width() * 3;
        for (int i = 0; i < blocks.width() * 3; ++i) {
            const int columns = std::min(block, image.width() - i / 3 * block);
            channels[i] = float(sums[std::size_t(i)]) / float(columns * (bottom - top));
        }
    }
    return means;
}

std::vector<int> differingBlocks(const BlockMeans& a, const BlockMeans& b, float tolerance)
{
    std::vector<int> differing;
    for (std::size_t i = 0; i < a.channels.size(); i += 3) {
        const auto differs = [&](std::size_t channel) {
            return std::abs(a.channels[i + channel] - b.channels[i + channel]) > tolerance;
        };
        if (differs(0) || differs(1) || differs(2))
            differing.push_back(int(i / 3));
    }
    return differing;
}

std::vector<QPoint> samplePoints(const QRect& rect, int count)
{
    std::mt19937 random(20261121);
    std::vector<QPoint> points;
    for (int i = 0; i < count && !rect.isEmpty(); ++i)
        points.emplace_back(rect.left() + int(random() % uint(rect.width())),
                            rect.top() + int(random() % uint(rect.height())));
    return points;
}

} // namespace ChartComparison
