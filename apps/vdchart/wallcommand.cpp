#include "arguments.h"
#include "cabinetmodels.h"
#include "chartapplication.h"
#include "chartinput.h"
#include "commands.h"
#include "fileclaims.h"
#include "newchart.h"
#include "outputfile.h"
#include "recordinput.h"

#include <chartrecordfile.h>
#include <wallfile.h>
#include <wallreport.h>

#include <QJsonDocument>

#include <algorithm>
#include <iostream>

using namespace vardeno::testcharttools;
using namespace vardeno::walls;

namespace {

Corner cornerOf(const std::string& name)
{
    const bool right = name.find("right") != std::string::npos;
    if (name.find("top") != std::string::npos)
        return right ? Corner::TopRight : Corner::TopLeft;
    return right ? Corner::BottomRight : Corner::BottomLeft;
}

/// The cabinet that is asked for, by its name or by its pixels.
CabinetModel modelOf(const std::string& cabinet)
{
    if (const CabinetModel* model = findCabinetModel(QString::fromStdString(cabinet)))
        return *model;
    return {{}, parsedPair("--cabinet", cabinet), {}, 0};
}

/// Only what is not as in a default record, which is what a person has to read.
QJsonObject shortDocument(const TestChartToolsData& record)
{
    QJsonObject document = QJsonDocument::fromJson(ChartRecordFile::toJson(record)).object();
    const QJsonObject standard = QJsonDocument::fromJson(ChartRecordFile::toJson({})).object();
    document.remove(QStringLiteral("$schema"));
    for (const QString& group : standard.keys()) {
        if (!standard.value(group).isObject())
            continue;
        QJsonObject members = document.value(group).toObject();
        const QJsonObject usual = standard.value(group).toObject();
        for (const QString& member : usual.keys()) {
            if (members.value(member) == usual.value(member))
                members.remove(member);
        }
        if (members.isEmpty())
            document.remove(group);
        else
            document.insert(group, members);
    }
    return document;
}

/// A quiet chart, on which names and cables are read: dark cabinets, thin circles, no labels, logo or texts.
QJsonObject chartFor(const WallDocument& wall)
{
    PublicChartData screen;
    screen.resolutionWidth = wall.columnWidths.total();
    screen.resolutionHeight = wall.rowHeights.total();
    screen.boxCol = wall.columnWidths.count();
    screen.boxRow = wall.rowHeights.count();
    TestChartToolsData record = newChart(screen);
    record.basicData.oddColor = {28, 32, 40, 255};
    record.basicData.evenColor = {48, 54, 66, 255};
    record.inLineData.circleColor = {150, 160, 178, 255};
    record.inLineData.showDiagonal = false;
    record.inLineData.showSerialNumber = false;
    record.logoData.showLogo = false;
    record.selfData.showSelfText = false;
    record.selfData.showResolution = false;
    return shortDocument(record);
}

void wireUp(WallDocument& wall, const WallArguments& asked)
{
    const Direction direction = asked.direction == "rows" ? Direction::Rows : Direction::Columns;
    const Pattern pattern = asked.backAndForth ? Pattern::BackAndForth
                            : asked.eachLine   ? Pattern::EachLine
                                               : Pattern::OneWay;
    wall.numbering = {NameStyle::Numbers, cornerOf(asked.start), direction, asked.backAndForth, 1,
                      asked.prefix,       asked.digits};
    wall.data.path = {cornerOf(asked.start), direction, pattern, {}};
    wall.power.path = wall.data.path;
    wall.data.portPixels = asked.portPixels;
    wall.data.bitDepth = asked.bitDepth;
    wall.data.frameRate = asked.frameRate;
    wall.data.backup = asked.backup;
    wall.physical.watts = asked.watts;
    wall.power.circuitWatts = asked.circuitWatts;
}

WallDocument newWall(const WallArguments& asked)
{
    const CabinetModel model = modelOf(asked.cabinet);
    const QSize size = parsedPair("--size", asked.size);
    WallDocument wall;
    wall.name = asked.name;
    wall.columnWidths.pixels.assign(std::size_t(size.width()), model.pixels.width());
    wall.rowHeights.pixels.assign(std::size_t(size.height()), model.pixels.height());
    wall.physical.width = std::max(model.millimeters.width(), 0);
    wall.physical.height = std::max(model.millimeters.height(), 0);
    wall.physical.pitch = model.pitch;
    wireUp(wall, asked);
    wall.layers.outlines = true;
    wall.layers.outlineWidth = 1;
    wall.layers.outlineColor = {120, 130, 148, 255};
    wall.layers.names = true;
    wall.layers.dataRuns = true;
    wall.layers.powerRuns = asked.watts > 0;
    return wall;
}

/// What the reader would refuse is a mistake in the command line.
void requireGood(const WallDocument& wall)
{
    const QStringList problems = WallFile::fromJson(WallFile::toJson(wall)).problems;
    if (!problems.isEmpty())
        throw Failure{ExitCode::Usage, problems.join(QStringLiteral("; "))};
}

void printCabinets()
{
    for (const CabinetModel& model : cabinetModels()) {
        const QString line = QStringLiteral("%1%2 x %3 pixels, %4 x %5 mm, %6 mm pitch")
                                 .arg(model.name, -16)
                                 .arg(model.pixels.width())
                                 .arg(model.pixels.height())
                                 .arg(model.millimeters.width())
                                 .arg(model.millimeters.height())
                                 .arg(model.pitch / 1000.0);
        std::cout << line.toStdString() << '\n';
    }
}

/// Throws Failure for a command line that lacks what a report needs, or has what it has no use for.
ExitCode report(const Arguments& arguments)
{
    const QString path = QString::fromStdString(arguments.output);
    const bool isCsv = path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
    if (arguments.record.empty() || path.isEmpty())
        throw Failure{ExitCode::Usage, QStringLiteral("wall report: WALL and -o FILE are needed")};
    if (!isCsv && !path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive))
        throw Failure{ExitCode::Usage, QStringLiteral("%1: a report ends in .pdf or .csv").arg(path)};
    if (arguments.wall.cableTable && !isCsv)
        throw Failure{ExitCode::Usage, QStringLiteral("%1: --cables is for .csv").arg(path)};
    const QString source = QString::fromStdString(arguments.record);
    const ChartInput chart = requireChart(source, {});
    if (!chart.wall)
        throw Failure{ExitCode::Unreadable,
                      QStringLiteral("%1: a %2, not a wall")
                          .arg(inputName(source), QLatin1String(chart.show ? "show" : "record"))};
    FileClaims claims;
    claims.reads(source, QStringLiteral("the wall of the report"));
    claims.reads(chart.recordFile, QStringLiteral("the record of the wall"));
    claims.protect(path);
    const ChartApplication application; // for the fonts of the pages
    if (isCsv) {
        writeOutput(path, arguments.wall.cableTable ? WallReport::cableCsv(*chart.wall, chart.record)
                                                    : WallReport::csv(*chart.wall, chart.record));
        return ExitCode::Good;
    }
    const QString problem = WallReport::writePdf(path, *chart.wall, chart.record);
    if (!problem.isEmpty())
        throw Failure{ExitCode::NotWritten, QStringLiteral("%1: %2").arg(path, problem)};
    return ExitCode::Good;
}

} // namespace

ExitCode runWall(const Arguments& arguments)
{
    if (arguments.wall.action == "cabinets") {
        printCabinets();
        return ExitCode::Good;
    }
    if (arguments.wall.action == "report")
        return report(arguments);
    WallDocument wall = newWall(arguments.wall);
    requireGood(wall);
    const ChartApplication application; // for the fonts that texts are placed by
    wall.chart.record.document = chartFor(wall);
    std::cout << WallFile::toJson(wall).toStdString();
    return ExitCode::Good;
}
