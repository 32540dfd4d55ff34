#include "inkshapes.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vardeno::walls {

namespace {

double product(const QPointF& a, const QPointF& b)
{
    return QPointF::dotProduct(a, b);
}

double lengthOf(const QPointF& vector)
{
    return std::sqrt(product(vector, vector));
}

/// Draws pixels that are covered as far as they lie within half a pixel of a shape's edge.
class InkPainter
{
public:
    InkPainter(QPainter& painter, const QColor& color, const QRectF& bounds, const QRect& area)
        : m_painter(painter)
        , m_box(bounds.toAlignedRect().adjusted(-1, -1, 1, 1) & area)
    {
        if (m_box.isEmpty()) // as most shapes are for most parts of a wall
            return;
        m_row = QImage(m_box.width(), 1, QImage::Format_ARGB32_Premultiplied);
        for (int i = 0; i <= steps; ++i) {
            const int alpha = (color.alpha() * i + steps / 2) / steps;
            m_colors[i] = qPremultiply(qRgba(color.red(), color.green(), color.blue(), alpha));
        }
    }

    int top() const { return m_box.top(); }
    int bottom() const { return m_box.bottom(); }

    /// The pixels of a row whose middles are from `left` to `right`; `distance` tells how far a point is
    /// outside of the shape.
    template <typename Distance>
    void draw(int y, double left, double right, Distance distance)
    {
        const int first = int(std::max(std::floor(left), double(m_box.left())));
        const int last = int(std::min(std::ceil(right), double(m_box.right())));
        if (first > last)
            return;
        auto* const pixels = reinterpret_cast<QRgb*>(m_row.scanLine(0));
        for (int x = first; x <= last; ++x) {
            const double covered = std::clamp(0.5 - distance(QPointF(x + 0.5, y + 0.5)), 0.0, 1.0);
            pixels[x - first] = m_colors[int(covered * steps + 0.5)];
        }
        m_painter.drawImage(QPoint(first, y), m_row, QRect(0, 0, last - first + 1, 1));
    }

    template <typename Distance>
    void draw(Distance distance)
    {
        for (int y = top(); y <= bottom(); ++y)
            draw(y, m_box.left(), m_box.right(), distance);
    }

private:
    static constexpr int steps = 255;

    QPainter& m_painter;
    QRect m_box;
    QImage m_row;
    QRgb m_colors[steps + 1];
};

QRectF around(const QPointF& centre, double radius)
{
    return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

} // namespace

void drawInkLine(QPainter& painter, const QColor& color, const QPointF& from, const QPointF& to, double width,
                 const QRect& area)
{
    const double half = width / 2;
    const QPointF along = to - from;
    const double square = std::max(product(along, along), 1e-9);
    InkPainter ink(painter, color, around(from, half) | around(to, half), area);
    const auto distance = [&](const QPointF& point) {
        const double part = std::clamp(product(point - from, along) / square, 0.0, 1.0);
        return lengthOf(point - from - along * part) - half;
    };
    // Along a row the line is as wide as this: a long one has a box with little ink in it.
    const double reach = (half + 1) * std::sqrt(square) / std::max(std::abs(along.y()), 1e-9) + 1;
    for (int y = ink.top(); y <= ink.bottom(); ++y) {
        const double middle =
            std::abs(along.y()) < 1e-9 ? from.x() : from.x() + (y + 0.5 - from.y()) * along.x() / along.y();
        ink.draw(y, middle - reach, middle + reach, distance);
    }
}

void drawInkDisc(QPainter& painter, const QColor& color, const QPointF& centre, double radius,
                 const QRect& area)
{
    InkPainter(painter, color, around(centre, radius), area).draw([&](const QPointF& point) {
        return lengthOf(point - centre) - radius;
    });
}

void drawInkBox(QPainter& painter, const QColor& color, const QRectF& box, double radius, const QRect& area)
{
    InkPainter(painter, color, box, area).draw([&](const QPointF& point) {
        const double x = std::abs(point.x() - box.center().x()) - box.width() / 2 + radius;
        const double y = std::abs(point.y() - box.center().y()) - box.height() / 2 + radius;
        return lengthOf({std::max(x, 0.0), std::max(y, 0.0)}) + std::min(std::max(x, y), 0.0) - radius;
    });
}

void drawInkArrow(QPainter& painter, const QColor& color, const QPointF& at, const QPointF& along,
                  double radius, const QRect& area)
{
    const QPointF forward = along / std::max(lengthOf(along), 1e-9);
    const QPointF aside(-forward.y(), forward.x());
    constexpr double sine = 0.5; // of half the angle at its tip: its sides are equal
    const double cosine = std::sqrt(1 - sine * sine);
    InkPainter(painter, color, around(at, radius), area).draw([&](const QPointF& point) {
        const double ahead = product(point - at, forward);
        const double off = std::abs(product(point - at, aside));
        return std::max(-ahead - radius / 2, (ahead - radius) * sine + off * cosine);
    });
}

} // namespace vardeno::walls
