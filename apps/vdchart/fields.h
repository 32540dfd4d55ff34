#pragma once

#include <QString>
#include <QStringList>

// The names of a record's fields, as settings and the columns of tables use them.

/// "publicData.resolutionWidth" for "width", and so for "height", "rows" and "columns"; any other name as it
/// is.
QString fieldOf(const QString& name);

/// Every field of a record, and the short names: sorted.
QStringList fieldNames();

/// Whether `field` is the whole name of one.
bool isField(const QString& field);
