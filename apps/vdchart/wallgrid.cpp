#include "wallgrid.h"

#include "cabinetgrid.h"

#include <cabinetorder.h>
#include <runfaults.h>

#include <QJsonObject>

using namespace vardeno::walls;

namespace {

/// In one row: a wall's cabinets are told apart by their numbers until their places are given to them.
ChartComparison::CabinetGrid gridOf(const WallDocument& wall,
                                    const vardeno::testcharttools::TestChartToolsData& record)
{
    const CabinetPlan plan(wall);
    const std::vector<QString> names = cabinetNames(wall, plan, record);
    ChartComparison::CabinetGrid grid;
    grid.columns = int(names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        grid.cabinets.push_back({plan.cabinets()[i].rect, names[i]});
    return grid;
}

void placeCabinets(std::vector<ChartComparison::CabinetPlace>& cabinets, const CabinetPlan& plan)
{
    for (ChartComparison::CabinetPlace& cabinet : cabinets) {
        const Place at = plan.cabinets()[std::size_t(cabinet.column)].at;
        cabinet.column = at.column;
        cabinet.row = at.row;
    }
}

void placeFinding(ChartComparison::Finding& finding, const CabinetPlan& plan)
{
    placeCabinets(finding.cabinets, plan);
    if (auto* difference = std::get_if<ChartComparison::PixelDifference>(&finding.details))
        placeCabinets(difference->lookalike, plan);
    for (ChartComparison::Finding& alternative : finding.alternatives)
        placeFinding(alternative, plan);
}

/// A cabinet without data or power is dark or shows anything.
bool isOfPulledCable(ChartComparison::Kind kind)
{
    return kind == ChartComparison::Kind::CabinetMissing || kind == ChartComparison::Kind::CabinetDiffers;
}

} // namespace

ChartCabinetGrid::ChartCabinetGrid(const ChartInput& chart)
    : m_chart(chart)
    , m_grid(chart.wall ? gridOf(*chart.wall, chart.record) : cabinetsOf(chart.record))
{
}

void ChartCabinetGrid::take(ChartComparison::Result& result)
{
    if (!m_chart.wall)
        return;
    const CabinetPlan plan(*m_chart.wall);
    std::vector<bool> bad(plan.cabinets().size(), false);
    for (ChartComparison::Finding& finding : result.findings) {
        for (const ChartComparison::CabinetPlace& cabinet : finding.cabinets) {
            if (isOfPulledCable(finding.kind))
                bad[std::size_t(cabinet.column)] = true;
        }
        placeFinding(finding, plan);
    }
    noteCables(plan, bad, true);
    noteCables(plan, bad, false);
}

void ChartCabinetGrid::noteCables(const CabinetPlan& plan, const std::vector<bool>& bad, bool isData)
{
    const std::vector<CableRun> runs =
        isData ? dataRuns(*m_chart.wall, plan) : powerRuns(*m_chart.wall, plan);
    for (const RunFault& fault : faultyRuns(runs, bad)) {
        const std::vector<int>& cabinets = runs[std::size_t(fault.run)].cabinets;
        const int first = cabinets[std::size_t(fault.from)];
        m_pulled.push_back({isData, fault.run + 1, m_grid.cabinets[std::size_t(first)].name,
                            int(cabinets.size()) - fault.from, fault.from == 0});
    }
}

QStringList ChartCabinetGrid::sentences() const
{
    QStringList sentences;
    for (const PulledCable& cable : m_pulled) {
        const QString which =
            QStringLiteral("%1 %2").arg(QLatin1String(cable.isData ? "port" : "circuit")).arg(cable.number);
        const QString where = cable.isWhole
                                  ? which + QStringLiteral(": all its %1 cabinets are wrong")
                                  : which + QStringLiteral(" from cabinet %2 on: %1 cabinets are wrong");
        sentences.append((cable.isWhole ? where.arg(cable.cabinets)
                                        : where.arg(QString::number(cable.cabinets), cable.from)) +
                         QStringLiteral(", which is what a pulled %1 cable looks like")
                             .arg(QLatin1String(cable.isData ? "data" : "power")));
    }
    return sentences;
}

QJsonArray ChartCabinetGrid::json() const
{
    QJsonArray cables;
    for (const PulledCable& cable : m_pulled)
        cables.append(QJsonObject{{QStringLiteral("cable"), QLatin1String(cable.isData ? "data" : "power")},
                                  {QStringLiteral("number"), cable.number},
                                  {QStringLiteral("from"), cable.from},
                                  {QStringLiteral("cabinets"), cable.cabinets}});
    return cables;
}
