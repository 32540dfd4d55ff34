#pragma once

#include "geometry/cabinetlabels.h"
#include "layers/chartlayer.h"

#include <QColor>

namespace vardeno::testcharttools {

/// The lines between the cabinets, and a label in every cabinet. With both switched off, as at first, it is
/// transparent.
class VDCHARTCORE_EXPORT SequenceLayer : public ChartLayer
{
public:
    LayerCoverage coverage() const override;
    bool hasTexts() const override { return labelsVisible; }
    void fit(const QSize& chart) override;
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    bool linesVisible = false;
    bool labelsVisible = false;
    ushort rows = 9;
    ushort columns = 16;
    ushort labelSize = 15; ///< font pixels, fewer where cabinets are small
    QColor lineColor = Qt::black;
    QColor labelColor = Qt::black;
    LabelStyle style;

    ushort fittedLabelSize = 15; ///< found by `fit`

private:
    void drawLines(QPainter& painter, const CabinetGrid& grid) const;
};

} // namespace vardeno::testcharttools
