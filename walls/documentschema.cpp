#include "documentschema.h"

#include "records/jsontext.h"
#include "records/recordvalues.h"

#include <QJsonArray>

namespace vardeno::walls {

QByteArray documentSchema(const SchemaWords& words, QJsonObject groups, const QStringList& order)
{
    const auto text = [](const char* value) { return QJsonValue(QLatin1String(value)); };
    groups.insert(QStringLiteral("$schema"), QJsonObject{{QStringLiteral("type"), text("string")}});
    groups.insert(QStringLiteral("format"), QJsonObject{{QStringLiteral("const"), text(words.kind.format)}});
    groups.insert(QStringLiteral("version"), QJsonObject{{QStringLiteral("const"), words.kind.version}});
    const QJsonObject root = {
        {QStringLiteral("$schema"), text("https://json-schema.org/draft/2020-12/schema")},
        {QStringLiteral("$id"), text(words.kind.schemaName)},
        {QStringLiteral("title"), text(words.title)},
        {QStringLiteral("description"), text(words.description)},
        {QStringLiteral("type"), text("object")},
        {QStringLiteral("required"), QJsonArray{text("format"), text("version")}},
        {QStringLiteral("properties"), groups},
        {QStringLiteral("$defs"),
         QJsonObject{{QStringLiteral("color"), testcharttools::recordvalues::colorSchema()}}}};
    return testcharttools::jsonText(root, QStringList{QStringLiteral("$schema"), QStringLiteral("$id"),
                                                      QStringLiteral("title"), QStringLiteral("description"),
                                                      QStringLiteral("type"), QStringLiteral("required")} +
                                              order);
}

} // namespace vardeno::walls
