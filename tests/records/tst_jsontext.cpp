#include "records/jsontext.h"
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
};

VD_TEST_MAIN(TestJsonText)
#include "tst_jsontext.moc"
