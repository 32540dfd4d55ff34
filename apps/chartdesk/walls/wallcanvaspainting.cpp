#include "wallcanvas.h"
#include "wallmodel.h"

#include <QPainter>

#include <algorithm>

using namespace vardeno::walls;

// How the canvas shows a wall. All but the selection and the cable in hand is kept as a picture, so that a
// click costs no more on a wall of many thousand cabinets than on a small one.

namespace {

constexpr int leastNamed = 44;    ///< of a cabinet that shows its name, in pixels of the screen
constexpr int leastOutlined = 4;  ///< likewise, that has lines around it
constexpr int leastCabled = 20;   ///< likewise, whose cables are more than thin lines
constexpr int leastPixelGrid = 8; ///< of a pixel of the wall, likewise

const QColor darkCabinet(38, 43, 54);
const QColor lightCabinet(54, 61, 76);
const QColor cabinetLine(92, 102, 124);
const QColor cabinetName(220, 226, 238);
const QColor turnedMark(255, 178, 64);

/// Neighbours are far apart from one another.
QColor cableColor(std::size_t number, bool isData)
{
    const int hue = int(number * 67 + (isData ? 48 : 190)) % 360;
    return QColor::fromHsv(hue, isData ? 190 : 120, 255);
}

/// A corner of the cabinet that is its upper left one as it hangs.
QPolygon turnedCorner(const QRect& view, int degrees)
{
    const int side = std::min(10, std::min(view.width(), view.height()) / 3);
    const QPoint corner = degrees == 90    ? view.topRight()
                          : degrees == 180 ? view.bottomRight()
                                           : view.bottomLeft();
    const QPoint across(corner.x() == view.left() ? side : -side, 0);
    const QPoint down(0, corner.y() == view.top() ? side : -side);
    return QPolygon(QVector<QPoint>{corner, corner + across, corner + down});
}

/// A round mark where a cable begins, a square one where it ends.
void drawEnds(QPainter& painter, const QPolygon& line, int mark)
{
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(line.first(), mark, mark);
    painter.drawRect(QRect(line.last() - QPoint(mark, mark) / 2, QSize(mark, mark)));
}

} // namespace

void WallCanvas::paintEvent(QPaintEvent*)
{
    if (m_isSceneOld || m_scene.size() != viewport()->size() * devicePixelRatioF())
        drawScene();
    QPainter painter(viewport());
    painter.drawPixmap(0, 0, m_scene);
    drawSelection(painter);
    drawCable(painter);
    if (!hasFocus())
        return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
}

void WallCanvas::drawScene()
{
    m_scene = QPixmap(viewport()->size() * devicePixelRatioF());
    m_scene.setDevicePixelRatio(devicePixelRatioF());
    m_scene.fill(palette().color(QPalette::Base));
    QPainter painter(&m_scene);
    const QRect seen = viewport()->rect();
    drawCabinets(painter, seen);
    drawRuns(painter, true);
    drawRuns(painter, false);
    drawNames(painter, seen);
    m_isSceneOld = false;
}

void WallCanvas::drawCabinets(QPainter& painter, const QRect& seen)
{
    for (const WallCabinet& cabinet : m_model->plan().cabinets()) {
        const QRect view = toView(cabinet.rect);
        if (!view.intersects(seen))
            continue;
        const bool isOutlined = view.width() >= leastOutlined && view.height() >= leastOutlined;
        const bool isDark = (cabinet.at.column + cabinet.at.row) % 2 == 0;
        if (isOutlined)
            painter.fillRect(view, cabinetLine);
        painter.fillRect(isOutlined ? view.adjusted(0, 0, -1, -1) : view,
                         isDark ? darkCabinet : lightCabinet);
        if (cabinet.turned == 0 || !isOutlined)
            continue;
        painter.setPen(Qt::NoPen);
        painter.setBrush(turnedMark);
        painter.drawPolygon(turnedCorner(view.adjusted(0, 0, -1, -1), cabinet.turned));
    }
    if (m_zoom < leastPixelGrid)
        return;
    painter.setPen(QColor(255, 255, 255, 24));
    const QRect wall = toView(QRect(QPoint(), m_model->plan().size()));
    for (double x = wall.left(); x <= wall.right(); x += m_zoom)
        painter.drawLine(QPointF(x, std::max(0, wall.top())),
                         QPointF(x, std::min(seen.bottom(), wall.bottom())));
    for (double y = wall.top(); y <= wall.bottom(); y += m_zoom)
        painter.drawLine(QPointF(std::max(0, wall.left()), y),
                         QPointF(std::min(seen.right(), wall.right()), y));
}

void WallCanvas::drawNames(QPainter& painter, const QRect& seen)
{
    const QSize usual = m_model->plan().usualCabinet() * m_zoom;
    if (usual.width() < leastNamed || usual.height() < leastNamed / 2)
        return;
    const std::vector<QString>& names = m_model->names();
    painter.setPen(cabinetName);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const QRect view = toView(m_model->plan().cabinets()[i].rect);
        const QRect room = view.adjusted(3, 1, -3, -1);
        if (view.intersects(seen) && room.width() > 0)
            painter.drawText(room, Qt::AlignLeft | Qt::AlignTop,
                             painter.fontMetrics().elidedText(names[i], Qt::ElideRight, room.width()));
    }
}

/// From middle to middle, those of data a little above those of power.
void WallCanvas::drawRuns(QPainter& painter, bool isData)
{
    const std::vector<CableRun>& runs = isData ? m_model->dataRuns() : m_model->powerRuns();
    const QSize usual = m_model->plan().usualCabinet() * m_zoom;
    const int side = std::min(usual.width(), usual.height());
    if (side < leastOutlined)
        return; // they would only cover the wall
    const int away = isData ? -side / 10 : side / 10;
    const QPoint shift(away, away);
    const bool isThin = side < leastCabled; // antialiased or dotted they would take the longest of all
    painter.setRenderHint(QPainter::Antialiasing, !isThin);
    for (std::size_t i = 0; i < runs.size(); ++i) {
        QPolygon line;
        for (const int cabinet : runs[i].cabinets)
            line.append(toView(m_model->plan().cabinets()[std::size_t(cabinet)].rect).center() + shift);
        if (!line.boundingRect().adjusted(-side, -side, side, side).intersects(viewport()->rect()))
            continue;
        const QColor color = cableColor(i, isData);
        painter.setPen(QPen(color, isThin ? 1 : std::clamp(side / 24.0, 1.0, 4.0),
                            isData || isThin ? Qt::SolidLine : Qt::DotLine));
        painter.setBrush(color);
        painter.drawPolyline(line);
        if (!isThin)
            drawEnds(painter, line, std::clamp(side / 9, 1, 7));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void WallCanvas::drawSelection(QPainter& painter)
{
    const QColor color = palette().color(QPalette::Highlight);
    QColor veil = color;
    veil.setAlpha(90);
    painter.setPen(QPen(color, 2));
    for (const Place place : m_selection) {
        const QRect view = rectOf(place);
        if (!view.intersects(viewport()->rect()))
            continue;
        painter.fillRect(view, veil);
        if (view.width() > 8 && view.height() > 8)
            painter.drawRect(view.adjusted(1, 1, -2, -2));
    }
}

void WallCanvas::drawCable(QPainter& painter)
{
    if (m_cable.empty())
        return;
    QPolygon line;
    for (const Place place : m_cable)
        line.append(rectOf(place).center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::white);
    painter.drawPolyline(line);
    painter.drawEllipse(line.first(), 6, 6);
}
