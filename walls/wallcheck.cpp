#include "wallcheck.h"

#include "cabinetorder.h"
#include "cableruns.h"
#include "chartcheck.h"
#include "wallmarkers.h"

#include <QHash>

#include <algorithm>
#include <functional>

namespace vardeno::walls::WallCheck {

using namespace testcharttools;

namespace {

constexpr int mostTold = 10; ///< of one kind

/// "A-1, A-2 and 18 more".
QString listed(const QStringList& names)
{
    const QString first = QStringList(names.mid(0, mostTold)).join(QLatin1String(", "));
    return names.size() > mostTold ? first + QStringLiteral(" and %1 more").arg(names.size() - mostTold)
                                   : first;
}

/// What is looked at, computed once.
struct Look
{
    Look(const WallDocument& document, const WallFile::Chart& chart)
        : wall(document)
        , markers(WallFile::markersOf(document, chart.file))
        , plan(document)
        , names(cabinetNames(document, plan, chart.record))
    {
    }

    const WallDocument& wall;
    const MarkerData markers;
    const CabinetPlan plan;
    const std::vector<QString> names;
};

/// Runs that feed more than they can, and cabinets that hang on none.
QStringList runWarnings(const Look& look, const char* group, const char* what, const CablePath& path,
                        const std::vector<CableRun>& runs,
                        const std::function<QString(const CableRun&)>& overload)
{
    QStringList overloads;
    std::vector<bool> fed(look.plan.cabinets().size(), false);
    for (std::size_t i = 0; i < runs.size(); ++i) {
        for (const int cabinet : runs[i].cabinets)
            fed[std::size_t(cabinet)] = true;
        const QString problem = overload(runs[i]);
        if (!problem.isEmpty())
            overloads.append(QStringLiteral("%1.%2").arg(
                QLatin1String(group),
                problem.arg(QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(i + 1))));
    }
    QStringList warnings = overloads.mid(0, mostTold);
    if (overloads.size() > mostTold)
        warnings.append(QStringLiteral("%1: %2 more that feed too much")
                            .arg(QLatin1String(group))
                            .arg(overloads.size() - mostTold));
    QStringList unfed;
    for (std::size_t i = 0; i < fed.size(); ++i) {
        if (!fed[i])
            unfed.append(look.names[i]);
    }
    if (!path.byHand.runs.empty() && !unfed.isEmpty())
        warnings.append(QStringLiteral("%1.runs: %2 in no run: %3")
                            .arg(QLatin1String(group))
                            .arg(unfed.size() == 1 ? QStringLiteral("1 cabinet is")
                                                   : QStringLiteral("%1 cabinets are").arg(unfed.size()))
                            .arg(listed(unfed)));
    return warnings;
}

QStringList dataWarnings(const Look& look)
{
    const DataCabling& data = look.wall.data;
    const qint64 capacity = portCapacity(data);
    const auto overload = [&](const CableRun& run) {
        if (run.pixels > capacity)
            return QStringLiteral("portPixels: %4 has %1 pixels, %2 more than the %3 that it feeds")
                .arg(run.pixels)
                .arg(run.pixels - capacity)
                .arg(capacity);
        if (data.portCabinets > 0 && qint64(run.cabinets.size()) > data.portCabinets)
            return QStringLiteral("portCabinets: %3 has %1 cabinets, not %2")
                .arg(run.cabinets.size())
                .arg(data.portCabinets);
        return QString();
    };
    return runWarnings(look, "data", "port", data.path, dataRuns(look.wall, look.plan), overload);
}

QStringList powerWarnings(const Look& look)
{
    const int most = look.wall.power.circuitWatts;
    const auto overload = [&](const CableRun& run) {
        const qint64 watts = wattsOf(look.wall, look.plan, run.pixels);
        return watts > most ? QStringLiteral("circuitWatts: %4 takes %1 W, %2 more than the %3 that it feeds")
                                  .arg(watts)
                                  .arg(watts - most)
                                  .arg(most)
                            : QString();
    };
    QStringList warnings = runWarnings(look, "power", "circuit", look.wall.power.path,
                                       powerRuns(look.wall, look.plan), overload);
    if (look.wall.layers.powerRuns && powerRuns(look.wall, look.plan).empty())
        warnings.append(
            QStringLiteral("physical.watts: 0 leaves open what a cabinet takes; no power cables are drawn"));
    return warnings;
}

/// Labels of records wrap after 26 letters: only names that someone chose are looked at.
QStringList nameWarnings(const Look& look)
{
    QHash<QString, int> counts;
    for (const QString& name : look.names)
        ++counts[name];
    QStringList twice;
    for (const CabinetException& cabinet : look.wall.exceptions.list) {
        const QString name = QString::fromStdString(cabinet.name);
        if (!name.isEmpty() && counts.value(name) > 1 && !twice.contains(name))
            twice.append(name);
    }
    if (twice.isEmpty())
        return {};
    return {QStringLiteral("cabinets.exceptions: several cabinets are called %1").arg(listed(twice))};
}

QStringList physicalWarnings(const Look& look)
{
    const PhysicalCabinet& cabinet = look.wall.physical;
    QStringList warnings;
    const auto compare = [&](const char* field, int millimeters, int pixels) {
        const qint64 told = qint64(pixels) * cabinet.pitch; // micrometers
        if (cabinet.pitch > 0 && millimeters > 0 && std::abs(told - millimeters * 1000LL) > told / 100)
            warnings.append(QStringLiteral("physical.%1: %2 mm are not the %3 mm of %4 pixels of %5 µm")
                                .arg(QLatin1String(field))
                                .arg(millimeters)
                                .arg(told / 1000)
                                .arg(pixels)
                                .arg(cabinet.pitch));
    };
    compare("width", cabinet.width, look.plan.usualCabinet().width());
    compare("height", cabinet.height, look.plan.usualCabinet().height());
    return warnings;
}

QStringList markerWarnings(const Look& look, const TestChartToolsData& record)
{
    const std::vector<CabinetMarker> markers = cabinetMarkers(look.plan, record);
    const auto without = std::count_if(markers.begin(), markers.end(),
                                       [](const CabinetMarker& marker) { return marker.square.isEmpty(); });
    if (!look.markers.showMarkers || without == 0)
        return {};
    return {QStringLiteral("markerData.showMarkers: %1 of %2 cabinets have no room for a marker")
                .arg(without)
                .arg(markers.size())};
}

/// Those of its own grid do not count on an uneven wall.
QStringList chartWarnings(const Look& look, const WallFile::Chart& chart)
{
    const QString prefix = QLatin1String(chart.file.isEmpty() ? "chart.record." : "chart.path: ");
    QStringList warnings;
    const QStringList ofChart = look.plan.isUniform()
                                    ? ChartCheck::warnings(chart.record, look.markers)
                                    : ChartCheck::warnings(chart.record) + markerWarnings(look, chart.record);
    for (const QString& warning : ofChart) {
        const bool isOfGrid = warning.startsWith(QLatin1String("publicData.box"));
        if (look.plan.isUniform() || !isOfGrid)
            warnings.append(prefix + warning);
    }
    return warnings;
}

} // namespace

QStringList warnings(const WallDocument& wall, const WallFile::Chart& chart)
{
    const Look look(wall, chart);
    return physicalWarnings(look) + nameWarnings(look) + dataWarnings(look) + powerWarnings(look) +
           chartWarnings(look, chart);
}

} // namespace vardeno::walls::WallCheck
