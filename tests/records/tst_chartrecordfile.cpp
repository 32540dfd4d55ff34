#include "chartrecordfile.h"
#include "testcase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

using namespace vardeno::testcharttools;

namespace {

/// A record in which every field differs from its default.
TestChartToolsData fullRecord()
{
    TestChartToolsData record;
    record.basicData = {{{0, QColor(1, 2, 3, 4)}, {1, QColor(5, 6, 7)}, {2, QColor(0, 0, 0, 0)}},
                        {{0, QColor(8, 9, 10, 11)}},
                        {12, 13, 14, 15},
                        {16, 17, 18, 19},
                        false,
                        true,
                        true};
    record.publicData = {37, 4320, 16, 100, 1, false, 21, {22, 23, 24, 25}};
    record.inLineData = {false,
                         16384,
                         26,
                         {27, 28, 29, 30},
                         false,
                         31,
                         {32, 33, 34, 35},
                         false,
                         36,
                         {37, 38, 39, 40},
                         false,
                         true,
                         true,
                         2,
                         3};
    record.logoData = {
        false, false, true, "标志 \"A\"\n\\ 🙂", 41, {42, 43, 44, 45}, 199, "/图片/logo.png", 4,
        16384, 46,    47};
    record.selfData = {false, "", 48, {49, 50, 51, 52}, false, 53, {54, 55, 56, 57}};
    return record;
}

QJsonObject asObject(const TestChartToolsData& record)
{
    return QJsonDocument::fromJson(ChartRecordFile::toJson(record)).object();
}

QByteArray asJson(const QJsonObject& document)
{
    return QJsonDocument(document).toJson();
}

/// "publicData.boxRow" split at the dot.
QString groupOf(const QString& field)
{
    return field.section(QLatin1Char('.'), 0, 0);
}

QString nameOf(const QString& field)
{
    return field.section(QLatin1Char('.'), 1);
}

QJsonValue valueOf(const QJsonObject& document, const QString& field)
{
    return document.value(groupOf(field)).toObject().value(nameOf(field));
}

/// `document` with `field` set to `value`, or without the field for an undefined value.
QJsonObject with(QJsonObject document, const QString& field, const QJsonValue& value)
{
    QJsonObject group = document.value(groupOf(field)).toObject();
    group.insert(nameOf(field), value);
    document.insert(groupOf(field), group);
    return document;
}

QStringList allFields()
{
    QStringList fields;
    const QJsonObject document = asObject(TestChartToolsData());
    for (const QString& group : document.keys()) {
        const QStringList names = document.value(group).toObject().keys();
        for (const QString& name : names)
            fields.append(group + QLatin1Char('.') + name);
    }
    return fields;
}

QJsonArray numbers(const std::vector<double>& values)
{
    QJsonArray array;
    for (const double value : values)
        array.append(value);
    return array;
}

const QString notColor = QStringLiteral("is not a color [r, g, b, a] of numbers in 0..255");

} // namespace

Q_DECLARE_METATYPE(QJsonValue)

class TestChartRecordFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void documentNamesEveryField()
    {
        QCOMPARE(allFields().size(), 49);
        const QJsonObject defaults = asObject(TestChartToolsData());
        const QJsonObject full = asObject(fullRecord());
        QCOMPARE(defaults.value(QStringLiteral("format")).toString(), QStringLiteral("testchart"));
        QCOMPARE(defaults.value(QStringLiteral("version")).toInt(), 1);
        for (const QString& field : allFields())
            QVERIFY2(valueOf(full, field) != valueOf(defaults, field), qPrintable(field));
    }

    void documentHoldsPlainValues()
    {
        const QJsonObject document = asObject(fullRecord());
        QCOMPARE(valueOf(document, QStringLiteral("basicData.oddColor")).toArray(),
                 numbers({12, 13, 14, 15}));
        const QJsonArray stripes = valueOf(document, QStringLiteral("basicData.colorStripeColors")).toArray();
        QCOMPARE(stripes.size(), 3);
        QCOMPARE(stripes.first().toArray(), numbers({1, 2, 3, 4}));
        QCOMPARE(valueOf(document, QStringLiteral("publicData.boxRow")), QJsonValue(100));
        QCOMPARE(valueOf(document, QStringLiteral("publicData.showOutBorder")), QJsonValue(false));
        QCOMPARE(valueOf(document, QStringLiteral("logoData.picturePath")).toString(),
                 QStringLiteral("/图片/logo.png"));
        QVERIFY(ChartRecordFile::toJson(fullRecord()).contains("标志"));
    }

    void roundTrip_data()
    {
        QTest::addColumn<bool>("full");
        QTest::newRow("every field at its default") << false;
        QTest::newRow("every field changed") << true;
    }

    void roundTrip()
    {
        QFETCH(bool, full);
        const TestChartToolsData record = full ? fullRecord() : TestChartToolsData();
        const ChartRecordFile::Reading reading = ChartRecordFile::fromJson(ChartRecordFile::toJson(record));
        QCOMPARE(reading.problems, QStringList());
        QVERIFY(reading.record == record);
    }

    void listsWithGapsAreNumberedAnew()
    {
        TestChartToolsData record;
        record.basicData.gradientColors = {{3, Qt::red}, {9, Qt::blue}};
        const ChartRecordFile::Reading reading = ChartRecordFile::fromJson(ChartRecordFile::toJson(record));
        const std::map<int, QColor> expected = {{0, QColor(255, 0, 0)}, {1, QColor(0, 0, 255)}};
        QVERIFY(reading.record.basicData.gradientColors == expected);
    }

    void missingFieldTakesItsDefault_data()
    {
        QTest::addColumn<QString>("field");
        for (const QString& field : allFields())
            QTest::newRow(qPrintable(field)) << field;
    }

    void missingFieldTakesItsDefault()
    {
        QFETCH(QString, field);
        const QJsonObject full = asObject(fullRecord());
        const ChartRecordFile::Reading reading =
            ChartRecordFile::fromJson(asJson(with(full, field, QJsonValue::Undefined)));
        QCOMPARE(reading.problems, QStringList());
        const QJsonValue standard = valueOf(asObject(TestChartToolsData()), field);
        QCOMPARE(asObject(reading.record), with(full, field, standard));
    }

    void missingGroupTakesItsDefaults_data()
    {
        QTest::addColumn<QString>("group");
        for (const char* group : {"basicData", "publicData", "inLineData", "logoData", "selfData"})
            QTest::newRow(group) << group;
    }

    void missingGroupTakesItsDefaults()
    {
        QFETCH(QString, group);
        QJsonObject document = asObject(fullRecord());
        document.remove(group);
        const ChartRecordFile::Reading reading = ChartRecordFile::fromJson(asJson(document));
        QCOMPARE(reading.problems, QStringList());
        document.insert(group, asObject(TestChartToolsData()).value(group));
        QCOMPARE(asObject(reading.record), document);
    }

    void bareDocumentIsTheDefaultRecord()
    {
        const ChartRecordFile::Reading reading =
            ChartRecordFile::fromJson("{\"format\": \"testchart\", \"version\": 1}");
        QCOMPARE(reading.problems, QStringList());
        QVERIFY(reading.record == TestChartToolsData());
    }

    void unknownFieldsArePassedOver()
    {
        QJsonObject document = with(asObject(fullRecord()), QStringLiteral("publicData.later"), 7);
        document.insert(QStringLiteral("laterData"), QJsonObject());
        const ChartRecordFile::Reading reading = ChartRecordFile::fromJson(asJson(document));
        QCOMPARE(reading.problems, QStringList());
        QVERIFY(reading.record == fullRecord());
    }

    void ranges_data()
    {
        QTest::addColumn<int>("least");
        QTest::addColumn<int>("most");
        QTest::newRow("publicData.brightness") << 0 << 100;
        QTest::newRow("publicData.resolutionWidth") << 16 << 32768;
        QTest::newRow("publicData.resolutionHeight") << 16 << 32768;
        QTest::newRow("publicData.boxRow") << 1 << 1000;
        QTest::newRow("publicData.boxCol") << 1 << 1000;
        QTest::newRow("publicData.outBorderWidth") << 1 << 100;
        QTest::newRow("inLineData.circleSize") << 1 << 16384;
        QTest::newRow("inLineData.circleWidth") << 1 << 100;
        QTest::newRow("inLineData.diagonalWidth") << 1 << 100;
        QTest::newRow("inLineData.serialSize") << 1 << 100;
        QTest::newRow("inLineData.serialPosition") << 0 << 2;
        QTest::newRow("inLineData.serialSort") << 0 << 3;
        QTest::newRow("logoData.textSize") << 0 << 100;
        QTest::newRow("logoData.scale") << 0 << 200;
        QTest::newRow("logoData.displayPosition") << 0 << 4;
        QTest::newRow("logoData.offsetX") << 0 << 16384;
        QTest::newRow("logoData.offsetY") << 0 << 16384;
        QTest::newRow("logoData.opacity") << 0 << 100;
        QTest::newRow("selfData.selfTextSize") << 1 << 200;
        QTest::newRow("selfData.resolutionTextSize") << 1 << 200;
    }

    void ranges()
    {
        QFETCH(int, least);
        QFETCH(int, most);
        const QString field = QString::fromLatin1(QTest::currentDataTag());
        verifyAccepted(field, least);
        verifyAccepted(field, most);
        const QString reason = QStringLiteral("is not in %1..%2").arg(least).arg(most);
        verifyRefused(field, least - 1, QStringLiteral("%1 %2").arg(least - 1).arg(reason));
        verifyRefused(field, most + 1, QStringLiteral("%1 %2").arg(most + 1).arg(reason));
        verifyRefused(field, -2147483648.0, QStringLiteral("-2147483648 ") + reason);
        verifyRefused(field, 4294967296.0 + least,
                      QStringLiteral("%1 %2").arg(4294967296LL + least).arg(reason));
    }

    void everyNumberHasARange()
    {
        QStringList tested;
        for (const QString& field : allFields()) {
            if (valueOf(asObject(TestChartToolsData()), field).isDouble())
                tested.append(field);
        }
        QCOMPARE(tested.size(), 20);
    }

    void wrongTypes_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QString>("problem");
        const QJsonObject defaults = asObject(TestChartToolsData());
        for (const QString& field : allFields())
            addWrongTypes(field, valueOf(defaults, field));
    }

    void wrongTypes()
    {
        QFETCH(QString, field);
        QFETCH(QJsonValue, value);
        QFETCH(QString, problem);
        verifyRefused(field, value, problem);
    }

    void wrongColors_data()
    {
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QString>("shown");
        QTest::newRow("three components") << QJsonValue(numbers({1, 2, 3})) << "[1, 2, 3]";
        QTest::newRow("five components") << QJsonValue(numbers({1, 2, 3, 4, 5})) << "[1, 2, 3, 4, 5]";
        QTest::newRow("no components") << QJsonValue(QJsonArray()) << "[]";
        QTest::newRow("red below 0") << QJsonValue(numbers({-1, 2, 3, 4})) << "[-1, 2, 3, 4]";
        QTest::newRow("alpha above 255") << QJsonValue(numbers({1, 2, 3, 256})) << "[1, 2, 3, 256]";
        QTest::newRow("half a step") << QJsonValue(numbers({1, 2.5, 3, 4})) << "[1, 2.5, 3, 4]";
        QTest::newRow("a text among them")
            << QJsonValue(QJsonArray{1, 2, QStringLiteral("3"), 4}) << "[1, 2, \"3\", 4]";
        QTest::newRow("a name") << QJsonValue(QStringLiteral("red")) << "\"red\"";
    }

    void wrongColors()
    {
        QFETCH(QJsonValue, value);
        QFETCH(QString, shown);
        const QString problem = shown + QLatin1Char(' ') + notColor;
        verifyRefused(QStringLiteral("basicData.oddColor"), value, problem);

        const QString list = QStringLiteral("basicData.gradientColors");
        const QJsonArray good = numbers({1, 2, 3, 4});
        const QJsonObject document = with(asObject(fullRecord()), list, QJsonArray{good, value, good});
        QCOMPARE(ChartRecordFile::fromJson(asJson(document)).problems,
                 QStringList(QStringLiteral("basicData.gradientColors: ") + shown +
                             QStringLiteral(" (color 2) ") + notColor));
    }

    void allProblemsAreReported()
    {
        QJsonObject document = asObject(fullRecord());
        document = with(document, QStringLiteral("basicData.chessChecked"), 1);
        document = with(document, QStringLiteral("publicData.boxRow"), 5000);
        document.insert(QStringLiteral("logoData"), QJsonArray());
        const QStringList expected = {QStringLiteral("basicData.chessChecked: 1 is not true or false"),
                                      QStringLiteral("publicData.boxRow: 5000 is not in 1..1000"),
                                      QStringLiteral("logoData: [] is not an object")};
        QCOMPARE(ChartRecordFile::fromJson(asJson(document)).problems, expected);
    }

    void wrongDocuments_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("problem");
        const QByteArray full = ChartRecordFile::toJson(fullRecord());
        const QString otherFormat = QStringLiteral("^format: testchart expected$");
        const QString otherVersion = QStringLiteral("^version: 1 expected$");
        const QString newer = QStringLiteral("^version: %1 is newer than 1, the newest that is known$");
        const QString notJson = QStringLiteral("^not JSON: line \\d+: .+$");
        const QString notUtf8 = QStringLiteral("^not JSON: not UTF-8$");
        QTest::newRow("empty") << QByteArray() << "^not JSON: empty$";
        QTest::newRow("cut at the first quarter") << full.left(full.size() / 4) << notJson;
        QTest::newRow("cut in the middle") << full.left(full.size() / 2) << notJson;
        QTest::newRow("cut before the last brace") << full.left(full.lastIndexOf('}')) << notJson;
        QTest::newRow("something after it") << full + "{}" << notJson;
        QTest::newRow("not JSON") << QByteArray("brightness = 100") << notJson;
        QTest::newRow("a BOM alone") << QByteArray("\xef\xbb\xbf") << notJson;
        QTest::newRow("UTF-16") << QByteArray("\xff\xfe{\0}\0", 6) << notUtf8;
        for (const char* broken :
             {"\xc3\x28", "\xff", "\xc0\x80", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\x80"})
            QTest::newRow(QByteArray("invalid UTF-8 ") + QByteArray(broken).toHex())
                << QByteArray(full).replace("标志", broken) << notUtf8;
        QTest::newRow("UTF-8 that breaks off") << full + "\xe6\xa0" << notUtf8;
        QTest::newRow("a number beyond all numbers") << QByteArray(full).replace("199", "1e999") << notJson;
        QTest::newRow("not a number") << QByteArray(full).replace("199", "NaN") << notJson;
        QTest::newRow("a NUL byte") << full + QByteArray(1, '\0') << notJson;
        QTest::newRow("very deep") << QByteArray(500000, '[') << notJson;
        QTest::newRow("very deep and closed") << QByteArray(5000, '[') + QByteArray(5000, ']') << notJson;
        QTest::newRow("an array") << QByteArray("[1, 2]") << "^not an object$";
        QTest::newRow("more than 1 MiB") << QByteArray(full) + QByteArray((1 << 20) + 1 - full.size(), ' ')
                                         << "^1048577 bytes are more than 1048576$";
        QTest::newRow("no format") << QByteArray("{\"version\": 1}") << otherFormat;
        QTest::newRow("another format")
            << QByteArray("{\"format\": \"chart\", \"version\": 1}") << otherFormat;
        QTest::newRow("no version") << QByteArray("{\"format\": \"testchart\"}") << otherVersion;
        QTest::newRow("newer version")
            << QByteArray(full).replace("\"version\": 1", "\"version\": 2") << newer.arg(2);
        QTest::newRow("much newer version")
            << QByteArray(full).replace("\"version\": 1", "\"version\": 4294967297") << newer.arg(4294967297);
        QTest::newRow("version with a fraction")
            << QByteArray(full).replace("\"version\": 1", "\"version\": 1.5") << otherVersion;
        QTest::newRow("older version")
            << QByteArray(full).replace("\"version\": 1", "\"version\": 0") << otherVersion;
        QTest::newRow("version as a text")
            << QByteArray(full).replace("\"version\": 1", "\"version\": \"1\"") << otherVersion;
    }

    void wrongDocuments()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, problem);
        const ChartRecordFile::Reading reading = ChartRecordFile::fromJson(json);
        QCOMPARE(reading.problems.size(), 1);
        QVERIFY2(QRegularExpression(problem).match(reading.problems.first()).hasMatch(),
                 qPrintable(reading.problems.first()));
        QVERIFY(reading.record == TestChartToolsData());
    }

    void writesAndReadsFiles()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("记录.json"));
        QCOMPARE(ChartRecordFile::write(path, TestChartToolsData()), QString());
        QCOMPARE(ChartRecordFile::write(path, fullRecord()), QString());
        const ChartRecordFile::Reading reading = ChartRecordFile::read(path);
        QCOMPARE(reading.problems, QStringList());
        QVERIFY(reading.record == fullRecord());
        QCOMPARE(contents(path), ChartRecordFile::toJson(fullRecord()));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void largestDocument()
    {
        const QByteArray full = ChartRecordFile::toJson(fullRecord());
        const QByteArray json = full + QByteArray((1 << 20) - full.size(), ' ');
        QCOMPARE(ChartRecordFile::fromJson(json).problems, QStringList());
    }

    void byteOrderMarkIsPassedOver()
    {
        const auto reading =
            ChartRecordFile::fromJson("\xef\xbb\xbf" + ChartRecordFile::toJson(fullRecord()));
        QCOMPARE(reading.problems, QStringList());
        QVERIFY(reading.record == fullRecord());
    }

    void membersThatStandTwice()
    {
        const QByteArray json =
            R"({"format": "testchart", "version": 1, "version": 1, "x": [{"y": 1, "y": 2}],
            "publicData": {"boxRow": 3, "boxCol": 4, "box\u0052ow": 5}, "logoData": {"boxRow": 6}})";
        QCOMPARE(ChartRecordFile::fromJson(json).problems,
                 QStringList({QStringLiteral("version: stands twice"), QStringLiteral("x.y: stands twice"),
                              QStringLiteral("publicData.boxRow: stands twice")}));
    }

    void numbersInOtherNotations_data()
    {
        QTest::addColumn<QByteArray>("number");
        QTest::addColumn<QString>("problem");
        QTest::newRow("a fraction of nothing") << QByteArray("12.0") << "";
        QTest::newRow("an exponent") << QByteArray("1.2e1") << "";
        QTest::newRow("the least above it") << QByteArray("12.000000000000002") << "is not a whole number";
        QTest::newRow("beyond 64 bits") << QByteArray("18446744073709551628") << "is not in 1..1000";
        QTest::newRow("huge") << QByteArray("1e308") << "is not in 1..1000";
        QTest::newRow("minus nothing") << QByteArray("-0") << "is not in 1..1000";
    }

    void numbersInOtherNotations()
    {
        QFETCH(QByteArray, number);
        QFETCH(QString, problem);
        const auto reading = ChartRecordFile::fromJson(
            R"({"format": "testchart", "version": 1, "publicData": {"boxRow": )" + number + "}}");
        QCOMPARE(reading.problems.isEmpty(), problem.isEmpty());
        QVERIFY(problem.isEmpty() || reading.problems.first().endsWith(problem));
        QCOMPARE(reading.record.publicData.boxRow, problem.isEmpty() ? 12 : 9);
    }

    void texts_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("problem");
        const QString custom = QStringLiteral("selfData.selfText");
        const QString fifty(50, QLatin1Char('x'));
        QTest::newRow("as long as the entry") << custom << fifty << "";
        QTest::newRow("longer than the entry")
            << custom << fifty + "x" << '"' + fifty + "x\" is longer than 50 characters";
        QTest::newRow("pairs count as two") << custom << QStringLiteral("🙂").repeated(25) << "";
        QTest::newRow("longest logo") << "logoData.logoText" << QString(32767, 'x') << "";
        QTest::newRow("longer, and elided")
            << "logoData.logoText" << QString(32768, 'x')
            << '"' + QString(59, 'x') + QStringLiteral("… is longer than 32767 characters");
        QTest::newRow("longest path") << "logoData.picturePath" << QString(4095, '/') << "";
        QTest::newRow("longer path") << "logoData.picturePath" << QString(4096, '/')
                                     << '"' + QString(59, '/') +
                                            QStringLiteral("… is longer than 4095 characters");
        QTest::newRow("NUL") << custom << QString(1, QChar()) << "\"\\u0000\" has a character of value 0";
        QTest::newRow("NUL in a path") << "logoData.picturePath" << QStringLiteral("/a") + QChar() + "b"
                                       << "\"/a\\u0000b\" has a character of value 0";
        QTest::newRow("other control characters") << custom << QStringLiteral("\a\t\n\x7f") << "";
    }

    void texts()
    {
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(QString, problem);
        const QJsonObject document = with(asObject(fullRecord()), field, text);
        const auto reading = ChartRecordFile::fromJson(asJson(document));
        QCOMPARE(reading.problems, problem.isEmpty() ? QStringList() : QStringList(field + ": " + problem));
        if (problem.isEmpty())
            QCOMPARE(asObject(reading.record), document);
    }

    void halfOfASurrogatePair()
    {
        const auto reading = ChartRecordFile::fromJson(
            R"({"format": "testchart", "version": 1, "selfData": {"selfText": "a\ud83d"}})");
        QCOMPARE(reading.problems.size(), 1);
        QVERIFY(reading.problems.first().startsWith(QStringLiteral("selfData.selfText: ")));
        QVERIFY(reading.problems.first().endsWith(QStringLiteral(" is not Unicode text")));
    }

    void lengthOfColorLists()
    {
        QJsonArray colors;
        for (int i = 0; i < 4320; ++i)
            colors.append(numbers({double(i % 256), 1, 2, 3}));
        const QString field = QStringLiteral("basicData.colorStripeColors");
        QJsonObject document = with(asObject(fullRecord()), field, colors);
        const auto reading = ChartRecordFile::fromJson(asJson(document));
        QCOMPARE(reading.problems, QStringList());
        QCOMPARE(int(reading.record.basicData.colorStripeColors.size()), 4320);
        colors.append(numbers({1, 2, 3, 4}));
        verifyRefused(field, colors, QStringLiteral("4321 colors are more than 4320"));
    }

    void schemaMemberIsAText()
    {
        QJsonObject document = asObject(fullRecord());
        QCOMPARE(document.value("$schema").toString(), QStringLiteral("chart-record.schema.json"));
        document.insert(QStringLiteral("$schema"), 3);
        QCOMPARE(ChartRecordFile::fromJson(asJson(document)).problems,
                 QStringList(QStringLiteral("$schema: 3 is not a text")));
        document.remove(QStringLiteral("$schema"));
        QCOMPARE(ChartRecordFile::fromJson(asJson(document)).problems, QStringList());
    }

    void documentIsWrittenForPeople()
    {
        TestChartToolsData record;
        record.basicData.gradientColors = {{0, Qt::red}, {1, Qt::blue}};
        for (int row = 0; row < 5; ++row)
            record.basicData.colorStripeColors[row] = Qt::white;
        const QByteArray json = ChartRecordFile::toJson(record);
        QVERIFY2(json.startsWith(R"({
  "$schema": "chart-record.schema.json",
  "format": "testchart",
  "version": 1,
  "basicData": {
    "colorStripeColors": [
      [255, 255, 255, 255],
      [255, 255, 255, 255],
      [255, 255, 255, 255],
      [255, 255, 255, 255],
      [255, 255, 255, 255]
    ],
    "gradientColors": [[255, 0, 0, 255], [0, 0, 255, 255]],
    "oddColor": [255, 170, 255, 255],
    "evenColor": [85, 170, 255, 255],
    "chessChecked": true,
)"),
                 json);
        QVERIFY2(json.endsWith(R"(    "resolutionTextColor": [0, 0, 100, 255]
  }
}
)"),
                 json);
    }

    void unreadableFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("missing") << "none.json";
        QTest::newRow("in a missing folder") << "none/none.json";
        QTest::newRow("a folder") << "folder";
    }

    void unreadableFiles()
    {
        QFETCH(QString, name);
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder")));
        const QString path = folder.filePath(name);
        const ChartRecordFile::Reading reading = ChartRecordFile::read(path);
        QCOMPARE(reading.problems.size(), 1);
        QVERIFY(reading.problems.first().startsWith(path + QStringLiteral(": ")));
        QVERIFY(reading.problems.first().size() > path.size() + 2);
        QVERIFY(reading.record == TestChartToolsData());
    }

    void readReportsWhatIsWrongInTheFile()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("record.json")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\"format\": \"testchart\", \"version\": 1, \"publicData\": {\"boxRow\": 5000}}");
        file.close();
        QCOMPARE(ChartRecordFile::read(file.fileName()).problems,
                 QStringList(QStringLiteral("publicData.boxRow: 5000 is not in 1..1000")));
    }

    void unwritableFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("in a missing folder") << "none/none.json";
        QTest::newRow("a folder") << "folder";
    }

    void unwritableFiles()
    {
        QFETCH(QString, name);
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder")));
        const QString path = folder.filePath(name);
        const QString problem = ChartRecordFile::write(path, fullRecord());
        QVERIFY2(problem.startsWith(path + QStringLiteral(": ")), qPrintable(problem));
        QVERIFY(problem.size() > path.size() + 2);
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList(QStringLiteral("folder")));
    }

private:
    static void addWrongTypes(const QString& field, const QJsonValue& standard)
    {
        const auto row = [&](const char* what, const QJsonValue& value, const QString& problem) {
            QTest::newRow(qPrintable(field + QLatin1String(", ") + QLatin1String(what)))
                << field << value << problem;
        };
        const bool isList = field.endsWith(QLatin1String("Colors"));
        const QString reason = standard.isBool()     ? QStringLiteral("is not true or false")
                               : standard.isDouble() ? QStringLiteral("is not a whole number")
                               : standard.isString() ? QStringLiteral("is not a text")
                               : isList              ? QStringLiteral("is not a list of colors")
                                                     : notColor;
        row("null", QJsonValue::Null, QStringLiteral("null ") + reason);
        row("object", QJsonObject(), QStringLiteral("{} ") + reason);
        if (!standard.isBool())
            row("flag", true, QStringLiteral("true ") + reason);
        if (!standard.isString())
            row("text", QStringLiteral("1"), QStringLiteral("\"1\" ") + reason);
        if (!standard.isDouble())
            row("number", 1, QStringLiteral("1 ") + reason);
        else
            row("fraction", 9.5, QStringLiteral("9.5 ") + reason);
    }

    static void verifyAccepted(const QString& field, int value)
    {
        const QJsonObject document = with(asObject(fullRecord()), field, value);
        const ChartRecordFile::Reading reading = ChartRecordFile::fromJson(asJson(document));
        QCOMPARE(reading.problems, QStringList());
        QCOMPARE(asObject(reading.record), document);
    }

    static void verifyRefused(const QString& field, const QJsonValue& value, const QString& problem)
    {
        const QJsonObject document = with(asObject(fullRecord()), field, value);
        QCOMPARE(ChartRecordFile::fromJson(asJson(document)).problems,
                 QStringList(field + QStringLiteral(": ") + problem));
    }

    static QByteArray contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

VD_TEST_MAIN(TestChartRecordFile)
#include "tst_chartrecordfile.moc"
