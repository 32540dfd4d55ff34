#include "edgelayer.h"

#include <QPainter>

#include <algorithm>

namespace vardeno::walls {

void FilledLayer::draw(QPainter& painter, const QSize&, const QRect& area) const
{
    for (const QRect& rect : rects) {
        if (rect.intersects(area))
            painter.fillRect(rect & area, color);
    }
}

/// No pixel of theirs is drawn twice, so that the corners of transparent ones are as the sides are.
void EdgeLayer::draw(QPainter& painter, const QSize&, const QRect& area) const
{
    for (const QRect& rect : rects) {
        if (!rect.intersects(area))
            continue;
        const int across = std::min(width, (rect.width() + 1) / 2);
        const int down = std::min(width, (rect.height() + 1) / 2);
        const QRect inside = rect.adjusted(across, down, -across, -down);
        const QRect top(rect.topLeft(), QSize(rect.width(), down));
        const QRect bottom(rect.left(), std::max(inside.bottom(), top.bottom()) + 1, rect.width(),
                           rect.bottom() - std::max(inside.bottom(), top.bottom()));
        const QRect left(rect.left(), inside.top(), across, inside.height());
        const QRect right(std::max(inside.right(), left.right()) + 1, inside.top(),
                          rect.right() - std::max(inside.right(), left.right()), inside.height());
        for (const QRect& side : {top, bottom, left, right})
            painter.fillRect(side & area, color);
    }
}

} // namespace vardeno::walls
