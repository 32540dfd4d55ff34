#pragma once

#include "records/recordfields.h"

#include <QJsonArray>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <map>
#include <string>

namespace vardeno::testcharttools {

/// The values of a record's fields as JSON values.
namespace recordvalues {

QJsonValue toJson(const RgbaColor& color);
QJsonValue toJson(const std::map<int, QColor>& colors);

/// Each takes `value` into `target`, or leaves it and tells why: "5000 is not in 1..1000". Nothing is
/// converted or cut. Lists tell of each item, and are taken only when all of them are right.
QStringList take(const QJsonValue& value, bool& target);
QStringList take(const QJsonValue& value, int& target, recordfields::Range range);
QStringList take(const QJsonValue& value, std::string& target, recordfields::Length longest);
QStringList take(const QJsonValue& value, RgbaColor& target);
QStringList take(const QJsonValue& value, std::map<int, QColor>& target);

/// The opaque colours of a text like "#ff0000" or "#ff0000 #00ff00", as `take` takes them; empty where it is
/// anything else.
QJsonArray hexColors(const QString& text);

/// A value as messages show it, elided where it is long.
QString shown(const QJsonValue& value);
QString elided(const QString& text);

bool isWhole(const QJsonValue& value);

} // namespace recordvalues

} // namespace vardeno::testcharttools
