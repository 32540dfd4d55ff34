#include "readinggrid.h"

#include "cabinetgrid.h"
#include "readingmarkers.h"

#include <wallmarkers.h>

#include <algorithm>

namespace {

/// A cabinet without data or power is dark or shows anything.
bool isOfPulledCable(WallReading::Kind kind)
{
    return kind == WallReading::Kind::Dark || kind == WallReading::Kind::Flat ||
           kind == WallReading::Kind::Other;
}

} // namespace

ReadingGrid::ReadingGrid(const ChartInput& chart)
{
    if (!chart.wall) {
        m_grid = cabinetsOf(chart.record);
        m_markers = readingMarkers(chart.record, chart.markers);
        return;
    }
    m_wall.emplace(*chart.wall, chart.record, QString());
    addPlaces();
    if (chart.markers.showMarkers)
        addMarkers(chart);
}

/// That of a cabinet that spans places is in the place that has its middle.
void ReadingGrid::addMarkers(const ChartInput& chart)
{
    const auto holds = [](const QPoint& middle) {
        return [middle](const ChartComparison::Cabinet& cabinet) { return cabinet.rect.contains(middle); };
    };
    for (const auto& [marker, square] : vardeno::walls::cabinetMarkers(m_wall->plan, chart.record)) {
        const auto place =
            std::find_if(m_grid.cabinets.begin(), m_grid.cabinets.end(), holds(square.center()));
        if (!square.isEmpty() && place != m_grid.cabinets.end())
            m_markers.push_back({marker, std::size_t(place - m_grid.cabinets.begin()), square});
    }
}

void ReadingGrid::addPlaces()
{
    const vardeno::walls::CabinetPlan& plan = m_wall->plan;
    m_grid.columns = plan.columns();
    for (int row = 0; row < plan.rows(); ++row) {
        for (int column = 0; column < plan.columns(); ++column) {
            const int cabinet = plan.cabinetAt(vardeno::walls::Place{column, row});
            m_grid.cabinets.push_back({plan.rect({column, row}), cabinet < 0
                                                                     ? QStringLiteral("a hole")
                                                                     : m_wall->names[std::size_t(cabinet)]});
        }
    }
}

void ReadingGrid::take(WallReading::Reading& reading)
{
    if (!m_wall || !reading.isLocated)
        return;
    const vardeno::walls::CabinetPlan& plan = m_wall->plan;
    m_wall->seen.assign(m_wall->names.size(), true);
    std::vector<bool> isTold(m_wall->names.size(), false);
    const auto isLeftOut = [&](WallReading::Finding& finding) { // the worst ones come first
        const int cabinet =
            plan.cabinetAt(vardeno::walls::Place{finding.cabinet.column, finding.cabinet.row});
        if (cabinet < 0 || isTold[std::size_t(cabinet)])
            return true;
        isTold[std::size_t(cabinet)] = true;
        m_wall->bad[std::size_t(cabinet)] = isOfPulledCable(finding.kind);
        m_wall->seen[std::size_t(cabinet)] = finding.kind != WallReading::Kind::Hidden;
        const vardeno::walls::Place at = plan.cabinets()[std::size_t(cabinet)].at;
        finding.cabinet = {at.row, at.column};
        return false;
    };
    std::vector<WallReading::Finding> left;
    for (WallReading::Finding& finding : reading.findings) {
        if (!isLeftOut(finding))
            left.push_back(finding);
    }
    reading.findings = std::move(left);
    m_pulled = pulledCables(*m_wall);
}
