#include "records/jsoncheck.h"
#include "testcase.h"

#include <QJsonDocument>

using namespace vardeno::testcharttools;

class TestJsonCheck : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wellFormed_data()
    {
        QTest::addColumn<QByteArray>("json");
        for (const char* json :
             {"{}", "[]", " [ ] \r\n\t", "[1]", "[0, -0, 10.50, 1e5, 1E+5, 2.5e-3, -7]",
              "[true, false, null]",
              "[\"\", \"a\\\"\\\\\\/\\b\\f\\n\\r\\t\\u00e9\\uD83D\\ude42\", \"é🙂\x7f\"]",
              "{\"\": {\"a\": [{}, [], {\"b\": 1}]}, \"c\": \"}\"}", "\xef\xbb\xbf[1]",
              "[\"a\xef\xbb\xbf\\ufeff\"]"})
            QTest::newRow(json) << QByteArray(json);
        QTest::newRow("deepest") << QByteArray(500, '[') + QByteArray(500, ']');
        QTest::newRow("many one after the other") << "[" + QByteArray("[{}],").repeated(2000) + "[]]";
    }

    void wellFormed()
    {
        QFETCH(QByteArray, json);
        QCOMPARE(checkedJson(json).error, QString());
        QCOMPARE(checkedJson(json).repeated, QStringList());
        QVERIFY(!QJsonDocument::fromJson(json).isNull());
    }

    void malformed_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("error");
        const QString value = QStringLiteral("line 1: a value is expected");
        const QString digit = QStringLiteral("line 1: a digit is expected");
        const QString escape = QStringLiteral("line 1: an unknown escape in a text");
        const QString follows = QStringLiteral("line 1: something follows the document");
        QTest::newRow("empty") << QByteArray() << value;
        QTest::newRow("spaces") << QByteArray(" \n ") << "line 2: a value is expected";
        for (const char* json :
             {"[", "[1,]", "[,1]", "{\"a\":}", "[tru]", "[nul", "[True]", "[NaN]", "[Infinity]", "[+1]",
              "[.5]", "[-]", "['a']", "{\"a\": 1, \"b\": }", "[/* */1]", "[-a]"})
            QTest::newRow(json) << QByteArray(json) << value;
        for (const char* json : {"[1.]", "[1.e5]", "[1e]", "[1e+]", "[1E-]"})
            QTest::newRow(json) << QByteArray(json) << digit;
        for (const char* json : {"[01]", "[1 2]", "[1", "[1}", "[\"a\" \"b\"]", "[1.5.5]", "[0x1]"})
            QTest::newRow(json) << QByteArray(json) << "line 1: a comma or ] is expected";
        for (const char* json : {"{\"a\": 1", "{\"a\": 1]", "{\"a\": 1 \"b\": 2}"})
            QTest::newRow(json) << QByteArray(json) << "line 1: a comma or } is expected";
        for (const char* json : {"{", "{1: 2}", "{a: 1}", "{\"a\": 1,}", "{,}"})
            QTest::newRow(json) << QByteArray(json) << "line 1: a name in quotation marks is expected";
        for (const char* json : {"{\"a\"}", "{\"a\" 1}", "{\"a\""})
            QTest::newRow(json) << QByteArray(json) << "line 1: a colon is expected";
        for (const char* json : {"[\"", "[\"a", "[\"a\\\"", "{\"a"})
            QTest::newRow(json) << QByteArray(json) << "line 1: a text has no end";
        for (const char* json : {"[\"\\8\"]", "[\"\\", "[\"\\u12\"]", "[\"\\u123g\"]", "[\"\\u", "[\"\\'\"]"})
            QTest::newRow(json) << QByteArray(json) << escape;
        for (const char* json : {"{}{}", "[]]", "[] x", "1 2"})
            QTest::newRow(json) << QByteArray(json) << follows;
        QTest::newRow("NUL behind") << QByteArray("[]\0", 3) << follows;
        QTest::newRow("NUL in a text")
            << QByteArray("[\"\0\"]", 5) << "line 1: a control character in a text";
        QTest::newRow("NUL in an escape") << QByteArray("[\"\\\0\"]", 6) << escape;
        QTest::newRow("NUL for a value") << QByteArray("[\0]", 3) << value;
        QTest::newRow("a line break in a text")
            << QByteArray("[\n\"a\n\"]") << "line 2: a control character in a text";
        const QString mark = QStringLiteral("line 1: a byte order mark begins a text");
        QTest::newRow("mark in a text") << QByteArray("[\"\xef\xbb\xbfx\"]") << mark;
        QTest::newRow("mark in a name") << QByteArray("{\"\xef\xbb\xbfx\": 1}") << mark;
        QTest::newRow("mark as an escape") << QByteArray("[\"\\uFeFf\"]") << mark;
        QTest::newRow("out of range") << QByteArray("[1e999]") << "line 1: a number is out of range";
        QTest::newRow("too deep") << QByteArray(501, '[') + QByteArray(501, ']') << "line 1: nested too deep";
        QTest::newRow("too deep, of objects")
            << QByteArray("{\"a\":").repeated(100000) << "line 1: nested too deep";
        for (const char* broken :
             {"\xc3\x28", "\xff", "\xc0\x80", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\x80"})
            QTest::newRow(QByteArray("broken ") + QByteArray(broken).toHex())
                << "[\"" + QByteArray(broken) + "\"]"
                << "not UTF-8";
    }

    void malformed()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, error);
        QCOMPARE(checkedJson(json).error, error);
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
        QCOMPARE(checkedJson(json).error, QString());
        QCOMPARE(checkedJson(json).repeated, expected);
    }
};

VD_TEST_MAIN(TestJsonCheck)
#include "tst_jsoncheck.moc"
