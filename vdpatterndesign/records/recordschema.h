#pragma once

#include "records/documentfile.h"

#include <QJsonObject>
#include <QStringList>

namespace vardeno::testcharttools {

extern const DocumentKind recordKind;

/// The JSON Schema (draft 2020-12) of chart records, made from the table of fields.
QJsonObject recordSchema();

/// The members of the schema in the order in which they are written.
QStringList recordSchemaOrder();

/// The members of a record's document in the order in which they are written: "$schema", "format", "version",
/// the groups and their fields.
QStringList recordOrder();

/// The fields: "basicData.colorStripeColors" and the others, also those beside the record.
QStringList recordFieldNames();

} // namespace vardeno::testcharttools
