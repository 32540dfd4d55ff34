#include "showfile.h"

#include "documentschema.h"
#include "records/fieldvisitors.h"
#include "records/jsontext.h"
#include "records/recordvalues.h"
#include "records/unknownmembers.h"
#include "showfields.h"
#include "showvalues.h"

#include <QDir>
#include <QSet>

namespace vardeno::walls::ShowFile {

using namespace testcharttools;

namespace {

constexpr DocumentKind showKind = {"testshow", "show.schema.json", 1};

fieldvisitors::FieldNames showNames()
{
    fieldvisitors::FieldNames names;
    const ShowDocument show;
    visitShow(names, show);
    return names;
}

QString quoted(const std::string& name)
{
    return QLatin1Char('"') + recordvalues::elided(QString::fromStdString(name)) + QLatin1Char('"');
}

/// Names are what placements refer by. "A" and "a" would be one file on some systems.
template <typename Item>
QStringList nameProblems(const std::vector<Item>& items, const char* one)
{
    QStringList problems;
    QSet<QString> taken;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const auto tell = [&](const QString& problem) {
            problems.append(QStringLiteral("show.%1s: (%1 %2) ").arg(QLatin1String(one)).arg(i + 1) +
                            problem);
        };
        const QString folded = QString::fromStdString(items[i].name).toCaseFolded();
        if (folded.trimmed().isEmpty())
            tell(QStringLiteral("has no name"));
        else if (taken.contains(folded))
            tell(QStringLiteral("is called %1, as another one is").arg(quoted(items[i].name)));
        taken.insert(folded);
    }
    return problems;
}

QStringList referenceProblems(const ShowDocument& show)
{
    QStringList problems;
    for (std::size_t i = 0; i < show.placements.list.size(); ++i) {
        const WallPlacement& placement = show.placements.list[i];
        const auto tell = [&](const char* what, const std::string& name) {
            problems.append(QStringLiteral("show.placements: (placement %1) there is no %2 %3")
                                .arg(i + 1)
                                .arg(QLatin1String(what), quoted(name)));
        };
        if (findWall(show, placement.wall) < 0)
            tell("wall", placement.wall);
        if (findOutput(show, placement.output) < 0)
            tell("output", placement.output);
    }
    return problems;
}

QStringList showProblems(const ShowDocument& show)
{
    QStringList problems = nameProblems(show.outputs.list, "output") + nameProblems(show.walls.list, "wall");
    for (std::size_t i = 0; i < show.walls.list.size(); ++i) {
        if (QString::fromStdString(show.walls.list[i].path).trimmed().isEmpty())
            problems.append(QStringLiteral("show.walls: (wall %1) has no path").arg(i + 1));
    }
    return problems + referenceProblems(show);
}

QStringList behind(const QString& place, QStringList lines)
{
    for (QString& line : lines)
        line.prepend(place);
    return lines;
}

} // namespace

bool isShow(const QByteArray& json)
{
    return parsedDocument(json, showKind).document.value(QStringLiteral("format")) ==
           QJsonValue(QLatin1String(showKind.format));
}

QByteArray toJson(const ShowDocument& show, const QJsonObject& original)
{
    fieldvisitors::DocumentWriter writer(withHead(original, showKind));
    visitShow(writer, show);
    QStringList order = documentHead() + showNames().order + showMembers();
    order.removeDuplicates();
    return jsonText(writer.document, order);
}

Reading fromJson(const QByteArray& json)
{
    const ParsedDocument parsed = parsedDocument(json, showKind);
    if (!parsed.problems.isEmpty())
        return {ShowDocument(), parsed.problems, parsed.document, {}};
    Reading reading = {ShowDocument(), schemaProblems(parsed.document), parsed.document,
                       unknownMembers(parsed.document, showNames().full)};
    fieldvisitors::DocumentReader reader(parsed.document, reading.problems);
    visitShow(reader, reading.show);
    reading.unknown += unknownInLists(reading.show);
    if (reading.problems.isEmpty())
        reading.problems = showProblems(reading.show);
    return reading;
}

Reading read(const QString& path)
{
    const DocumentBytes file = readDocument(path);
    if (!file.problem.isEmpty())
        return {ShowDocument(), {file.problem}, {}, {}};
    return fromJson(file.bytes);
}

QString write(const QString& path, const ShowDocument& show, const QJsonObject& original)
{
    const QByteArray json = toJson(show, original);
    return saveReadable(path, json, fromJson(json).problems);
}

QByteArray schema()
{
    fieldvisitors::DocumentSchema writer;
    const ShowDocument show;
    visitShow(writer, show);
    return documentSchema(
        {showKind, "Show of walls",
         "LED walls on the outputs of a processor. Members that are not named here are kept, "
         "missing ones take their defaults."},
        writer.groups, showNames().order + showMembers());
}

Walls wallsOf(const ShowDocument& show, const QString& folder)
{
    Walls walls;
    for (std::size_t i = 0; i < show.walls.list.size(); ++i) {
        const QString path = QString::fromStdString(show.walls.list[i].path);
        const QString place =
            QStringLiteral("show.walls: (wall %1) %2: ").arg(i + 1).arg(recordvalues::elided(path));
        PlacedWall placed;
        placed.file = QDir::cleanPath(QDir(folder).filePath(path));
        const WallFile::Reading reading = WallFile::read(placed.file);
        walls.problems += behind(place, reading.problems);
        walls.unknown += behind(place, reading.unknown);
        if (reading.problems.isEmpty()) {
            placed.wall = reading.wall;
            const WallFile::Chart chart =
                WallFile::chartOf(placed.wall, QFileInfo(placed.file).absolutePath());
            placed.record = chart.record;
            placed.recordFile = chart.file;
            walls.problems += behind(place, chart.problems);
            walls.unknown += behind(place, chart.file.isEmpty() ? QStringList() : chart.unknown);
        }
        walls.list.push_back(std::move(placed));
    }
    return walls;
}

} // namespace vardeno::walls::ShowFile
