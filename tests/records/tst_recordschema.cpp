#include "chartrecordfile.h"
#include "testcase.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace vardeno::testcharttools;

namespace {

QJsonObject schemaDocument()
{
    return QJsonDocument::fromJson(ChartRecordFile::schema()).object();
}

/// With what stands beside the record only where it is wanted.
QByteArray wholeDocument()
{
    QJsonObject beside = ChartRecordFile::withMarkers({}, {true});
    beside.insert("markerData", QJsonObject{{"showMarkers", false}});
    return ChartRecordFile::toJson({}, beside);
}

QString fromDocs(const char* name)
{
    return sourcePath("docs/") + QLatin1String(name);
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Sets the field to `value` and returns what the reader says.
QStringList problemsWith(const QString& group, const QString& field, const QJsonValue& value)
{
    QJsonObject document = QJsonDocument::fromJson(wholeDocument()).object();
    QJsonObject members = document.value(group).toObject();
    members.insert(field, value);
    document.insert(group, members);
    return ChartRecordFile::fromJson(QJsonDocument(document).toJson()).problems;
}

QJsonArray colors(int count)
{
    QJsonArray list;
    for (int i = 0; i < count; ++i)
        list.append(QJsonArray{1, 2, 3, 4});
    return list;
}

/// What a field may hold, in the words of the manual.
QString valuesOf(const QJsonObject& schema)
{
    const QString type = schema.value("type").toString();
    if (type == "integer")
        return QStringLiteral("%1 to %2")
            .arg(schema.value("minimum").toInt())
            .arg(schema.value("maximum").toInt());
    if (type == "string")
        return QStringLiteral("text, up to %1 characters").arg(schema.value("maxLength").toInt());
    if (type == "array")
        return QStringLiteral("up to %1 colors").arg(schema.value("maxItems").toInt());
    return type == "boolean" ? QStringLiteral("true, false") : QStringLiteral("color");
}

QByteArray manualTable(const QStringList& order)
{
    const QJsonObject groups = schemaDocument().value("properties").toObject();
    QByteArray table = "| field | values | default | meaning |\n| --- | --- | --- | --- |\n";
    for (const QString& name : order) {
        const QString group = name.section('.', 0, 0);
        const QString field = name.section('.', 1);
        const QJsonObject schema =
            groups.value(group).toObject().value("properties").toObject().value(field).toObject();
        QByteArray standard =
            QJsonDocument(QJsonArray{schema.value("default")}).toJson(QJsonDocument::Compact);
        standard = standard.mid(1).chopped(1).replace(",", ", ");
        table += "| `" + name.toUtf8() + "` | " + valuesOf(schema).toUtf8() + " | `" + standard + "` | " +
                 schema.value("description").toString().toUtf8() + " |\n";
    }
    return table;
}

/// The fields in the order of the documents.
QStringList fieldNames()
{
    QStringList names;
    const QJsonObject document = QJsonDocument::fromJson(wholeDocument()).object();
    QMap<int, QString> places;
    const QByteArray text = wholeDocument();
    for (const QString& group : document.keys()) {
        const int begin = text.indexOf("\"" + group.toUtf8() + "\": {");
        for (const QString& field : document.value(group).toObject().keys())
            places.insert(text.indexOf("\"" + field.toUtf8() + "\":", begin), group + '.' + field);
    }
    return places.values();
}

void update(const QString& path, const QByteArray& expected)
{
    QFile file(path);
    if (qEnvironmentVariableIsSet("VD_UPDATE_SCHEMA") && file.open(QIODevice::WriteOnly))
        file.write(expected);
}

} // namespace

/// The schema says what the reader does, and the manual and the schema file say what the schema says. The
/// environment variable VD_UPDATE_SCHEMA=1 writes both anew.
class TestRecordSchema : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fileIsTheSchema()
    {
        update(fromDocs("chart-record.schema.json"), ChartRecordFile::schema());
        QCOMPARE(QString::fromUtf8(contents(fromDocs("chart-record.schema.json"))),
                 QString::fromUtf8(ChartRecordFile::schema()));
    }

    void manualListsTheFields()
    {
        const QByteArray begin = "<!-- fields, written by tests/tst_recordschema.cpp -->\n";
        const QByteArray end = "<!-- end of the fields -->\n";
        const QByteArray manual = contents(fromDocs("records.md"));
        const int from = manual.indexOf(begin) + begin.size();
        const int to = manual.indexOf(end);
        QVERIFY(manual.contains(begin) && to >= from);
        QCOMPARE(fieldNames().size(), 50);
        const QByteArray table = manualTable(fieldNames());
        update(fromDocs("records.md"), manual.left(from) + table + manual.mid(to));
        const QByteArray current = contents(fromDocs("records.md"));
        QCOMPARE(QString::fromUtf8(current.mid(from, current.indexOf(end) - from)), QString::fromUtf8(table));
    }

    void head()
    {
        const QJsonObject schema = schemaDocument();
        QCOMPARE(schema.value("$schema").toString(),
                 QStringLiteral("https://json-schema.org/draft/2020-12/schema"));
        const QJsonObject record = QJsonDocument::fromJson(wholeDocument()).object();
        QCOMPARE(schema.value("$id"), record.value("$schema"));
        const QJsonObject members = schema.value("properties").toObject();
        QCOMPARE(members.keys(), record.keys());
        QCOMPARE(members.value("format").toObject().value("const"), record.value("format"));
        QCOMPARE(members.value("version").toObject().value("const"), record.value("version"));
        QCOMPARE(schema.value("required").toArray(), QJsonArray({"format", "version"}));
    }

    void fields_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("field");
        for (const QString& name : fieldNames())
            QTest::newRow(qPrintable(name)) << name.section('.', 0, 0) << name.section('.', 1);
    }

    /// Each limit of the schema is the reader's.
    void fields()
    {
        QFETCH(QString, group);
        QFETCH(QString, field);
        const QJsonObject groups = schemaDocument().value("properties").toObject();
        const QJsonObject schema =
            groups.value(group).toObject().value("properties").toObject().value(field).toObject();
        const QJsonObject record = QJsonDocument::fromJson(wholeDocument()).object();
        QCOMPARE(schema.value("default"), record.value(group).toObject().value(field));
        QVERIFY(!schema.value("description").toString().isEmpty());

        const auto accepts = [&](const QJsonValue& value) {
            return problemsWith(group, field, value).isEmpty();
        };
        const QString type = schema.value("type").toString();
        QCOMPARE(accepts(true), type == "boolean");
        QCOMPARE(accepts(QStringLiteral("x")), type == "string");
        if (type == "integer") {
            QVERIFY(accepts(schema.value("minimum")) && accepts(schema.value("maximum")));
            QVERIFY(!accepts(schema.value("minimum").toInt() - 1));
            QVERIFY(!accepts(schema.value("maximum").toInt() + 1));
        } else if (type == "string") {
            QVERIFY(accepts(QString(schema.value("maxLength").toInt(), 'x')));
            QVERIFY(!accepts(QString(schema.value("maxLength").toInt() + 1, 'x')));
            QVERIFY(!accepts(QString(QChar())));
        } else if (type == "array") {
            QVERIFY(accepts(colors(schema.value("maxItems").toInt())));
            QVERIFY(!accepts(colors(schema.value("maxItems").toInt() + 1)));
        } else if (type.isEmpty()) {
            QCOMPARE(schema.value("$ref").toString(), QStringLiteral("#/$defs/color"));
            QVERIFY(accepts(QJsonArray({0, 255, 0, 255})));
        }
    }
};

VD_TEST_MAIN(TestRecordSchema)
#include "tst_recordschema.moc"
