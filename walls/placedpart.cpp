#include "placedpart.h"

#include <QTransform>

namespace vardeno::walls {

namespace {

QRect between(const QPoint& one, const QPoint& other)
{
    return QRect(QPoint(qMin(one.x(), other.x()), qMin(one.y(), other.y())),
                 QPoint(qMax(one.x(), other.x()), qMax(one.y(), other.y())));
}

} // namespace

PlacedPart::PlacedPart(const WallPlacement& placement, const QSize& wall)
    : m_part(placement.part.rect.isEmpty() ? QRect(QPoint(), wall) : placement.part.rect)
    , m_degrees(placement.turned.degrees)
    , m_mirrored(placement.mirrored)
{
    const QSize size = m_degrees % 180 == 0 ? m_part.size() : m_part.size().transposed();
    m_placed = {QPoint(placement.x, placement.y), size};
}

QPoint PlacedPart::toOutput(const QPoint& wall) const
{
    const int right = m_part.width() - 1;
    const int bottom = m_part.height() - 1;
    const int y = wall.y() - m_part.y();
    const int x = m_mirrored ? right - (wall.x() - m_part.x()) : wall.x() - m_part.x();
    switch (m_degrees) {
    case 90:
        return m_placed.topLeft() + QPoint(bottom - y, x);
    case 180:
        return m_placed.topLeft() + QPoint(right - x, bottom - y);
    case 270:
        return m_placed.topLeft() + QPoint(y, right - x);
    default:
        return m_placed.topLeft() + QPoint(x, y);
    }
}

QPoint PlacedPart::toWall(const QPoint& output) const
{
    const int right = m_part.width() - 1;
    const int bottom = m_part.height() - 1;
    const QPoint at = output - m_placed.topLeft();
    QPoint turned = at;
    if (m_degrees == 90)
        turned = {at.y(), bottom - at.x()};
    else if (m_degrees == 180)
        turned = {right - at.x(), bottom - at.y()};
    else if (m_degrees == 270)
        turned = {right - at.y(), at.x()};
    return m_part.topLeft() + QPoint(m_mirrored ? right - turned.x() : turned.x(), turned.y());
}

QRect PlacedPart::toOutput(const QRect& wall) const
{
    return wall.isEmpty() ? QRect() : between(toOutput(wall.topLeft()), toOutput(wall.bottomRight()));
}

QRect PlacedPart::toWall(const QRect& output) const
{
    return output.isEmpty() ? QRect() : between(toWall(output.topLeft()), toWall(output.bottomRight()));
}

QImage PlacedPart::turned(const QImage& picture) const
{
    const QImage mirrored = m_mirrored ? picture.mirrored(true, false) : picture;
    switch (m_degrees) {
    case 90:
        return mirrored.transformed(QTransform(0, 1, -1, 0, 0, 0));
    case 180:
        return mirrored.mirrored(true, true);
    case 270:
        return mirrored.transformed(QTransform(0, -1, 1, 0, 0, 0));
    default:
        return mirrored;
    }
}

} // namespace vardeno::walls
