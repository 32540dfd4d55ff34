#include "wallgrid.h"

#include "cabinetgrid.h"

#include <cabinetorder.h>
#include <placedpart.h>
#include <runfaults.h>

#include <QJsonObject>

#include <algorithm>

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
    CabinetPlan plan(wall);
    std::vector<QString> names = cabinetNames(wall, plan, record);
    const std::size_t count = names.size();
    m_walls.push_back({wall, name, std::move(plan), std::move(names), std::vector<bool>(count, false),
                       std::vector<bool>(count, false)});
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
        noteCables(wall, true);
        noteCables(wall, false);
    }
}

/// Of cables that go on where the picture ends, what it shows of them.
void ChartCabinetGrid::noteCables(const SeenWall& wall, bool isData)
{
    std::vector<CableRun> runs =
        isData ? dataRuns(wall.document, wall.plan) : powerRuns(wall.document, wall.plan);
    for (CableRun& run : runs) {
        const auto isUnseen = [&](int cabinet) { return !wall.seen[std::size_t(cabinet)]; };
        run.cabinets.erase(std::remove_if(run.cabinets.begin(), run.cabinets.end(), isUnseen),
                           run.cabinets.end());
    }
    for (const RunFault& fault : faultyRuns(runs, wall.bad)) {
        const std::vector<int>& cabinets = runs[std::size_t(fault.run)].cabinets;
        const int first = cabinets[std::size_t(fault.from)];
        m_pulled.push_back({wall.name, isData, fault.run + 1, wall.names[std::size_t(first)],
                            int(cabinets.size()) - fault.from, fault.from == 0});
    }
}

QStringList ChartCabinetGrid::sentences() const
{
    QStringList sentences;
    for (const PulledCable& cable : m_pulled) {
        const QString wall = cable.wall.isEmpty() ? QString() : cable.wall + QLatin1String(": ");
        const QString which =
            QStringLiteral("%1 %2").arg(QLatin1String(cable.isData ? "port" : "circuit")).arg(cable.number);
        const QString where = cable.isWhole
                                  ? which + QStringLiteral(": all its %1 cabinets are wrong")
                                  : which + QStringLiteral(" from cabinet %2 on: %1 cabinets are wrong");
        sentences.append(wall +
                         (cable.isWhole ? where.arg(cable.cabinets)
                                        : where.arg(QString::number(cable.cabinets), cable.from)) +
                         QStringLiteral(", which is what a pulled %1 cable looks like")
                             .arg(QLatin1String(cable.isData ? "data" : "power")));
    }
    return sentences;
}

QJsonArray ChartCabinetGrid::json() const
{
    QJsonArray cables;
    for (const PulledCable& cable : m_pulled) {
        QJsonObject told{{QStringLiteral("cable"), QLatin1String(cable.isData ? "data" : "power")},
                         {QStringLiteral("number"), cable.number},
                         {QStringLiteral("from"), cable.from},
                         {QStringLiteral("cabinets"), cable.cabinets}};
        if (!cable.wall.isEmpty())
            told.insert(QStringLiteral("wall"), cable.wall);
        cables.append(told);
    }
    return cables;
}
