#include "records/unknownmembers.h"

#include "records/recordschema.h"
#include "records/recordvalues.h"
#include "support/nearestname.h"

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

constexpr int mostTold = 20; ///< a document has room for many thousands
constexpr int longestCompared = 60;

QString groupOf(const QString& field)
{
    return field.section(QLatin1Char('.'), 0, 0);
}

QStringList groupNames(const QStringList& fields)
{
    QStringList groups;
    std::transform(fields.cbegin(), fields.cend(), std::back_inserter(groups), groupOf);
    groups.removeDuplicates();
    return groups;
}

/// Also one of another group, or of none.
QString suggestion(const QString& path, const QStringList& names)
{
    const QString whole = nearestName(path, names);
    return whole.isEmpty() ? nearestName(path.section(QLatin1Char('.'), -1), names) : whole;
}

QString told(const QString& path, const QStringList& names)
{
    const QString meant = path.size() > longestCompared ? QString() : suggestion(path, names);
    return recordvalues::elided(path) + QLatin1String(": unknown member") +
           (meant.isEmpty() ? QString() : QStringLiteral(", did you mean %1?").arg(meant));
}

/// In the document, and in the groups that are known.
QStringList unknownPaths(const QJsonObject& document, const QStringList& fields, const QStringList& head)
{
    const QStringList groups = groupNames(fields);
    QStringList paths;
    for (const QString& member : document.keys()) {
        if (!groups.contains(member) && !head.contains(member))
            paths.append(member);
    }
    for (const QString& group : groups) {
        for (const QString& member : document.value(group).toObject().keys()) {
            const QString path = group + QLatin1Char('.') + member;
            if (!fields.contains(path))
                paths.append(path);
        }
    }
    return paths;
}

} // namespace

QStringList unknownMembers(const QJsonObject& document)
{
    return unknownMembers(document, recordFieldNames());
}

QStringList unknownMembers(const QJsonObject& document, const QStringList& fields)
{
    const QStringList head = documentHead();
    const QStringList paths = unknownPaths(document, fields, head);
    const QStringList names = groupNames(fields) + head + fields;
    QStringList lines;
    for (const QString& path : paths.mid(0, mostTold))
        lines.append(told(path, names));
    if (paths.size() > mostTold)
        lines.append(QStringLiteral("%1 more unknown members").arg(paths.size() - mostTold));
    return lines;
}

} // namespace vardeno::testcharttools
