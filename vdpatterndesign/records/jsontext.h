#pragma once

#include "vdchartcore_export.h"

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

namespace vardeno::testcharttools {

/// `document` as UTF-8 text for people and for version control: one line for each member of an object, and a
/// list on one line where it is short enough. The members named by `order` stand first, in that order,
/// whichever object they are in; the others follow by name. Below the eighth level all stands on one line, so
/// that indentation cannot multiply the size of a document.
VDCHARTCORE_EXPORT QByteArray jsonText(const QJsonObject& document, const QStringList& order);

/// A value on one line.
VDCHARTCORE_EXPORT QByteArray jsonLine(const QJsonValue& value);

} // namespace vardeno::testcharttools
