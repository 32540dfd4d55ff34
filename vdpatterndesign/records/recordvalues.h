#pragma once

#include "records/recordfields.h"
#include "vdchartcore_export.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <map>
#include <string>

namespace vardeno::testcharttools {

/// The values of a record's fields as JSON values.
namespace recordvalues {

inline QJsonValue toJson(bool value)
{
    return value;
}
inline QJsonValue toJson(int value)
{
    return value;
}
inline QJsonValue toJson(const std::string& text)
{
    return QString::fromStdString(text);
}
VDCHARTCORE_EXPORT QJsonValue toJson(const RgbaColor& color);
VDCHARTCORE_EXPORT QJsonValue toJson(const std::map<int, QColor>& colors);

/// Each takes `value` into `target`, or leaves it and tells why: "5000 is not in 1..1000". Nothing is
/// converted or cut. Lists tell of each item, and are taken only when all of them are right.
VDCHARTCORE_EXPORT QStringList take(const QJsonValue& value, bool& target);
VDCHARTCORE_EXPORT QStringList take(const QJsonValue& value, int& target, recordfields::Range range);
VDCHARTCORE_EXPORT QStringList take(const QJsonValue& value, std::string& target,
                                    recordfields::Length longest);
VDCHARTCORE_EXPORT QStringList take(const QJsonValue& value, RgbaColor& target);
VDCHARTCORE_EXPORT QStringList take(const QJsonValue& value, std::map<int, QColor>& target);

/// The part of a JSON Schema that tells what `take` takes. The default value is told apart.
VDCHARTCORE_EXPORT QJsonObject schema(bool);
VDCHARTCORE_EXPORT QJsonObject schema(int, recordfields::Range range);
VDCHARTCORE_EXPORT QJsonObject schema(const std::string&, recordfields::Length longest);
VDCHARTCORE_EXPORT QJsonObject schema(const RgbaColor&);
VDCHARTCORE_EXPORT QJsonObject schema(const std::map<int, QColor>&);

/// What a schema of colours refers to as "#/$defs/color".
VDCHARTCORE_EXPORT QJsonObject colorSchema();

/// The opaque colours of a text like "#ff0000" or "#ff0000 #00ff00", as `take` takes them; empty where it is
/// anything else.
VDCHARTCORE_EXPORT QJsonArray hexColors(const QString& text);

/// A value as messages show it, elided where it is long.
VDCHARTCORE_EXPORT QString shown(const QJsonValue& value);
VDCHARTCORE_EXPORT QString elided(const QString& text);

VDCHARTCORE_EXPORT bool isWhole(const QJsonValue& value);

} // namespace recordvalues

} // namespace vardeno::testcharttools
