#include "wallgrid.h"

#include "cabinetgrid.h"

#include <placedpart.h>

using namespace vardeno::walls;

namespace {

/// A cabinet without data or power is dark or shows anything.
bool isOfPulledCable(ChartComparison::Kind kind)
{
    return kind == ChartComparison::Kind::CabinetMissing || kind == ChartComparison::Kind::CabinetDiffers;
}

} // namespace

/// In one row: a wall's cabinets are told apart by their numbers until their places are given to them.
ChartCabinetGrid::ChartCabinetGrid(const ChartInput& chart)
{
    if (chart.show) {
        addShow(*chart.show, chart.output);
    } else if (chart.wall) {
        addWall(*chart.wall, chart.record, {});
        const std::vector<WallCabinet>& cabinets = m_walls.front().plan.cabinets();
        for (std::size_t i = 0; i < cabinets.size(); ++i)
            addCabinet(0, i, cabinets[i].rect);
    } else {
        m_grid = cabinetsOf(chart.record);
        return;
    }
    m_grid.columns = int(m_grid.cabinets.size());
}

void ChartCabinetGrid::addWall(const WallDocument& wall,
                               const vardeno::testcharttools::TestChartToolsData& record, const QString& name)
{
    m_walls.emplace_back(wall, record, name);
}

void ChartCabinetGrid::addCabinet(std::size_t wall, std::size_t cabinet, const QRect& rect)
{
    SeenWall& of = m_walls[wall];
    of.seen[cabinet] = true;
    const QString& name = of.names[cabinet];
    m_grid.cabinets.push_back({rect, of.name.isEmpty() ? name : of.name + QLatin1Char(' ') + name});
    m_seen.push_back({wall, cabinet});
}

/// What of their cabinets is to be seen on the output.
void ChartCabinetGrid::addShow(const ShowInput& show, int output)
{
    for (std::size_t i = 0; i < show.walls.size(); ++i)
        addWall(show.walls[i].wall, show.walls[i].record,
                QString::fromStdString(show.show.walls.list[i].name));
    const QRect picture(QPoint(), show.show.outputs.list[std::size_t(output)].size());
    for (const WallPlacement& placement : show.show.placements.list) {
        if (findOutput(show.show, placement.output) != output)
            continue;
        const auto wall = std::size_t(findWall(show.show, placement.wall));
        const CabinetPlan& plan = m_walls[wall].plan;
        const PlacedPart part(placement, plan.size());
        for (std::size_t i = 0; i < plan.cabinets().size(); ++i) {
            const QRect rect = part.toOutput(plan.cabinets()[i].rect & part.part()) & picture;
            if (!rect.isEmpty())
                addCabinet(wall, i, rect);
        }
    }
}

void ChartCabinetGrid::placeCabinets(std::vector<ChartComparison::CabinetPlace>& cabinets) const
{
    for (ChartComparison::CabinetPlace& cabinet : cabinets) {
        const SeenCabinet& seen = m_seen[std::size_t(cabinet.column)];
        const Place at = m_walls[seen.wall].plan.cabinets()[seen.cabinet].at;
        cabinet.column = at.column;
        cabinet.row = at.row;
    }
}

void ChartCabinetGrid::placeFinding(ChartComparison::Finding& finding) const
{
    placeCabinets(finding.cabinets);
    if (auto* difference = std::get_if<ChartComparison::PixelDifference>(&finding.details))
        placeCabinets(difference->lookalike);
    for (ChartComparison::Finding& alternative : finding.alternatives)
        placeFinding(alternative);
}

void ChartCabinetGrid::take(ChartComparison::Result& result)
{
    if (m_walls.empty())
        return;
    for (ChartComparison::Finding& finding : result.findings) {
        for (const ChartComparison::CabinetPlace& cabinet : finding.cabinets) {
            const SeenCabinet& seen = m_seen[std::size_t(cabinet.column)];
            if (isOfPulledCable(finding.kind))
                m_walls[seen.wall].bad[seen.cabinet] = true;
        }
        placeFinding(finding);
    }
    for (const SeenWall& wall : m_walls) {
        for (const PulledCable& cable : ::pulledCables(wall))
            m_pulled.push_back(cable);
    }
}
