#include "common/jsontext.h"
#include "testcase.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace vardeno::testcharttools;

class TestJsonText : public TestCase
{
    Q_OBJECT

private:
    static QJsonObject parsed(const QByteArray& json) { return QJsonDocument::fromJson(json).object(); }

private Q_SLOTS:
    void layout_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QByteArray>("expected");
        const QByteArray nine(89, '9');
        QTest::newRow("nothing") << QByteArray("{}") << QByteArray("{}\n");
        QTest::newRow("scalars")
            << QByteArray("{\"a\":1,\"b\":-2.5,\"c\":true,\"d\":null,\"e\":\"x\\n\\\"é\\u0001\"}")
            << QByteArray("{\n  \"a\": 1,\n  \"b\": -2.5,\n  \"c\": true,\n  \"d\": null,\n"
                          "  \"e\": \"x\\n\\\"é\\u0001\"\n}\n");
        QTest::newRow("ordered members first")
            << QByteArray("{\"a\":1,\"second\":2,\"first\":3}")
            << QByteArray("{\n  \"first\": 3,\n  \"second\": 2,\n  \"a\": 1\n}\n");
        QTest::newRow("empty ones within") << QByteArray("{\"a\":[],\"b\":{},\"c\":[{}]}")
                                           << QByteArray("{\n  \"a\": [],\n  \"b\": {},\n  \"c\": [{}]\n}\n");
        QTest::newRow("short list") << QByteArray("{\"a\":[1,[2,{\"b\":3,\"c\":4}]]}")
                                    << QByteArray("{\n  \"a\": [1, [2, {\"b\": 3, \"c\": 4}]]\n}\n");
        QTest::newRow("list that just fits") << "{\"a\":[\"" + nine + "\"]}"
                                             << "{\n  \"a\": [\"" + nine + "\"]\n}\n";
        QTest::newRow("list that does not") << "{\"a\":[\"9" + nine + "\"]}"
                                            << "{\n  \"a\": [\n    \"9" + nine + "\"\n  ]\n}\n";
        QTest::newRow("object in an object")
            << QByteArray("{\"a\":{\"b\":{\"c\":1}}}")
            << QByteArray("{\n  \"a\": {\n    \"b\": {\n      \"c\": 1\n    }\n  "
                          "}\n}\n");
    }

    void layout()
    {
        QFETCH(QByteArray, json);
        QFETCH(QByteArray, expected);
        const QByteArray text = jsonText(parsed(json), {"first", "second"});
        QCOMPARE(QString::fromUtf8(text), QString::fromUtf8(expected));
        QCOMPARE(parsed(text), parsed(json));
    }

    void deepDocumentsStaySmall()
    {
        const QByteArray wide = "[" + QByteArray("[],").repeated(20000) + "[]]";
        const QByteArray json =
            "{\"a\":" + QByteArray("[").repeated(900) + wide + QByteArray("]").repeated(900) + "}";
        const QByteArray text = jsonText(parsed(json), {});
        QVERIFY(text.size() < 2 * json.size());
        QCOMPARE(parsed(text), parsed(json));
    }

    void line()
    {
        QCOMPARE(jsonLine(QJsonArray{1, QJsonObject{{"a", 2}}, QStringLiteral("x")}),
                 QByteArray("[1, {\"a\": 2}, \"x\"]"));
    }

    void repeated_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("none") << QByteArray("{\"a\":{\"a\":\"a\",\"b\":[\"a\",\"a\"]},\"b\":{\"a\":1}}")
                              << QStringList();
        QTest::newRow("at the top") << QByteArray("{\"a\":1,\"b\":2,\"a\":3,\"a\":4}") << QStringList("a");
        QTest::newRow("within") << QByteArray("{\"a\":{\"b\":1,\"b\":2}}") << QStringList("a.b");
        QTest::newRow("after an inner object")
            << QByteArray("{\"a\":{\"b\":[{\"c\":{}}],\"b\":2},\"a\":1}") << QStringList({"a.b", "a"});
        QTest::newRow("written differently")
            << QByteArray("{\"a\\\"\":1,\"\\u0061\\\"\":2}") << QStringList("a\"");
        QTest::newRow("what texts hold")
            << QByteArray("{\"a\":\"{\\\"a\\\":1,\\\"a\\\":2}\\\\\",\"b\":\"\\\\\"}") << QStringList();
        QTest::newRow("in a list of objects")
            << QByteArray("[{\"a\":1},{\"a\":1,\"a\":2}]") << QStringList("a");
        QTest::newRow("deep down") << QByteArray("{\"a\":{\"b\":{\"c\":{\"d\":{\"e\":1,\"e\":2}}}}}")
                                   << QStringList(QStringLiteral("a.b.….e"));
        QTest::newRow("long name") << "{\"" + QByteArray(99, 'x') + "\":1,\"" + QByteArray(99, 'x') + "\":1}"
                                   << QStringList(QString(40, 'x') + QStringLiteral("…"));
        QTest::newRow("very many") << QByteArray(
                                          "{\"a\":1,\"a\":1,\"b\":1,\"b\":1,\"c\":1,\"c\":1,\"d\":1,\"d\":1,"
                                          "\"e\":1,\"e\":1,\"f\":1,\"f\":1,\"g\":1,\"g\":1,"
                                          "\"h\":1,\"h\":1,\"i\":1,\"i\":1,\"j\":1,\"j\":1,\"k\":1,\"k\":1}")
                                   << QStringList({"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"});
    }

    void repeated()
    {
        QFETCH(QByteArray, json);
        QFETCH(QStringList, expected);
        QCOMPARE(QJsonDocument::fromJson(json).isNull(), false);
        QCOMPARE(repeatedMembers(json), expected);
    }
};

VD_TEST_MAIN(TestJsonText)
#include "tst_jsontext.moc"
