#pragma once

#include "cabinetplan.h"
#include "geometry/cabinetlabels.h"
#include "geometry/cabinetmarkers.h"
#include "layers/chartlayer.h"

#include <QColor>

namespace vardeno::walls {

/// The chessboard of a record on cabinets of several sizes.
class UnevenChessLayer : public testcharttools::ChartLayer
{
public:
    testcharttools::LayerCoverage coverage() const override;
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    const CabinetPlan* plan = nullptr;
    QColor oddColor; ///< of the top left place
    QColor evenColor;
};

/// The font's pixel size that is left of `requested` so that labels fit the smallest cabinet.
int fittedLabelSize(const CabinetPlan& plan, int requested);

/// The labels of a record in cabinets of several sizes.
class UnevenLabelLayer : public testcharttools::ChartLayer
{
public:
    bool hasTexts() const override { return true; }
    void fit(const QSize& chart) override;
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    const CabinetPlan* plan = nullptr;
    testcharttools::LabelStyle style;
    int size = 15; ///< font pixels, fewer where cabinets are small
    QColor color;

    int fittedSize = 15; ///< found by `fit`
};

/// The coded markers of a record in cabinets of several sizes.
class UnevenMarkerLayer : public testcharttools::ChartLayer
{
public:
    using ChartLayer::draw;
    void draw(QPainter& painter, const QSize& chart, const QRect& area) const override;

    std::vector<testcharttools::CabinetMarker> markers;
};

} // namespace vardeno::walls
