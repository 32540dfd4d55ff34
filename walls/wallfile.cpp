#include "wallfile.h"

#include "chartrecordfile.h"
#include "documentschema.h"
#include "records/documentfile.h"
#include "records/fieldvisitors.h"
#include "records/jsontext.h"
#include "records/recordvalues.h"
#include "records/unknownmembers.h"
#include "support/nearestname.h"
#include "wallfields.h"
#include "wallproblems.h"
#include "wallvalues.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

namespace vardeno::walls::WallFile {

using namespace testcharttools;

namespace {

constexpr DocumentKind wallKind = {"testwall", "wall.schema.json", 1};
constexpr int mostTold = 20;

fieldvisitors::FieldNames collectedNames()
{
    fieldvisitors::FieldNames names;
    const WallDocument wall;
    visitWall(names, wall);
    return names;
}

QStringList prefixed(const QString& prefix, QStringList lines)
{
    for (QString& line : lines)
        line.prepend(prefix);
    return lines;
}

/// The members of the document in the order in which they are written, and of a record in it likewise.
QStringList documentOrder()
{
    QStringList order = documentHead() + collectedNames().order + exceptionMembers();
    const TestChartToolsData record;
    fieldvisitors::FieldNames names;
    recordfields::visit(names, record);
    const MarkerData markers;
    recordfields::visitMarkers(names, markers);
    order += names.order;
    order.removeDuplicates();
    return order;
}

QJsonObject documentOf(const WallDocument& wall, const QJsonObject& original)
{
    fieldvisitors::DocumentWriter writer(original);
    visitWall(writer, wall);
    return writer.document;
}

ChartRecordFile::Reading inlineRecord(const InlineRecord& record, const QString& folder = {})
{
    return ChartRecordFile::fromJson(QJsonDocument(record.document).toJson(QJsonDocument::Compact), folder);
}

QStringList unknownInExceptions(const CabinetExceptions& exceptions)
{
    QStringList lines;
    for (std::size_t i = 0; i < exceptions.list.size() && lines.size() < mostTold; ++i) {
        for (const QString& member : exceptions.list[i].others.keys()) {
            const QString meant = nearestName(member, exceptionMembers());
            lines.append(QStringLiteral("cabinets.exceptions: (cabinet %1) %2: unknown member")
                             .arg(i + 1)
                             .arg(recordvalues::elided(member)) +
                         (meant.isEmpty() ? QString() : QStringLiteral(", did you mean %1?").arg(meant)));
        }
    }
    return lines;
}

/// What is wrong with the record in the document; of both charts only one can be meant.
void checkChart(Reading& reading)
{
    const WallChart& chart = reading.wall.chart;
    if (chart.record.document.isEmpty())
        return;
    const ChartRecordFile::Reading record = inlineRecord(chart.record);
    const auto prefix = QStringLiteral("chart.record.");
    reading.problems += prefixed(prefix, record.problems);
    reading.unknown += prefixed(prefix, record.unknown);
    if (!chart.path.empty())
        reading.problems.append(
            QStringLiteral("chart.path: \"%1\" stands beside chart.record; only one of them can be drawn")
                .arg(recordvalues::elided(QString::fromStdString(chart.path))));
}

/// The record of the document as a record file has it: with every field.
ChartRecordFile::Reading recordOf(const WallDocument& wall, const QString& folder, QString& file)
{
    if (!wall.chart.record.document.isEmpty())
        return inlineRecord(wall.chart.record, folder);
    if (wall.chart.path.empty())
        return {};
    file = QDir::cleanPath(QDir(folder).filePath(QString::fromStdString(wall.chart.path)));
    return ChartRecordFile::read(file);
}

} // namespace

bool isWall(const QByteArray& json)
{
    return parsedDocument(json, wallKind).document.value(QStringLiteral("format")) ==
           QJsonValue(QLatin1String(wallKind.format));
}

QByteArray toJson(const WallDocument& wall, const QJsonObject& original)
{
    return jsonText(documentOf(wall, withHead(original, wallKind)), documentOrder());
}

Reading fromJson(const QByteArray& json)
{
    const ParsedDocument parsed = parsedDocument(json, wallKind);
    if (!parsed.problems.isEmpty())
        return {WallDocument(), parsed.problems, parsed.document, {}};
    Reading reading = {WallDocument(), schemaProblems(parsed.document), parsed.document,
                       unknownMembers(parsed.document, collectedNames().full)};
    fieldvisitors::DocumentReader reader(parsed.document, reading.problems);
    visitWall(reader, reading.wall);
    reading.unknown += unknownInExceptions(reading.wall.exceptions);
    checkChart(reading);
    if (reading.problems.isEmpty())
        reading.problems = placementProblems(reading.wall);
    return reading;
}

Reading read(const QString& path)
{
    const DocumentBytes file = readDocument(path);
    if (!file.problem.isEmpty())
        return {WallDocument(), {file.problem}, {}, {}};
    return fromJson(file.bytes);
}

QString write(const QString& path, const WallDocument& wall, const QJsonObject& original)
{
    const QByteArray json = toJson(wall, original);
    return saveReadable(path, json, fromJson(json).problems);
}

QByteArray schema()
{
    fieldvisitors::DocumentSchema writer;
    const WallDocument wall;
    visitWall(writer, wall);
    return documentSchema(
        {wallKind, "Wall of cabinets",
         "An LED wall: cabinets, cables and chart. Members that are not named here are kept, "
         "missing ones take their defaults."},
        writer.groups, collectedNames().order + exceptionMembers());
}

Chart chartOf(const WallDocument& wall, const QString& folder)
{
    Chart chart;
    const ChartRecordFile::Reading reading = recordOf(wall, folder, chart.file);
    const QString prefix = QLatin1String(chart.file.isEmpty() ? "chart.record." : "chart.path: ");
    chart.record = reading.record;
    chart.problems = prefixed(prefix, reading.problems);
    chart.unknown = prefixed(prefix, reading.unknown);
    PublicChartData& screen = chart.record.publicData;
    screen.resolutionWidth = wall.columnWidths.total();
    screen.resolutionHeight = wall.rowHeights.total();
    screen.boxCol = wall.columnWidths.count();
    screen.boxRow = wall.rowHeights.count();
    return chart;
}

MarkerData markersOf(const WallDocument& wall, const QString& file)
{
    return ChartRecordFile::markersOf(file.isEmpty() ? wall.chart.record.document
                                                     : ChartRecordFile::read(file).document);
}

} // namespace vardeno::walls::WallFile

bool vardeno::walls::operator==(const WallDocument& a, const WallDocument& b)
{
    return WallFile::documentOf(a, {}) == WallFile::documentOf(b, {});
}
