#include "geometry/logoplacement.h"

#include <QFontMetrics>

#include <cstdint>

namespace vardeno::testcharttools {

namespace {

enum Anchor
{
    Center,
    LeftUp,
    LeftDown,
    RightUp,
    RightDown
};

bool isLeft(int anchor)
{
    return anchor == LeftUp || anchor == LeftDown;
}

bool isRight(int anchor)
{
    return anchor == RightUp || anchor == RightDown;
}

bool isUp(int anchor)
{
    return anchor == LeftUp || anchor == RightUp;
}

bool isDown(int anchor)
{
    return anchor == LeftDown || anchor == RightDown;
}

/// `origin` moved by `adjustment` and kept within the limits, of which the far one wins.
int kept(int origin, int adjustment, double nearLimit, double farLimit)
{
    auto position = std::int64_t(origin) + adjustment;
    if (double(position) < nearLimit)
        position = std::int64_t(nearLimit);
    if (double(position) > farLimit)
        position = std::int64_t(farLimit);
    return int(position);
}

/// Along one axis, `side` long: a picture `length` long from `origin`.
int keptPicture(int side, float length, int origin, int adjustment)
{
    if (length >= float(side))
        return origin;
    const int half = side / 2;
    return kept(origin, adjustment, -half, double(float(half) - length));
}

} // namespace

QSize scaledPicture(const QSize& size, float scale)
{
    return {int(float(size.width()) * scale), int(float(size.height()) * scale)};
}

LogoPlacement placedPicture(const QSize& chart, const QSize& picture, int anchor, const QPoint& adjustment)
{
    const auto w = float(picture.width());
    const auto h = float(picture.height());
    const int halfWidth = chart.width() / 2;
    const int halfHeight = chart.height() / 2;
    const int x0 = anchor == Center  ? int(-w * 0.5F)
                   : isLeft(anchor)  ? -halfWidth
                   : isRight(anchor) ? int(float(halfWidth) - w)
                                     : 0;
    const int y0 = anchor == Center ? int(-h * 0.5F)
                   : isUp(anchor)   ? -halfHeight
                   : isDown(anchor) ? int(float(halfHeight) - h)
                                    : 0;
    const QPoint at(keptPicture(chart.width(), w, x0, adjustment.x()),
                    keptPicture(chart.height(), h, y0, adjustment.y()));
    return {at, at - QPoint(x0, y0)};
}

LogoPlacement placedText(const QSize& chart, const TextExtent& text, int anchor, const QPoint& adjustment)
{
    const int halfWidth = chart.width() / 2;
    const int halfHeight = chart.height() / 2;
    const double top = text.lineWidth - (halfHeight - text.height / 1.1);
    const int bottom = halfHeight - text.height / 5 - text.lineWidth;
    const int left = text.lineWidth - halfWidth;
    const int right = halfWidth - text.lineWidth - text.advance;
    // Left down alone keeps no line width at its anchor; its limit then gives it one.
    const int x0 = anchor == Center     ? -(text.advance / 2)
                   : anchor == LeftUp   ? left
                   : anchor == LeftDown ? -halfWidth
                   : isRight(anchor)    ? right
                                        : 0;
    const int y0 = anchor == Center ? text.height / 2 : isUp(anchor) ? int(top) : isDown(anchor) ? bottom : 0;
    const QPoint at(kept(x0, adjustment.x(), left, right), kept(y0, adjustment.y(), top, bottom));
    return {at, at - QPoint(x0, y0)};
}

TextLogo placedTextLogo(const QSize& chart, const QString& text, int requested, int anchor,
                        const QPoint& adjustment)
{
    const FittedText fitted = fitText(text, requested, chart.width() * 0.8, chart.height() * 0.8);
    const TextExtent extent{fitted.advance, fitted.height, QFontMetrics(fitted.font).lineWidth()};
    return {fitted, placedText(chart, extent, anchor, adjustment)};
}

} // namespace vardeno::testcharttools
