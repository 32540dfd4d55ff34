#include "testcase.h"

#include <wallfile.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace vardeno::walls;

namespace {

QJsonObject objectOf(const QByteArray& json)
{
    return QJsonDocument::fromJson(json).object();
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void update(const QString& path, const QByteArray& expected)
{
    QFile file(path);
    if (qEnvironmentVariableIsSet("VD_UPDATE_SCHEMA") && file.open(QIODevice::WriteOnly))
        file.write(expected);
}

/// What a field may hold, in the words of the manual.
QString valuesOf(const QString& field, const QJsonObject& schema)
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
QStringList fieldNames()
{
    QStringList names;
    QString group;
    const QList<QByteArray> lines = WallFile::toJson(WallDocument()).split('\n');
    for (const QByteArray& line : lines) {
        const QString name = QString::fromUtf8(line).section('"', 1, 1);
        if (line.startsWith("    \""))
            names.append(group + '.' + name);
        else if (line.endsWith('{'))
            group = name;
    }
    return names;
}

QByteArray manualTable()
{
    const QJsonObject groups = objectOf(WallFile::schema()).value("properties").toObject();
    QByteArray table = "| field | values | default | meaning |\n| --- | --- | --- | --- |\n";
    const QStringList names = fieldNames();
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

} // namespace

/// The schema file and the manual say what the table of fields says. The environment variable
/// VD_UPDATE_SCHEMA=1 writes both anew.
class TestWallSchema : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fileIsTheSchema()
    {
        const QString path = sourcePath("docs/wall.schema.json");
        update(path, WallFile::schema());
        QCOMPARE(QString::fromUtf8(contents(path)), QString::fromUtf8(WallFile::schema()));
    }

    void manualListsTheFields()
    {
        const QString path = sourcePath("docs/walls.md");
        const QByteArray begin = "<!-- fields, written by tests/tst_wallschema.cpp -->\n";
        const QByteArray end = "<!-- end of the fields -->";
        QByteArray manual = contents(path);
        const int from = manual.indexOf(begin) + begin.size();
        const int to = manual.indexOf(end);
        QVERIFY(from >= begin.size() && to >= from);
        const QByteArray expected = manualTable();
        const QByteArray found = manual.mid(from, to - from);
        update(path, manual.left(from) + expected + manual.mid(to));
        QCOMPARE(QString::fromUtf8(found), QString::fromUtf8(expected));
        QCOMPARE(fieldNames().size(), 48);
    }

    /// A range of the schema is the reader's.
    void rangesAreTheReaders()
    {
        const QJsonObject groups = objectOf(WallFile::schema()).value("properties").toObject();
        int ranges = 0;
        for (const QString& name : fieldNames()) {
            const QString group = name.section('.', 0, 0);
            const QString field = name.section('.', 1);
            const QJsonObject schema =
                groups.value(group).toObject().value("properties").toObject().value(field).toObject();
            if (schema.value("type") != QJsonValue("integer"))
                continue;
            ++ranges;
            const auto problems = [&](int value) {
                const QJsonObject document{
                    {"format", "testwall"}, {"version", 1}, {group, QJsonObject{{field, value}}}};
                return WallFile::fromJson(QJsonDocument(document).toJson()).problems.join('\n');
            };
            const int least = schema.value("minimum").toInt();
            const int most = schema.value("maximum").toInt();
            QCOMPARE(problems(least), QString());
            QCOMPARE(problems(most), QString());
            const QString wrong = QStringLiteral("%1: %2 is not in %3..%4").arg(name);
            QCOMPARE(problems(least - 1), wrong.arg(least - 1).arg(least).arg(most));
            QCOMPARE(problems(most + 1), wrong.arg(most + 1).arg(least).arg(most));
        }
        QCOMPARE(ranges, 17);
    }
};

VD_TEST_MAIN(TestWallSchema)
#include "tst_wallschema.moc"
