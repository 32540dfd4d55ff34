#include "pulledcables.h"

#include <cabinetorder.h>
#include <runfaults.h>

#include <QJsonObject>

#include <algorithm>

using namespace vardeno::walls;

namespace {

std::vector<CableRun> seenRuns(const SeenWall& wall, bool isData)
{
    std::vector<CableRun> runs =
        isData ? dataRuns(wall.document, wall.plan) : powerRuns(wall.document, wall.plan);
    for (CableRun& run : runs) {
        const auto isUnseen = [&](int cabinet) { return !wall.seen[std::size_t(cabinet)]; };
        run.cabinets.erase(std::remove_if(run.cabinets.begin(), run.cabinets.end(), isUnseen),
                           run.cabinets.end());
    }
    return runs;
}

QString sentenceOf(const PulledCable& cable)
{
    const QString wall = cable.wall.isEmpty() ? QString() : cable.wall + QLatin1String(": ");
    const QString which =
        QStringLiteral("%1 %2").arg(QLatin1String(cable.isData ? "port" : "circuit")).arg(cable.number);
    const QString where = cable.isWhole
                              ? QStringLiteral(": all its %1 cabinets are wrong").arg(cable.cabinets)
                              : QStringLiteral(" from cabinet %2 on: %1 cabinets are wrong")
                                    .arg(QString::number(cable.cabinets), cable.from);
    return wall + which + where +
           QStringLiteral(", which is what a pulled %1 cable looks like")
               .arg(QLatin1String(cable.isData ? "data" : "power"));
}

} // namespace

SeenWall::SeenWall(const WallDocument& wall, const vardeno::testcharttools::TestChartToolsData& record,
                   const QString& wallName)
    : document(wall)
    , name(wallName)
    , plan(wall)
    , names(cabinetNames(wall, plan, record))
    , seen(names.size(), false)
    , bad(names.size(), false)
{
}

std::vector<PulledCable> pulledCables(const SeenWall& wall)
{
    std::vector<PulledCable> pulled;
    for (const bool isData : {true, false}) {
        const std::vector<CableRun> runs = seenRuns(wall, isData);
        for (const RunFault& fault : faultyRuns(runs, wall.bad)) {
            const std::vector<int>& cabinets = runs[std::size_t(fault.run)].cabinets;
            const int first = cabinets[std::size_t(fault.from)];
            pulled.push_back({wall.name, isData, fault.run + 1, wall.names[std::size_t(first)],
                              int(cabinets.size()) - fault.from, fault.from == 0});
        }
    }
    return pulled;
}

QStringList sentencesOf(const std::vector<PulledCable>& cables)
{
    QStringList sentences;
    for (const PulledCable& cable : cables)
        sentences.append(sentenceOf(cable));
    return sentences;
}

QJsonArray jsonOf(const std::vector<PulledCable>& cables)
{
    QJsonArray list;
    for (const PulledCable& cable : cables) {
        QJsonObject told{{QStringLiteral("cable"), QLatin1String(cable.isData ? "data" : "power")},
                         {QStringLiteral("number"), cable.number},
                         {QStringLiteral("from"), cable.from},
                         {QStringLiteral("cabinets"), cable.cabinets}};
        if (!cable.wall.isEmpty())
            told.insert(QStringLiteral("wall"), cable.wall);
        list.append(told);
    }
    return list;
}
