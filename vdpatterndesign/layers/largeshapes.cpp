#include "layers/largeshapes.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vardeno::testcharttools {

namespace {

/// What a line of that width covers of a pixel whose middle is `distance` from the line's.
double lineCoverage(double distance, double width)
{
    const double half = width / 2;
    return std::clamp(std::min(distance + 0.5, half) - std::max(distance - 0.5, -half), 0.0, 1.0);
}

/// Draws pixels of one row after the other.
class RowPainter
{
public:
    RowPainter(QPainter& painter, const SmoothPen& pen, const QRect& area)
        : m_painter(painter)
        , m_pen(pen)
        , m_area(area)
        , m_row(area.width(), 1, QImage::Format_ARGB32_Premultiplied)
    {
        for (int i = 0; i <= steps; ++i)
            m_colors[i] = covered(double(i) / steps);
    }

    double width() const { return m_pen.width; }
    const QRect& area() const { return m_area; }

    /// The pixels of the row `y` whose middles are from `left` to `right`, each as far from the line as
    /// `distance` of its column tells.
    template <typename Distance>
    void draw(int y, double left, double right, Distance distance)
    {
        const int first = int(std::max(std::floor(left), double(m_area.left())));
        const int last = int(std::min(std::ceil(right), double(m_area.right())));
        if (first > last)
            return;
        auto* const pixels = reinterpret_cast<QRgb*>(m_row.scanLine(0));
        for (int x = first; x <= last; ++x)
            pixels[x - first] = m_colors[std::lround(lineCoverage(distance(x), m_pen.width) * steps)];
        m_painter.drawImage(QPoint(first, y), m_row, QRect(0, 0, last - first + 1, 1));
    }

private:
    static constexpr int steps = 255;

    QRgb covered(double part) const
    {
        QColor color = m_pen.color;
        color.setAlphaF(color.alphaF() * part);
        return qPremultiply(color.rgba());
    }

    QPainter& m_painter;
    const SmoothPen& m_pen;
    const QRect& m_area;
    QImage m_row;
    QRgb m_colors[steps + 1];
};

} // namespace

void drawSmoothLine(QPainter& painter, const SmoothPen& pen, const QPointF& from, const QPointF& to,
                    const QRect& area)
{
    const QPointF along = to - from;
    const double length = std::hypot(along.x(), along.y());
    const double reach = (pen.width / 2 + 1) * length / std::abs(along.y()); // along a row
    RowPainter row(painter, pen, area);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const double down = y + 0.5 - from.y();
        const double middle = from.x() + down * along.x() / along.y();
        row.draw(y, middle - reach - 0.5, middle + reach - 0.5,
                 [&](int x) { return ((x + 0.5 - from.x()) * along.y() - down * along.x()) / length; });
    }
}

void drawSmoothCircle(QPainter& painter, const SmoothPen& pen, const QRect& square, const QRect& area)
{
    if (square.isEmpty())
        return;
    const double radius = square.width() / 2.0;
    const double centreX = square.x() + radius;
    const double centreY = square.y() + radius;
    const double outer = radius + pen.width / 2 + 1;
    const double inner = radius - pen.width / 2 - 1;
    RowPainter row(painter, pen, area);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const double down = y + 0.5 - centreY;
        if (std::abs(down) > outer)
            continue;
        const auto distance = [&](int x) { return std::hypot(x + 0.5 - centreX, down) - radius; };
        const double far = std::sqrt(outer * outer - down * down);
        if (inner <= 0 || std::abs(down) >= inner) {
            row.draw(y, centreX - far, centreX + far, distance);
            continue;
        }
        const double near = std::sqrt(inner * inner - down * down);
        const double leftEnd = std::floor(centreX - near);
        row.draw(y, centreX - far, leftEnd, distance);
        row.draw(y, std::max(leftEnd + 1, std::floor(centreX + near) - 1), centreX + far, distance);
    }
}

} // namespace vardeno::testcharttools
