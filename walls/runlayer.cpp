#include "runlayer.h"

#include "distinctcolor.h"
#include "geometry/textfont.h"
#include "inkshapes.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vardeno::walls {

namespace {

const QColor casing(12, 12, 16); ///< around all lines, so that they stand out from any chart

double within(double shift, int side)
{
    constexpr double most = 0.2; // of the side of a small cabinet
    return std::clamp(shift, -most * side, most * side);
}

/// Cabinets of one column have their anchors below one another, whatever their heights are.
QPointF anchorOf(const WallCabinet& cabinet, double shift)
{
    const QRectF rect = cabinet.rect;
    return rect.center() + QPointF(within(shift, cabinet.rect.width()), within(shift, cabinet.rect.height()));
}

double casingOf(double width)
{
    return std::max(1.0, width * 0.3);
}

QRectF boundsOf(const std::vector<QPointF>& points, double margin)
{
    double left = points.front().x();
    double right = left;
    double top = points.front().y();
    double bottom = top;
    for (const QPointF& point : points) {
        left = std::min(left, point.x());
        right = std::max(right, point.x());
        top = std::min(top, point.y());
        bottom = std::max(bottom, point.y());
    }
    return QRectF(QPointF(left, top), QPointF(right, bottom)).adjusted(-margin, -margin, margin, margin);
}

QRectF square(const QPointF& centre, double half)
{
    return {centre.x() - half, centre.y() - half, 2 * half, 2 * half};
}

/// The start and the end of a cable to a single cabinet lie beside one another.
std::vector<QPointF> pointsOf(const CabinetPlan& plan, const CableRun& run, double shift, double mark)
{
    std::vector<QPointF> points;
    for (const int cabinet : run.cabinets)
        points.push_back(anchorOf(plan.cabinets()[std::size_t(cabinet)], shift));
    if (points.size() == 1) {
        const QPointF aside(1.4 * mark, 0);
        points = {points.front() - aside, points.front() + aside};
    }
    return points;
}

} // namespace

void RunLayer::draw(QPainter& painter, const QSize&, const QRect& area) const
{
    for (const DrawnRun& run : runs) {
        if (!run.bounds.intersects(area))
            continue;
        drawLines(painter, run, casing, width + 2 * casingOf(width), area);
        drawLines(painter, run, run.color, width, area);
        if (striped)
            drawLines(painter, run, casing, width * 0.3, area);
        drawArrows(painter, run, area);
        drawMarks(painter, run, area);
    }
}

void RunLayer::drawLines(QPainter& painter, const DrawnRun& run, const QColor& color, double lineWidth,
                         const QRect& area) const
{
    for (std::size_t i = 1; i < run.points.size(); ++i)
        drawInkLine(painter, color, run.points[i - 1], run.points[i], lineWidth, area);
}

void RunLayer::drawArrows(QPainter& painter, const DrawnRun& run, const QRect& area) const
{
    const double reach = width * 1.9;
    for (std::size_t i = 1; i < run.points.size(); ++i) {
        const QPointF along = run.points[i] - run.points[i - 1];
        if (std::hypot(along.x(), along.y()) < 3 * reach)
            continue; // there is no room for it
        const QPointF middle = (run.points[i] + run.points[i - 1]) / 2;
        drawInkArrow(painter, casing, middle, along, reach + 2.5 * casingOf(width), area);
        drawInkArrow(painter, run.color, middle, along, reach, area);
    }
}

void RunLayer::drawMarks(QPainter& painter, const DrawnRun& run, const QRect& area) const
{
    const double edge = casingOf(width);
    const QPointF start = run.points.front();
    const QPointF end = run.points.back();
    const double half = run.end.isEmpty() ? mark * 0.55 : mark * 0.9;
    drawInkBox(painter, casing, square(end, half + edge), half * 0.25 + edge, area);
    drawInkBox(painter, run.color, square(end, half), half * 0.25, area);
    drawInkDisc(painter, casing, start, mark + edge, area);
    drawInkDisc(painter, run.color, start, mark, area);
    drawText(painter, start, run.start, area);
    if (run.end.isEmpty())
        drawInkBox(painter, casing, square(end, half * 0.4), half * 0.1, area);
    else
        drawText(painter, end, run.end, area);
}

void RunLayer::drawText(QPainter& painter, const QPointF& at, const QString& text, const QRect& area) const
{
    const QRect box = square(at, mark).toAlignedRect();
    if (!box.intersects(area))
        return;
    QFont font = testcharttools::textFont();
    font.setBold(true);
    font.setPixelSize(std::clamp(int(mark * std::min(1.0, 2.4 / double(text.size()))), 1, 200));
    painter.setFont(font);
    painter.setPen(casing);
    painter.drawText(box.adjusted(-box.width(), 0, box.width(), 0), Qt::AlignCenter | Qt::TextDontClip, text);
}

RunLayer runLayer(const CabinetPlan& plan, const std::vector<CableRun>& runs, const RunLook& look)
{
    const QSize usual = plan.usualCabinet();
    const double side = std::min(usual.width(), usual.height());
    RunLayer layer;
    layer.width = look.width > 0 ? look.width : std::clamp(side / (look.isAlone ? 20 : 26), 1.5, 40.0);
    layer.mark = std::clamp(side * (look.isAlone ? 0.17 : 0.135), 2.5 * layer.width,
                            std::max(2.5 * layer.width, 160.0));
    const double shift = look.isAlone ? 0 : (look.isAbove ? -0.16 : 0.16) * side;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const QString number = QString::number(i + 1);
        DrawnRun run;
        run.points = pointsOf(plan, runs[i], shift, layer.mark);
        run.bounds = boundsOf(run.points, 2 * layer.mark + 4 * layer.width);
        run.color = distinctColor(int(i) + look.firstColor);
        run.start = look.startPrefix + number;
        run.end = look.endPrefix.isEmpty() ? QString() : look.endPrefix + number;
        layer.runs.push_back(std::move(run));
    }
    return layer;
}

} // namespace vardeno::walls
