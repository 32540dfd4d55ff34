#pragma once

#include "cableruns.h"
#include "edgelayer.h"

#include <QPointF>
#include <QString>

#include <vector>

namespace vardeno::walls {

/// A cable as it is drawn: through these points, with a mark on its first and its last one.
struct DrawnRun
{
    std::vector<QPointF> points;
    QRectF bounds; ///< of all its ink
    QColor color;
    QString start; ///< what stands in the round mark where it is fed
    QString end;   ///< and in the square mark at its end; may be empty
};

/// Cables from cabinet to cabinet, with arrows in their way.
class RunLayer : public WallLayer
{
public:
    bool hasTexts() const override { return true; }
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    std::vector<DrawnRun> runs;
    double width = 4;
    double mark = 12;     ///< half the side of a mark
    bool striped = false; ///< with a dark line in the middle

private:
    void drawLines(QPainter& painter, const DrawnRun& run, const QColor& color, double width,
                   const QRect& area) const;
    void drawArrows(QPainter& painter, const DrawnRun& run, const QRect& area) const;
    void drawMarks(QPainter& painter, const DrawnRun& run, const QRect& area) const;
    void drawText(QPainter& painter, const QPointF& at, const QString& text, const QRect& area) const;
};

/// How cables of one kind look on a wall.
struct RunLook
{
    QString startPrefix; ///< before the number: "D" of "D1"
    QString endPrefix;   ///< likewise at the end; empty for no text there
    bool isAlone = true; ///< in the middles of cabinets; beside cables of the other kind otherwise,
    bool isAbove = true; ///< left and above of them or right and below
    int firstColor = 0;  ///< in the row of colours
    int width = 0;       ///< pixels, 0 for what suits the cabinets
};

RunLayer runLayer(const CabinetPlan& plan, const std::vector<CableRun>& runs, const RunLook& look);

} // namespace vardeno::walls
