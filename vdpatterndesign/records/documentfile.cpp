#include "records/documentfile.h"

#include "records/jsoncheck.h"
#include "records/recordvalues.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>

namespace vardeno::testcharttools {

namespace {

const auto schemaMember = QStringLiteral("$schema");
const auto formatMember = QStringLiteral("format");
const auto versionMember = QStringLiteral("version");

ParsedDocument failed(const QString& problem)
{
    return {{}, {problem}};
}

/// What forbids to look at the fields.
QString headProblem(const QJsonObject& document, const DocumentKind& kind)
{
    if (document.value(formatMember) != QJsonValue(QLatin1String(kind.format)))
        return QStringLiteral("format: %1 expected").arg(QLatin1String(kind.format));
    const QJsonValue version = document.value(versionMember);
    if (recordvalues::isWhole(version) && version.toDouble() > kind.version)
        return QStringLiteral("version: %1 is newer than %2, the newest that is known")
            .arg(recordvalues::shown(version))
            .arg(kind.version);
    if (version != QJsonValue(kind.version))
        return QStringLiteral("version: %1 expected").arg(kind.version);
    return {};
}

QStringList repetitions(QStringList members)
{
    for (QString& member : members)
        member += QLatin1String(": stands twice");
    return members;
}

bool isSpecial(const QFileInfo& file)
{
    return file.exists() && !file.isFile();
}

} // namespace

QStringList documentHead()
{
    return {schemaMember, formatMember, versionMember};
}

ParsedDocument parsedDocument(const QByteArray& json, const DocumentKind& kind)
{
    if (json.size() > largestDocument)
        return failed(tooLarge(json.size()));
    if (json.isEmpty())
        return failed(QStringLiteral("not JSON: empty"));
    const JsonFindings findings = checkedJson(json);
    if (!findings.error.isEmpty())
        return failed(QStringLiteral("not JSON: ") + findings.error);
    if (!findings.repeated.isEmpty())
        return {{}, repetitions(findings.repeated)};
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return failed(QStringLiteral("not JSON: ") + error.errorString());
    if (!document.isObject())
        return failed(QStringLiteral("not an object"));
    const QString problem = headProblem(document.object(), kind);
    return {document.object(), problem.isEmpty() ? QStringList() : QStringList(problem)};
}

QStringList schemaProblems(const QJsonObject& document)
{
    const QJsonValue schema = document.value(schemaMember);
    if (schema.isUndefined() || schema.isString())
        return {};
    return {schemaMember + QLatin1String(": ") + recordvalues::shown(schema) +
            QLatin1String(" is not a text")};
}

QJsonObject withHead(QJsonObject document, const DocumentKind& kind)
{
    if (!document.value(schemaMember).isString())
        document.insert(schemaMember, QLatin1String(kind.schemaName));
    document.insert(formatMember, QLatin1String(kind.format));
    document.insert(versionMember, kind.version);
    return document;
}

QString tooLarge(qint64 bytes)
{
    return QStringLiteral("%1 bytes are more than %2").arg(bytes).arg(largestDocument);
}

DocumentBytes readDocument(const QString& path)
{
    const auto problem = [&path](const QString& reason) {
        return DocumentBytes{{}, path + QLatin1String(": ") + reason};
    };
    QFile file(path);
    if (isSpecial(QFileInfo(path)))
        return problem(QStringLiteral("not a regular file")); // which could be endless
    if (!file.open(QIODevice::ReadOnly))
        return problem(file.errorString());
    const QByteArray json = file.read(largestDocument + 1);
    if (json.size() > largestDocument)
        return problem(tooLarge(std::max<qint64>(file.size(), json.size())));
    if (file.error() != QFileDevice::NoError)
        return problem(file.errorString());
    return {json, {}};
}

QString saveDocument(const QString& path, const QByteArray& json)
{
    if (isSpecial(QFileInfo(path)))
        return QStringLiteral("not a regular file"); // which a new file would replace
    QSaveFile file(path);
    errno = 0;
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(json) == json.size() && file.flush() && file.commit();
    const int errorNumber = errno;
    if (written)
        return {};
    // A write that the disk takes in part leaves the file without a reason.
    return file.error() == QFileDevice::NoError ? qt_error_string(errorNumber) : file.errorString();
}

QString saveReadable(const QString& path, const QByteArray& json, const QStringList& problems)
{
    const QString problem =
        problems.isEmpty() ? saveDocument(path, json) : problems.join(QLatin1String("; "));
    return problem.isEmpty() ? QString() : path + QLatin1String(": ") + problem;
}

} // namespace vardeno::testcharttools
