#pragma once

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QRect>
#include <QString>
#include <QStringList>

/// What `draw` draws with a fresh painter on a transparent picture of `size`.
template <typename Draw>
QImage drawnPicture(const QSize& size, Draw draw)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    draw(painter);
    painter.end();
    return pixmap.toImage();
}

/// Whether more than half of the pixel is covered.
inline bool isInk(const QImage& image, int x, int y)
{
    return qAlpha(image.pixel(x, y)) > 127;
}

/// The runs of covered pixels along one row or column, from the left or the top: "0-5 850-855".
template <typename Covered>
QString inkSpans(int length, Covered covered)
{
    QStringList spans;
    for (int at = 0; at < length; ++at) {
        const int first = at;
        while (at < length && covered(at))
            ++at;
        if (at > first)
            spans << QStringLiteral("%1-%2").arg(first).arg(at - 1);
    }
    return spans.join(QLatin1Char(' '));
}

inline QString inkInRow(const QImage& image, int y)
{
    return inkSpans(image.width(), [&](int x) { return isInk(image, x, y); });
}

inline QString inkInColumn(const QImage& image, int x)
{
    return inkSpans(image.height(), [&](int y) { return isInk(image, x, y); });
}

/// The smallest rectangle with every pixel of `area` that is not quite transparent; null where there is none.
inline QRect inkBounds(const QImage& image, const QRect& area)
{
    QRect bounds;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

inline QRect inkBounds(const QImage& image)
{
    return inkBounds(image, image.rect());
}

/// The number of opaque pixels that do not have `color`, or -1 where no pixel is opaque.
inline int opaquePixelsNotOf(const QColor& color, const QImage& image)
{
    int opaque = 0;
    int others = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            opaque += qAlpha(pixel) == 255;
            others += qAlpha(pixel) == 255 && pixel != color.rgb();
        }
    }
    return opaque == 0 ? -1 : others;
}
