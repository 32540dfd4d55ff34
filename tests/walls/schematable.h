#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

// What the tests of schemas share: the schema file and the manual say what a table of fields says.

namespace schematable {

inline QJsonObject objectOf(const QByteArray& json)
{
    return QJsonDocument::fromJson(json).object();
}

inline QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void update(const QString& path, const QByteArray& expected)
{
    QFile file(path);
    if (qEnvironmentVariableIsSet("VD_UPDATE_SCHEMA") && file.open(QIODevice::WriteOnly))
        file.write(expected);
}

/// What a field may hold, in the words of the manual.
inline QString valuesOf(const QString& field, const QJsonObject& schema)
{
    const QString type = schema.value("type").toString();
    if (schema.contains("enum"))
        return schema.value("enum").toVariant().toStringList().join(", ");
    if (type == "integer")
        return QStringLiteral("%1 to %2")
            .arg(schema.value("minimum").toInt())
            .arg(schema.value("maximum").toInt());
    if (type == "string")
        return QStringLiteral("text, up to %1 characters").arg(schema.value("maxLength").toInt());
    if (type == "array")
        return QStringLiteral("list, see below");
    if (type == "boolean")
        return QStringLiteral("true, false");
    return field == "chart.record" ? QStringLiteral("a record's document") : QStringLiteral("color");
}

/// The fields in the order of the documents: "group.field".
inline QStringList fieldNames(const QByteArray& document)
{
    QStringList names;
    QString group;
    const QList<QByteArray> lines = document.split('\n');
    for (const QByteArray& line : lines) {
        const QString name = QString::fromUtf8(line).section('"', 1, 1);
        if (line.startsWith("    \""))
            names.append(group + '.' + name);
        else if (line.endsWith('{'))
            group = name;
    }
    return names;
}

inline QByteArray manualTable(const QByteArray& schemaJson, const QStringList& names)
{
    const QJsonObject groups = objectOf(schemaJson).value("properties").toObject();
    QByteArray table = "| field | values | default | meaning |\n| --- | --- | --- | --- |\n";
    for (const QString& name : names) {
        const QJsonObject group = groups.value(name.section('.', 0, 0)).toObject();
        const QJsonObject schema =
            group.value("properties").toObject().value(name.section('.', 1)).toObject();
        QByteArray standard =
            QJsonDocument(QJsonArray{schema.value("default")}).toJson(QJsonDocument::Compact);
        standard = standard.mid(1).chopped(1).replace(",", ", ");
        table += "| `" + name.toUtf8() + "` | " + valuesOf(name, schema).toUtf8() + " | `" + standard +
                 "` | " + schema.value("description").toString().toUtf8() + " |\n";
    }
    return table;
}

/// Compares the table of fields in a manual with `expected`.
inline void compareManual(const QString& path, const QByteArray& begin, const QByteArray& expected)
{
    const QByteArray end = "<!-- end of the fields -->";
    QByteArray manual = contents(path);
    const int from = int(manual.indexOf(begin)) + int(begin.size());
    const int to = int(manual.indexOf(end));
    QVERIFY(from >= begin.size() && to >= from);
    const QByteArray found = manual.mid(from, to - from);
    update(path, manual.left(from) + expected + manual.mid(to));
    QCOMPARE(QString::fromUtf8(found), QString::fromUtf8(expected));
}

} // namespace schematable
