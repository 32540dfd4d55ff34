#include "differencepicture.h"

#include "imagepixels.h"

#include <QPainter>

#include <algorithm>

namespace ChartComparison {

namespace {

constexpr QRgb differing = 0xffffff00;
constexpr QRgb outline = 0xffff0000;

QRgb darkened(QRgb color)
{
    return 0xff000000U | ((color >> 2U) & 0x3f3f3fU);
}

/// Inside, so that neighbours do not hide one another; wide enough to be seen on the whole wall.
void drawOutlines(QImage& picture, const QPoint& origin, const std::vector<QRect>& rects)
{
    QPainter painter(&picture);
    const int wanted = std::max(2, std::max(picture.width(), picture.height()) / 640);
    for (const QRect& rect : rects) {
        const int width = std::clamp(std::min(rect.width(), rect.height()) / 6, 1, wanted);
        const QRect outer = rect.translated(origin);
        painter.setClipRegion(QRegion(outer) - outer.adjusted(width, width, -width, -width));
        painter.fillRect(outer, QColor(outline));
    }
}

} // namespace

QImage differencePicture(const QImage& expected, const QImage& actual, const QPoint& at,
                         const std::vector<QRect>& outlined)
{
    const QRect shown(-at, actual.size());
    const QRect both = shown & expected.rect();
    const QRect whole = shown | expected.rect();
    QImage picture(whole.size(), QImage::Format_RGB32);
    picture.fill(differing);
    for (int y = both.top(); y <= both.bottom(); ++y) {
        const QRgb* const e = pixelRow(expected, y);
        const QRgb* const a = pixelRow(actual, y + at.y());
        QRgb* const row = pixelRow(picture, y - whole.top());
        for (int x = both.left(); x <= both.right(); ++x)
            row[x - whole.left()] = e[x] == a[x + at.x()] ? darkened(e[x]) : differing;
    }
    drawOutlines(picture, -whole.topLeft(), outlined);
    return picture;
}

} // namespace ChartComparison
