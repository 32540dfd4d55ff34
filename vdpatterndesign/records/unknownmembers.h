#pragma once

#include "vdchartcore_export.h"

#include <QJsonObject>
#include <QStringList>

namespace vardeno::testcharttools {

/// The members of a record's document that no field has, each with the name that may have been meant:
/// "publicData.boxrow: unknown member, did you mean publicData.boxRow?". Of many the first twenty, and how
/// many more there are.
QStringList unknownMembers(const QJsonObject& document);

/// The same of another kind of document, whose fields are called `fields`: "group.field" and so on.
VDCHARTCORE_EXPORT QStringList unknownMembers(const QJsonObject& document, const QStringList& fields);

} // namespace vardeno::testcharttools
