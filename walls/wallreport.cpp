#include "wallreport.h"

#include "cabinetorder.h"
#include "cableruns.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace vardeno::walls::WallReport {

namespace {

/// Millimetres for a pixel, by the pitch or by the size of a usual cabinet; 0 where it is not known.
double pitchOf(const WallDocument& wall, const CabinetPlan& plan)
{
    if (wall.physical.pitch > 0)
        return wall.physical.pitch / 1000.0;
    return double(wall.physical.width) / plan.usualCabinet().width();
}

qint64 linkLength(const CabinetPlan& plan, int from, int to, double pitch)
{
    const QPointF way = QRectF(plan.cabinets()[std::size_t(to)].rect).center() -
                        QRectF(plan.cabinets()[std::size_t(from)].rect).center();
    return std::llround(std::sqrt(QPointF::dotProduct(way, way)) * pitch);
}

CableRow rowOf(const WallDocument& wall, const CabinetPlan& plan, const std::vector<QString>& names,
               const CableRun& run)
{
    const double pitch = pitchOf(wall, plan);
    CableRow row;
    row.first = names[std::size_t(run.cabinets.front())];
    row.last = names[std::size_t(run.cabinets.back())];
    row.cabinets = int(run.cabinets.size());
    row.pixels = run.pixels;
    row.watts = wattsOf(wall, plan, run.pixels);
    row.amperes = double(row.watts) / wall.power.voltage;
    for (std::size_t i = 1; i < run.cabinets.size(); ++i) {
        const qint64 length = linkLength(plan, run.cabinets[i - 1], run.cabinets[i], pitch);
        row.linkLength += length;
        row.longestLink = std::max(row.longestLink, length);
    }
    return row;
}

std::vector<CableRow> rowsOf(const WallDocument& wall, const testcharttools::TestChartToolsData& record,
                             bool isData)
{
    const CabinetPlan plan(wall);
    const std::vector<QString> names = cabinetNames(wall, plan, record);
    std::vector<CableRow> rows;
    for (const CableRun& run : isData ? dataRuns(wall, plan) : powerRuns(wall, plan)) {
        CableRow row = rowOf(wall, plan, names, run);
        row.number = int(rows.size()) + 1;
        row.load = isData ? double(row.pixels) / double(std::max<qint64>(portCapacity(wall.data), 1))
                          : double(row.watts) / wall.power.circuitWatts;
        rows.push_back(row);
    }
    return rows;
}

/// Of each cabinet the number of its cable and its place in it, both from 1; 0 for none.
struct CablePlace
{
    int number = 0;
    int place = 0;
};

std::vector<CablePlace> placesIn(const std::vector<CableRun>& runs, std::size_t cabinets)
{
    std::vector<CablePlace> places(cabinets);
    for (std::size_t i = 0; i < runs.size(); ++i) {
        for (std::size_t j = 0; j < runs[i].cabinets.size(); ++j)
            places[std::size_t(runs[i].cabinets[j])] = {int(i) + 1, int(j) + 1};
    }
    return places;
}

QString cell(const QString& text)
{
    static const QString special = QStringLiteral(",\"\r\n");
    const bool quoted =
        std::any_of(text.begin(), text.end(), [](QChar character) { return special.contains(character); });
    return quoted ? QLatin1Char('"') + QString(text).replace(QLatin1Char('"'), QLatin1String("\"\"")) +
                        QLatin1Char('"')
                  : text;
}

QString known(qint64 number)
{
    return number > 0 ? QString::number(number) : QString();
}

QByteArray cableLine(const char* kind, const CableRow& row)
{
    QStringList cells = {QLatin1String(kind),
                         QString::number(row.number),
                         cell(row.first),
                         cell(row.last),
                         QString::number(row.cabinets),
                         QString::number(row.pixels),
                         QString::number(100 * row.load, 'f', 1),
                         known(row.watts)};
    cells.append(row.watts > 0 ? QString::number(row.amperes, 'f', 2) : QString());
    cells.append({known(row.linkLength), known(row.longestLink)});
    return cells.join(QLatin1Char(',')).toUtf8() + "\r\n";
}

} // namespace

std::vector<CableRow> dataRows(const WallDocument& wall, const testcharttools::TestChartToolsData& record)
{
    return rowsOf(wall, record, true);
}

std::vector<CableRow> powerRows(const WallDocument& wall, const testcharttools::TestChartToolsData& record)
{
    return rowsOf(wall, record, false);
}

QByteArray csv(const WallDocument& wall, const testcharttools::TestChartToolsData& record)
{
    const CabinetPlan plan(wall);
    const std::vector<QString> names = cabinetNames(wall, plan, record);
    const auto ports = placesIn(dataRuns(wall, plan), names.size());
    const auto circuits = placesIn(powerRuns(wall, plan), names.size());
    const qint64 usual = qint64(plan.usualCabinet().width()) * plan.usualCabinet().height();
    QByteArray table =
        "name,column,row,columns,rows,x,y,width,height,turned,port,place in port,circuit,place in "
        "circuit,watts,grams\r\n";
    for (std::size_t i = 0; i < names.size(); ++i) {
        const WallCabinet& cabinet = plan.cabinets()[i];
        const qint64 pixels = qint64(cabinet.rect.width()) * cabinet.rect.height();
        QStringList cells = {cell(names[i])};
        for (const int number :
             {cabinet.at.column + 1, cabinet.at.row + 1, cabinet.columns, cabinet.rows, cabinet.rect.x(),
              cabinet.rect.y(), cabinet.rect.width(), cabinet.rect.height(), cabinet.turned})
            cells.append(QString::number(number));
        for (const qint64 number :
             {qint64(ports[i].number), qint64(ports[i].place), qint64(circuits[i].number),
              qint64(circuits[i].place), wattsOf(wall, plan, pixels),
              (pixels * wall.physical.grams + usual - 1) / usual})
            cells.append(known(number));
        table += cells.join(QLatin1Char(',')).toUtf8() + "\r\n";
    }
    return table;
}

QByteArray cableCsv(const WallDocument& wall, const testcharttools::TestChartToolsData& record)
{
    QByteArray table =
        "cable,number,first,last,cabinets,pixels,load percent,watts,amperes,links mm,longest link mm\r\n";
    for (const CableRow& row : dataRows(wall, record))
        table += cableLine("port", row);
    for (const CableRow& row : powerRows(wall, record))
        table += cableLine("circuit", row);
    return table;
}

WallDocument mirrored(const WallDocument& wall, const testcharttools::TestChartToolsData& record)
{
    const CabinetPlan plan(wall);
    const std::vector<QString> names = cabinetNames(wall, plan, record);
    WallDocument back = wall;
    std::reverse(back.columnWidths.pixels.begin(), back.columnWidths.pixels.end());
    back.exceptions.list.clear();
    const auto across = [&plan](Place place, int columns) {
        return Place{plan.columns() - place.column - columns, place.row};
    };
    for (const CabinetException& exception : wall.exceptions.list) {
        if (exception.missing) {
            back.exceptions.list.push_back(exception);
            back.exceptions.list.back().at = across(exception.at, exception.columns);
        }
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        const WallCabinet& cabinet = plan.cabinets()[i];
        back.exceptions.list.push_back({across(cabinet.at, cabinet.columns),
                                        false,
                                        (360 - cabinet.turned) % 360,
                                        cabinet.columns,
                                        cabinet.rows,
                                        names[i].toStdString(),
                                        {}});
    }
    const auto mirror = [&](CableLists& lists, const std::vector<CableRun>& runs) {
        lists.runs.clear();
        for (const CableRun& run : runs) {
            lists.runs.emplace_back();
            for (const int index : run.cabinets) {
                const WallCabinet& cabinet = plan.cabinets()[std::size_t(index)];
                lists.runs.back().push_back(across(cabinet.at, cabinet.columns));
            }
        }
    };
    mirror(back.data.path.byHand, dataRuns(wall, plan));
    mirror(back.power.path.byHand, powerRuns(wall, plan));
    return back;
}

} // namespace vardeno::walls::WallReport
