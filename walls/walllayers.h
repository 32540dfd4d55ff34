#pragma once

#include "cabinetlayers.h"
#include "cabinettextlayer.h"
#include "edgelayer.h"
#include "layers/chartlayers.h"
#include "runlayer.h"

#include <memory>

namespace vardeno::walls {

/// All layers of a wall and of its record, as values. They refer to one another: it stays where it is.
class WallLayers
{
public:
    WallLayers(const WallDocument& wall, const testcharttools::TestChartToolsData& record,
               const testcharttools::ChartCaptions& captions, const testcharttools::MarkerData& markers);
    WallLayers(const WallLayers&) = delete;
    WallLayers& operator=(const WallLayers&) = delete;

    QSize size() const { return m_plan.size(); }
    /// Those that draw anything, bottom to top; fitted.
    std::vector<const testcharttools::ChartLayer*> drawn() const;

private:
    void replaceUneven(const testcharttools::TestChartToolsData& record);
    void addOwn(const WallDocument& wall, const testcharttools::TestChartToolsData& record);
    CabinetTextLayer textsOf(const WallDocument& wall) const;

    const CabinetPlan m_plan;
    testcharttools::ChartLayers m_record;
    std::unique_ptr<UnevenChessLayer> m_chess;     ///< instead of the record's
    std::unique_ptr<UnevenLabelLayer> m_labels;    ///< instead of the record's
    std::unique_ptr<UnevenMarkerLayer> m_markers;  ///< instead of the record's
    std::vector<std::unique_ptr<WallLayer>> m_own; ///< over all of the record's
};

} // namespace vardeno::walls
