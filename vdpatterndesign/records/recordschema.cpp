#include "records/recordschema.h"

#include "records/fieldvisitors.h"

#include <QJsonArray>

namespace vardeno::testcharttools {

const DocumentKind recordKind = {"testchart", "chart-record.schema.json", 1};

namespace {

QJsonValue text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

fieldvisitors::FieldNames collectedNames()
{
    fieldvisitors::FieldNames names;
    const TestChartToolsData record;
    recordfields::visit(names, record);
    const MarkerData markers;
    recordfields::visitMarkers(names, markers);
    return names;
}

} // namespace

QJsonObject recordSchema()
{
    fieldvisitors::DocumentSchema writer;
    const TestChartToolsData record;
    recordfields::visit(writer, record);
    const MarkerData markers;
    recordfields::visitMarkers(writer, markers);
    QJsonObject members = writer.groups;
    members.insert(QStringLiteral("$schema"), QJsonObject{{QStringLiteral("type"), text("string")}});
    members.insert(QStringLiteral("format"), QJsonObject{{QStringLiteral("const"), text(recordKind.format)}});
    members.insert(QStringLiteral("version"), QJsonObject{{QStringLiteral("const"), recordKind.version}});
    return {{QStringLiteral("$schema"), text("https://json-schema.org/draft/2020-12/schema")},
            {QStringLiteral("$id"), text(recordKind.schemaName)},
            {QStringLiteral("title"), text("Test chart record")},
            {QStringLiteral("description"), text("A test chart for an LED screen. Members that are not named "
                                                 "here are kept, missing ones take their defaults.")},
            {QStringLiteral("type"), text("object")},
            {QStringLiteral("required"), QJsonArray{text("format"), text("version")}},
            {QStringLiteral("properties"), members},
            {QStringLiteral("$defs"), QJsonObject{{QStringLiteral("color"), recordvalues::colorSchema()}}}};
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
    return documentHead() + collectedNames().order;
}

QStringList recordFieldNames()
{
    return collectedNames().full;
}

} // namespace vardeno::testcharttools
