#pragma once

#include "records/documentfile.h"

namespace vardeno::walls {

/// What the schemas of several kinds of documents differ in.
struct SchemaWords
{
    testcharttools::DocumentKind kind;
    const char* title;
    const char* description;
};

/// The JSON Schema of documents with these groups, its members in `order`.
QByteArray documentSchema(const SchemaWords& words, QJsonObject groups, const QStringList& order);

} // namespace vardeno::walls
