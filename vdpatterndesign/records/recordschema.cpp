#include "records/recordschema.h"

#include "records/recordvalues.h"

#include <QJsonArray>

namespace vardeno::testcharttools {

const char recordFormat[] = "testchart";
const char recordSchemaName[] = "chart-record.schema.json";

namespace {

QJsonValue text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QJsonObject colorSchema()
{
    return {{QStringLiteral("description"), text("red, green, blue, alpha")},
            {QStringLiteral("type"), text("array")},
            {QStringLiteral("items"), QJsonObject{{QStringLiteral("type"), text("integer")},
                                                  {QStringLiteral("minimum"), 0},
                                                  {QStringLiteral("maximum"), 255}}},
            {QStringLiteral("minItems"), 4},
            {QStringLiteral("maxItems"), 4}};
}

QJsonObject colorReference()
{
    return {{QStringLiteral("$ref"), text("#/$defs/color")}};
}

class SchemaWriter
{
public:
    template <typename Fields>
    void group(const char* name, const char* meaning, Fields fields)
    {
        m_fields = QJsonObject();
        fields();
        groups.insert(QLatin1String(name), QJsonObject{{QStringLiteral("description"), text(meaning)},
                                                       {QStringLiteral("type"), text("object")},
                                                       {QStringLiteral("properties"), m_fields}});
    }

    void field(const char* name, bool value, const char* meaning)
    {
        insert(name, meaning, value, {{QStringLiteral("type"), text("boolean")}});
    }

    void field(const char* name, int value, recordfields::Range range, const char* meaning)
    {
        insert(name, meaning, value,
               {{QStringLiteral("type"), text("integer")},
                {QStringLiteral("minimum"), range.least},
                {QStringLiteral("maximum"), range.most}});
    }

    void field(const char* name, const std::string& value, recordfields::Length longest, const char* meaning)
    {
        insert(name, meaning, text(value.c_str()),
               {{QStringLiteral("type"), text("string")},
                {QStringLiteral("maxLength"), longest.most},
                {QStringLiteral("pattern"), text("^[^\\u0000]*$")}});
    }

    void field(const char* name, const RgbaColor& value, const char* meaning)
    {
        insert(name, meaning, recordvalues::toJson(value), colorReference());
    }

    void field(const char* name, const std::map<int, QColor>& value, const char* meaning)
    {
        insert(name, meaning, recordvalues::toJson(value),
               {{QStringLiteral("type"), text("array")},
                {QStringLiteral("items"), colorReference()},
                {QStringLiteral("maxItems"), recordfields::mostColors}});
    }

    QJsonObject groups;

private:
    void insert(const char* name, const char* meaning, const QJsonValue& standard, QJsonObject schema)
    {
        schema.insert(QStringLiteral("description"), text(meaning));
        schema.insert(QStringLiteral("default"), standard);
        m_fields.insert(QLatin1String(name), schema);
    }

    QJsonObject m_fields;
};

class NameCollector
{
public:
    template <typename Fields>
    void group(const char* name, const char*, Fields fields)
    {
        m_group = QLatin1String(name);
        order.append(m_group);
        fields();
    }

    template <typename... Description>
    void field(const char* name, Description&&...)
    {
        order.append(QLatin1String(name));
        full.append(m_group + QLatin1Char('.') + QLatin1String(name));
    }

    QStringList order;
    QStringList full;

private:
    QString m_group;
};

NameCollector collectedNames()
{
    NameCollector names;
    const TestChartToolsData record;
    recordfields::visit(names, record);
    return names;
}

} // namespace

QJsonObject recordSchema()
{
    SchemaWriter writer;
    const TestChartToolsData record;
    recordfields::visit(writer, record);
    QJsonObject members = writer.groups;
    members.insert(QStringLiteral("$schema"), QJsonObject{{QStringLiteral("type"), text("string")}});
    members.insert(QStringLiteral("format"), QJsonObject{{QStringLiteral("const"), text(recordFormat)}});
    members.insert(QStringLiteral("version"), QJsonObject{{QStringLiteral("const"), recordVersion}});
    return {{QStringLiteral("$schema"), text("https://json-schema.org/draft/2020-12/schema")},
            {QStringLiteral("$id"), text(recordSchemaName)},
            {QStringLiteral("title"), text("Test chart record")},
            {QStringLiteral("description"), text("A test chart for an LED screen. Members that are not named "
                                                 "here are kept, missing ones take their defaults.")},
            {QStringLiteral("type"), text("object")},
            {QStringLiteral("required"), QJsonArray{text("format"), text("version")}},
            {QStringLiteral("properties"), members},
            {QStringLiteral("$defs"), QJsonObject{{QStringLiteral("color"), colorSchema()}}}};
}

QStringList recordSchemaOrder()
{
    QStringList order;
    for (const char* member :
         {"$schema", "$id", "title", "description", "type", "required", "format", "version", "$ref", "const",
          "minimum", "maximum", "maxLength", "pattern", "items", "minItems", "maxItems", "default"})
        order.append(QLatin1String(member));
    return order + collectedNames().order +
           QStringList{QStringLiteral("properties"), QStringLiteral("$defs")};
}

QStringList recordOrder()
{
    return QStringList{QStringLiteral("$schema"), QStringLiteral("format"), QStringLiteral("version")} +
           collectedNames().order;
}

QStringList recordFieldNames()
{
    return collectedNames().full;
}

} // namespace vardeno::testcharttools
