#pragma once

#include "chartinput.h"
#include "pulledcables.h"

#include <chartcomparison.h>

/// The cabinets of a chart as a comparison tells of them, and the cables that they hang on. Those of a show's
/// output are called by their wall, too: "Left C4".
class ChartCabinetGrid
{
public:
    explicit ChartCabinetGrid(const ChartInput& chart);

    const ChartComparison::CabinetGrid& cabinets() const { return m_grid; }

    /// Takes what a comparison by these cabinets found: gives the places of a wall's cabinets to it, and
    /// notes which cables look pulled.
    void take(ChartComparison::Result& result);

    const std::vector<PulledCable>& pulledCables() const { return m_pulled; }

private:
    struct SeenCabinet
    {
        std::size_t wall;
        std::size_t cabinet;
    };
    void addWall(const vardeno::walls::WallDocument& wall,
                 const vardeno::testcharttools::TestChartToolsData& record, const QString& name);
    void addCabinet(std::size_t wall, std::size_t cabinet, const QRect& rect);
    void addShow(const ShowInput& show, int output);
    void placeCabinets(std::vector<ChartComparison::CabinetPlace>& cabinets) const;
    void placeFinding(ChartComparison::Finding& finding) const;

    ChartComparison::CabinetGrid m_grid;
    std::vector<SeenWall> m_walls;
    std::vector<SeenCabinet> m_seen; ///< one for each cabinet of the grid; none for a record
    std::vector<PulledCable> m_pulled;
};
