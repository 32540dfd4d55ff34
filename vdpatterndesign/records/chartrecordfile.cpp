#include "chartrecordfile.h"

#include "records/jsoncheck.h"
#include "records/jsontext.h"
#include "records/recordfields.h"
#include "records/recordschema.h"
#include "records/recordvalues.h"
#include "records/unknownmembers.h"
#include "support/nearestname.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>

namespace vardeno::testcharttools::ChartRecordFile {

namespace {

constexpr int largestDocument = 1 << 20; // bytes
const auto schemaMember = QStringLiteral("$schema");
const auto formatMember = QStringLiteral("format");
const auto versionMember = QStringLiteral("version");

class Writer
{
public:
    explicit Writer(const QJsonObject& original)
        : document(original)
    {
        if (!document.value(schemaMember).isString())
            document.insert(schemaMember, QLatin1String(recordSchemaName));
        document.insert(formatMember, QLatin1String(recordFormat));
        document.insert(versionMember, recordVersion);
    }

    template <typename Fields>
    void group(const char* name, const char*, Fields fields)
    {
        m_group = document.value(QLatin1String(name)).toObject();
        fields();
        document.insert(QLatin1String(name), m_group);
    }

    void field(const char* name, bool value, const char*) { insert(name, value); }
    void field(const char* name, int value, recordfields::Range, const char*) { insert(name, value); }
    void field(const char* name, const std::string& value, recordfields::Length, const char*)
    {
        insert(name, QString::fromStdString(value));
    }
    template <typename Colors>
    void field(const char* name, const Colors& value, const char*)
    {
        insert(name, recordvalues::toJson(value));
    }

    QJsonObject document;

private:
    void insert(const char* name, const QJsonValue& value) { m_group.insert(QLatin1String(name), value); }

    QJsonObject m_group;
};

class Reader
{
public:
    Reader(const QJsonObject& document, QStringList& problems)
        : m_document(document)
        , m_problems(problems)
    {
    }

    template <typename Fields>
    void group(const char* name, const char*, Fields fields)
    {
        m_groupName = QLatin1String(name);
        const QJsonValue value = m_document.value(m_groupName);
        if (!value.isUndefined() && !value.isObject())
            m_problems.append(m_groupName + QLatin1String(": ") + recordvalues::shown(value) +
                              QLatin1String(" is not an object"));
        m_group = value.toObject();
        fields();
    }

    template <typename Value>
    void field(const char* name, Value& target, const char*)
    {
        take(name, target);
    }

    template <typename Value, typename Limit>
    void field(const char* name, Value& target, Limit limit, const char*)
    {
        take(name, target, limit);
    }

private:
    /// A missing field keeps its default.
    template <typename... Target>
    void take(const char* name, Target&&... target)
    {
        const QJsonValue value = m_group.value(QLatin1String(name));
        if (value.isUndefined())
            return;
        for (const QString& reason : recordvalues::take(value, target...))
            m_problems.append(m_groupName + QLatin1Char('.') + QLatin1String(name) + QLatin1String(": ") +
                              reason);
    }

    const QJsonObject m_document;
    QStringList& m_problems;
    QString m_groupName;
    QJsonObject m_group;
};

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

Reading failed(const QString& problem, const QJsonObject& document = {})
{
    return {TestChartToolsData(), {problem}, document, {}};
}

QString tooLarge(qint64 bytes)
{
    return QStringLiteral("%1 bytes are more than %2").arg(bytes).arg(largestDocument);
}

/// What forbids to look at the fields.
QString headProblem(const QJsonObject& document)
{
    if (document.value(formatMember) != QJsonValue(QLatin1String(recordFormat)))
        return QStringLiteral("format: %1 expected").arg(QLatin1String(recordFormat));
    const QJsonValue version = document.value(versionMember);
    if (recordvalues::isWhole(version) && version.toDouble() > recordVersion)
        return QStringLiteral("version: %1 is newer than %2, the newest that is known")
            .arg(recordvalues::shown(version))
            .arg(recordVersion);
    if (version != QJsonValue(recordVersion))
        return QStringLiteral("version: %1 expected").arg(recordVersion);
    return {};
}

QStringList repetitions(QStringList members)
{
    for (QString& member : members)
        member += QLatin1String(": stands twice");
    return members;
}

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

bool isSpecial(const QFileInfo& file)
{
    return file.exists() && !file.isFile();
}

QString saved(const QString& path, const QByteArray& json)
{
    if (isSpecial(QFileInfo(path)))
        return QStringLiteral("not a regular file"); // which a new file would replace
    QSaveFile file(path);
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(json) == json.size() && file.flush() && file.commit();
    return written ? QString() : file.errorString();
}

QString unknownField(const QString& field)
{
    const QString nearest = nearestName(field, recordFieldNames());
    return recordvalues::elided(field) + QLatin1String(": unknown field") +
           (nearest.isEmpty() ? QString() : QStringLiteral(", did you mean %1?").arg(nearest));
}

} // namespace

QByteArray toJson(const TestChartToolsData& record, const QJsonObject& original)
{
    Writer writer(original);
    recordfields::visit(writer, record);
    return jsonText(writer.document, recordOrder());
}

Reading fromJson(const QByteArray& json, const QString& folder)
{
    if (json.size() > largestDocument)
        return failed(tooLarge(json.size()));
    if (json.isEmpty())
        return failed(QStringLiteral("not JSON: empty"));
    const JsonFindings findings = checkedJson(json);
    if (!findings.error.isEmpty())
        return failed(QStringLiteral("not JSON: ") + findings.error);
    if (!findings.repeated.isEmpty())
        return {TestChartToolsData(), repetitions(findings.repeated), {}, {}};
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return failed(QStringLiteral("not JSON: ") + error.errorString());
    if (!document.isObject())
        return failed(QStringLiteral("not an object"));
    const QJsonObject root = document.object();
    const QString problem = headProblem(root);
    if (!problem.isEmpty())
        return failed(problem, root);

    Reading reading = {TestChartToolsData(), {}, root, unknownMembers(root)};
    const QJsonValue schema = root.value(schemaMember);
    if (!schema.isUndefined() && !schema.isString())
        reading.problems.append(schemaMember + QLatin1String(": ") + recordvalues::shown(schema) +
                                QLatin1String(" is not a text"));
    Reader reader(root, reading.problems);
    recordfields::visit(reader, reading.record);
    std::string& picture = reading.record.logoData.picturePath;
    if (!folder.isEmpty() && isRelativePath(QString::fromStdString(picture)))
        picture = absolutePath(QString::fromStdString(picture), folder).toStdString();
    return reading;
}

Reading read(const QString& path)
{
    const QFileInfo info(path);
    QFile file(path);
    if (isSpecial(info))
        return failed(path + QLatin1String(": not a regular file")); // which could be endless
    if (!file.open(QIODevice::ReadOnly))
        return failed(path + QLatin1String(": ") + file.errorString());
    const QByteArray json = file.read(largestDocument + 1);
    if (json.size() > largestDocument)
        return failed(path + QLatin1String(": ") + tooLarge(std::max<qint64>(file.size(), json.size())));
    if (file.error() != QFileDevice::NoError)
        return failed(path + QLatin1String(": ") + file.errorString());
    return fromJson(json, info.absolutePath());
}

QString write(const QString& path, const TestChartToolsData& record, const QJsonObject& original)
{
    const QString folder = QFileInfo(path).absolutePath();
    const QByteArray json = toJson(storedRecord(record, folder, original), original);
    const QStringList problems = fromJson(json).problems;
    const QString problem = problems.isEmpty() ? saved(path, json) : problems.join(QLatin1String("; "));
    return problem.isEmpty() ? QString() : path + QLatin1String(": ") + problem;
}

QString setField(TestChartToolsData& record, const QString& assignment)
{
    const int equals = assignment.indexOf(QLatin1Char('='));
    const QString field = assignment.left(equals).trimmed();
    if (equals < 0)
        return recordvalues::elided(field) + QLatin1String(": \"=\" and a value expected");
    if (assignment.size() > largestDocument)
        return recordvalues::elided(field) + QLatin1String(": ") + tooLarge(assignment.size());

    Setter setter(field, assignment.mid(equals + 1));
    recordfields::visit(setter, record);
    if (!setter.found)
        return unknownField(field);
    return setter.reasons.isEmpty() ? QString()
                                    : field + QLatin1String(": ") + setter.reasons.join(QLatin1String("; "));
}

QByteArray schema()
{
    return jsonText(recordSchema(), recordSchemaOrder());
}

} // namespace vardeno::testcharttools::ChartRecordFile
