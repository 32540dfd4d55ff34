#include "fields.h"

#include <chartrecordfile.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

using namespace vardeno::testcharttools;

namespace {

const QMap<QString, QString>& shortNames()
{
    static const QMap<QString, QString> names = {
        {QStringLiteral("width"), QStringLiteral("publicData.resolutionWidth")},
        {QStringLiteral("height"), QStringLiteral("publicData.resolutionHeight")},
        {QStringLiteral("rows"), QStringLiteral("publicData.boxRow")},
        {QStringLiteral("columns"), QStringLiteral("publicData.boxCol")}};
    return names;
}

QStringList wholeNames()
{
    QStringList names;
    const QJsonObject beside = ChartRecordFile::withMarkers({}, {true});
    const QJsonObject record = QJsonDocument::fromJson(ChartRecordFile::toJson({}, beside)).object();
    for (const QString& group : record.keys()) {
        for (const QString& field : record.value(group).toObject().keys())
            names.append(group + QLatin1Char('.') + field);
    }
    return names;
}

} // namespace

QString fieldOf(const QString& name)
{
    return shortNames().value(name, name);
}

QStringList fieldNames()
{
    QStringList names = wholeNames() + shortNames().keys();
    names.sort();
    return names;
}

bool isField(const QString& field)
{
    static const QStringList names = wholeNames();
    return names.contains(field);
}
