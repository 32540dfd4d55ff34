#pragma once

#include "walldocument.h"

#include <QJsonValue>
#include <QStringList>

namespace vardeno::walls {

// The values of a wall's fields as JSON values, as `recordvalues` has those of records: `take` takes a value
// into its target, or leaves that and tells why.

QJsonValue toJson(const CabinetSizes& sizes);
QJsonValue toJson(const CabinetExceptions& exceptions);
QJsonValue toJson(const CableLists& lists);
QJsonValue toJson(const InlineRecord& record);
QJsonValue toJson(Corner corner);
QJsonValue toJson(Direction direction);
QJsonValue toJson(Pattern pattern);
QJsonValue toJson(NameStyle style);

QStringList take(const QJsonValue& value, CabinetSizes& target);
QStringList take(const QJsonValue& value, CabinetExceptions& target);
QStringList take(const QJsonValue& value, CableLists& target);
QStringList take(const QJsonValue& value, InlineRecord& target);
QStringList take(const QJsonValue& value, Corner& target);
QStringList take(const QJsonValue& value, Direction& target);
QStringList take(const QJsonValue& value, Pattern& target);
QStringList take(const QJsonValue& value, NameStyle& target);

QJsonObject schema(const CabinetSizes&);
QJsonObject schema(const CabinetExceptions&);
QJsonObject schema(const CableLists&);
QJsonObject schema(const InlineRecord&);
QJsonObject schema(Corner);
QJsonObject schema(Direction);
QJsonObject schema(Pattern);
QJsonObject schema(NameStyle);

/// The members of a cabinet in a document, in the order in which they are written.
QStringList exceptionMembers();

} // namespace vardeno::walls
