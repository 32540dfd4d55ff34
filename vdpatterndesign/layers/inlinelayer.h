#pragma once

#include "geometry/cabinetlabels.h"
#include "layers/chartlayer.h"

#include <QColor>

namespace vardeno::testcharttools {

/// The diagonals of the whole screen, a circle against each of two opposite edges, and in every cabinet a
/// label and a coded marker.
class VDCHARTCORE_EXPORT InlineLayer : public ChartLayer
{
public:
    LayerCoverage coverage() const override;
    bool hasTexts() const override { return serialVisible; }
    void fit(const QSize& chart) override;
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    QColor circleColor = QColor(0x00, 0xff, 0x00);
    QColor diagonalColor = QColor(0x00, 0xff, 0x00);
    ushort circleLineWidth = 6;
    ushort diagonalLineWidth = 6;
    ushort circleRadius = 535; ///< less where the chart is smaller
    bool circleVisible = true;
    bool diagonalVisible = true;
    bool serialVisible = true;
    ushort rows = 9;
    ushort columns = 16;
    ushort serialSize = 15; ///< font pixels, fewer where cabinets are small
    QColor serialColor = Qt::black;
    LabelStyle serial;
    bool markersVisible = false; ///< beside the labels, where cabinets have room for them

    ushort effectiveDiameter = 0;  ///< found by `fit`, and so is
    ushort workingSerialSize = 15; ///< this; each while what it is for is visible
    int labelHeight = 0;           ///< of a line, while markers are visible; 0 without labels

private:
    void drawDiagonals(QPainter& painter, const QSize& chart, const QRect& area) const;
    void drawCircles(QPainter& painter, const QSize& chart, const QRect& area) const;
    void drawMarkers(QPainter& painter, const QSize& chart, const QRect& area) const;
};

} // namespace vardeno::testcharttools
