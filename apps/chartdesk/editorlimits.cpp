#include "editorlimits.h"

#include <chartrecordfile.h>

#include <QJsonDocument>
#include <QJsonObject>

using namespace vardeno::testcharttools;

namespace {

QJsonObject document(const TestChartToolsData& record)
{
    return QJsonDocument::fromJson(ChartRecordFile::toJson(record)).object();
}

} // namespace

QStringList beyondEditor(const TestChartToolsData& record, const TestChartToolsData& shown)
{
    QStringList found;
    const QJsonObject wanted = document(record);
    const QJsonObject got = document(shown);
    for (auto group = wanted.begin(); group != wanted.end(); ++group) {
        const QJsonObject fields = group.value().toObject();
        for (auto field = fields.begin(); field != fields.end(); ++field) {
            const QJsonValue value = field.value();
            if (value.isDouble() && value != got.value(group.key()).toObject().value(field.key()))
                found.append(QStringLiteral("%1.%2: %3").arg(group.key(), field.key()).arg(value.toInt()));
        }
    }
    return found;
}
