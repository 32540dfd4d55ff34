#include "chartrecordfile.h"

#include "records/documentfile.h"
#include "records/fieldvisitors.h"
#include "records/jsoncheck.h"
#include "records/jsontext.h"
#include "records/recordfields.h"
#include "records/recordschema.h"
#include "records/recordvalues.h"
#include "records/unknownmembers.h"
#include "support/nearestname.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace vardeno::testcharttools::ChartRecordFile {

namespace {

/// Gives one field a value.
class Setter
{
public:
    Setter(const QString& field, const QString& text)
        : m_field(field)
        , m_text(text)
    {
    }

    template <typename Fields>
    void group(const char* name, const char*, Fields fields)
    {
        m_groupName = QLatin1String(name);
        fields();
    }

    void field(const char* name, std::string& target, recordfields::Length longest, const char*)
    {
        if (!isMeant(name))
            return;
        const QJsonValue json = parsed();
        reasons = recordvalues::take(json.isString() ? json : m_text, target, longest);
    }

    void field(const char* name, int& target, recordfields::Range range, const char*)
    {
        if (isMeant(name))
            reasons = recordvalues::take(parsed(), target, range);
    }

    void field(const char* name, bool& target, const char*)
    {
        if (isMeant(name))
            reasons = recordvalues::take(parsed(), target);
    }

    void field(const char* name, RgbaColor& target, const char*)
    {
        const QJsonArray colors = recordvalues::hexColors(m_text);
        if (isMeant(name))
            reasons = recordvalues::take(colors.size() == 1 ? colors.first() : parsed(), target);
    }

    void field(const char* name, std::map<int, QColor>& target, const char*)
    {
        const QJsonArray colors = recordvalues::hexColors(m_text);
        if (isMeant(name))
            reasons = recordvalues::take(colors.isEmpty() ? parsed() : QJsonValue(colors), target);
    }

    bool found = false;
    QStringList reasons;

private:
    bool isMeant(const char* name)
    {
        const bool meant = m_field == m_groupName + QLatin1Char('.') + QLatin1String(name);
        found = found || meant;
        return meant;
    }

    /// What is no JSON is taken as a text.
    QJsonValue parsed() const
    {
        const QByteArray inArray = '[' + m_text.toUtf8() + ']';
        const JsonFindings findings = checkedJson(inArray);
        if (!findings.error.isEmpty() || !findings.repeated.isEmpty())
            return m_text;
        const QJsonArray values = QJsonDocument::fromJson(inArray).array();
        return values.size() == 1 ? values.first() : QJsonValue(m_text);
    }

    const QString m_field;
    const QString m_text;
    QString m_groupName;
};

QString pictureText(const QJsonObject& document)
{
    return document.value(QStringLiteral("logoData"))
        .toObject()
        .value(QStringLiteral("picturePath"))
        .toString();
}

QString absolutePath(const QString& text, const QString& folder)
{
    return QDir::cleanPath(QDir(folder).absoluteFilePath(text));
}

bool isRelativePath(const QString& text)
{
    return !text.isEmpty() && QDir::isRelativePath(text);
}

bool isSameFile(const QString& a, const QString& b)
{
    const QString canonical = QFileInfo(a).canonicalFilePath();
    return QDir::cleanPath(a) == QDir::cleanPath(b) ||
           (!canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath());
}

/// The record as it is stored in `folder`.
TestChartToolsData storedRecord(TestChartToolsData record, const QString& folder, const QJsonObject& original)
{
    const QString text = pictureText(original);
    const QString path = QString::fromStdString(record.logoData.picturePath);
    if (isRelativePath(text) && !path.isEmpty() && isSameFile(absolutePath(text, folder), path))
        record.logoData.picturePath = text.toStdString();
    return record;
}

QString unknownField(const QString& field, const QStringList& names)
{
    const QString nearest = nearestName(field, names);
    return recordvalues::elided(field) + QLatin1String(": unknown field") +
           (nearest.isEmpty() ? QString() : QStringLiteral(", did you mean %1?").arg(nearest));
}

/// Sets the one field of the table that `visit` goes through.
template <typename Visit>
QString assign(const QString& assignment, Visit visit)
{
    const int equals = assignment.indexOf(QLatin1Char('='));
    const QString field = assignment.left(equals).trimmed();
    if (equals < 0)
        return recordvalues::elided(field) + QLatin1String(": \"=\" and a value expected");
    if (assignment.size() > largestDocument)
        return recordvalues::elided(field) + QLatin1String(": ") + tooLarge(assignment.size());

    Setter setter(field, assignment.mid(equals + 1));
    visit(setter);
    if (!setter.found) {
        fieldvisitors::FieldNames names;
        visit(names);
        return unknownField(field, names.full);
    }
    return setter.reasons.isEmpty() ? QString()
                                    : field + QLatin1String(": ") + setter.reasons.join(QLatin1String("; "));
}

} // namespace

QByteArray toJson(const TestChartToolsData& record, const QJsonObject& original)
{
    fieldvisitors::DocumentWriter writer(withHead(original, recordKind));
    recordfields::visit(writer, record);
    return jsonText(writer.document, recordOrder());
}

QJsonObject withMarkers(QJsonObject document, const MarkerData& markers)
{
    if (markers == markersOf(document))
        return document;
    fieldvisitors::DocumentWriter writer(document);
    recordfields::visitMarkers(writer, markers);
    return writer.document;
}

MarkerData markersOf(const QJsonObject& document)
{
    MarkerData markers;
    QStringList problems;
    fieldvisitors::DocumentReader reader(document, problems);
    recordfields::visitMarkers(reader, markers);
    return markers;
}

Reading fromJson(const QByteArray& json, const QString& folder)
{
    const ParsedDocument parsed = parsedDocument(json, recordKind);
    const QJsonObject& root = parsed.document;
    if (!parsed.problems.isEmpty())
        return {TestChartToolsData(), parsed.problems, root, {}};
    Reading reading = {TestChartToolsData(), schemaProblems(root), root, unknownMembers(root)};
    fieldvisitors::DocumentReader reader(root, reading.problems);
    recordfields::visit(reader, reading.record);
    MarkerData markers;
    recordfields::visitMarkers(reader, markers);
    std::string& picture = reading.record.logoData.picturePath;
    if (!folder.isEmpty() && isRelativePath(QString::fromStdString(picture)))
        picture = absolutePath(QString::fromStdString(picture), folder).toStdString();
    return reading;
}

Reading read(const QString& path)
{
    const DocumentBytes file = readDocument(path);
    if (!file.problem.isEmpty())
        return {TestChartToolsData(), {file.problem}, {}, {}};
    return fromJson(file.bytes, QFileInfo(path).absolutePath());
}

QString write(const QString& path, const TestChartToolsData& record, const QJsonObject& original)
{
    const QString folder = QFileInfo(path).absolutePath();
    const QByteArray json = toJson(storedRecord(record, folder, original), original);
    return saveReadable(path, json, fromJson(json).problems);
}

QString setField(TestChartToolsData& record, const QString& assignment)
{
    return assign(assignment, [&record](auto& visitor) { recordfields::visit(visitor, record); });
}

QString setField(TestChartToolsData& record, MarkerData& markers, const QString& assignment)
{
    return assign(assignment, [&](auto& visitor) {
        recordfields::visit(visitor, record);
        recordfields::visitMarkers(visitor, markers);
    });
}

QByteArray schema()
{
    return jsonText(recordSchema(), recordSchemaOrder());
}

} // namespace vardeno::testcharttools::ChartRecordFile
