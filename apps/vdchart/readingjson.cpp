#include "readingjson.h"

#include <QJsonArray>

#include <cmath>

using namespace WallReading;

namespace {

/// Tenths and hundredths are what is known.
double rounded(double value, double steps)
{
    return std::round(value * steps) / steps;
}

QJsonArray pointJson(const QPointF& point)
{
    return {rounded(point.x(), 100), rounded(point.y(), 100)};
}

QJsonObject placeJson(const Place& place)
{
    return {{QStringLiteral("row"), place.row}, {QStringLiteral("column"), place.column}};
}

QJsonObject findingJson(const Finding& finding)
{
    QJsonObject object = placeJson(finding.cabinet);
    object.insert(QStringLiteral("kind"), kindName(finding.kind));
    if (finding.shows)
        object.insert(QStringLiteral("shows"), placeJson(*finding.shows));
    if (finding.turn != 0)
        object.insert(QStringLiteral("turn"), finding.turn);
    if (finding.kind == Kind::Shifted)
        object.insert(QStringLiteral("shift"), pointJson(finding.shift));
    object.insert(QStringLiteral("confidence"), rounded(finding.confidence, 1000));
    return object;
}

QJsonObject edgeJson(const EdgeLoss& edge)
{
    return {{QStringLiteral("edge"), edgeName(edge.edge)}, {QStringLiteral("pixels"), edge.pixels}};
}

QJsonObject wholeJson(const WholeFinding& finding)
{
    if (finding.kind == Whole::Turned)
        return {{QStringLiteral("kind"), QStringLiteral("turned")}, {QStringLiteral("turn"), finding.turn}};
    return {{QStringLiteral("kind"), QStringLiteral("mirrored")}};
}

template <typename Values, typename Each>
QJsonArray arrayOf(const Values& values, Each each)
{
    QJsonArray array;
    for (const auto& value : values)
        array.append(each(value));
    return array;
}

} // namespace

QJsonObject readingJson(const Reading& reading)
{
    QJsonObject object{{QStringLiteral("located"), reading.isLocated},
                       {QStringLiteral("findings"), arrayOf(reading.findings, findingJson)},
                       {QStringLiteral("edges"), arrayOf(reading.edges, edgeJson)},
                       {QStringLiteral("whole"), arrayOf(reading.whole, wholeJson)},
                       {QStringLiteral("texts"), QJsonArray::fromStringList(reading.sentences())}};
    if (reading.isLocated)
        object.insert(QStringLiteral("corners"), arrayOf(reading.corners, pointJson));
    return object;
}
