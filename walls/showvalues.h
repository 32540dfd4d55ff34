#pragma once

#include "showdocument.h"

#include <QJsonValue>
#include <QStringList>

namespace vardeno::walls {

// The values of a show's fields as JSON values, as `wallvalues.h` has those of walls.

QJsonValue toJson(const ShowOutputs& outputs);
QJsonValue toJson(const ShowWalls& walls);
QJsonValue toJson(const WallPlacements& placements);

QJsonValue toJson(const WallColor& color);
QJsonValue toJson(const WallPart& part);
QJsonValue toJson(QuarterTurn turn);

QStringList take(const QJsonValue& value, ShowOutputs& target);
QStringList take(const QJsonValue& value, ShowWalls& target);
QStringList take(const QJsonValue& value, WallPlacements& target);

QStringList take(const QJsonValue& value, WallColor& target);
QStringList take(const QJsonValue& value, WallPart& target);
QStringList take(const QJsonValue& value, QuarterTurn& target);

QJsonObject schema(const ShowOutputs&);
QJsonObject schema(const ShowWalls&);
QJsonObject schema(const WallPlacements&);
QJsonObject schema(const WallColor&);
QJsonObject schema(const WallPart&);
QJsonObject schema(QuarterTurn);

/// The members of all that stands in a show's lists, in the order in which they are written.
QStringList showMembers();

/// What is unknown in the lists: "show.outputs: (output 2) widht: unknown member, did you mean width?".
QStringList unknownInLists(const ShowDocument& show);

} // namespace vardeno::walls
