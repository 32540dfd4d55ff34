#include "records/unknownmembers.h"
#include "testcase.h"

#include <chartrecordfile.h>

#include <QJsonDocument>

using namespace vardeno::testcharttools;

class TestUnknownMembers : public TestCase
{
    Q_OBJECT

private:
    static QStringList of(const QByteArray& json)
    {
        return unknownMembers(QJsonDocument::fromJson(json).object());
    }

private Q_SLOTS:
    void nearestNames_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("warning");
        QTest::newRow("a group") << QByteArray(R"({"publicdata": {"boxRow": 12}})")
                                 << "publicdata: unknown member, did you mean publicData?";
        QTest::newRow("a field") << QByteArray(R"({"publicData": {"boxrow": 12}})")
                                 << "publicData.boxrow: unknown member, did you mean publicData.boxRow?";
        QTest::newRow("a field without its group")
            << QByteArray(R"({"boxRow": 12})") << "boxRow: unknown member, did you mean publicData.boxRow?";
        QTest::newRow("a field in another group")
            << QByteArray(R"({"inLineData": {"boxRow": 12}})")
            << "inLineData.boxRow: unknown member, did you mean publicData.boxRow?";
        QTest::newRow("the head") << QByteArray(R"({"Version": 1})")
                                  << "Version: unknown member, did you mean version?";
        QTest::newRow("nothing near") << QByteArray(R"({"venue": "Berlin"})") << "venue: unknown member";
        QTest::newRow("a long one") << QByteArray("{\"" + QByteArray(70, 'x') + "\": 1}")
                                    << QString(60, QLatin1Char('x')) + QChar(0x2026) +
                                           QStringLiteral(": unknown member");
    }

    void nearestNames()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, warning);
        QCOMPARE(of(json), QStringList(warning));
    }

    void everyKnownMember()
    {
        QCOMPARE(of(ChartRecordFile::toJson({})), QStringList());
        QCOMPARE(of(R"({"publicData": 7})"), QStringList()); // a problem of its own
    }

    void many()
    {
        QByteArray members;
        for (int i = 0; i < 25; ++i)
            members += (i ? ", \"~" : "\"~") + QByteArray::number(i) + "\": 1";
        const QStringList warnings = of('{' + members + '}');
        QCOMPARE(warnings.size(), 21);
        QCOMPARE(warnings.last(), QStringLiteral("5 more unknown members"));
    }

    /// They are told of and kept.
    void readingTellsThem()
    {
        const QByteArray json = ChartRecordFile::toJson({}).replace("\"boxRow\"", "\"boxrow\"");
        const auto reading = ChartRecordFile::fromJson(json);
        QCOMPARE(reading.problems, QStringList());
        QCOMPARE(reading.unknown,
                 QStringList("publicData.boxrow: unknown member, did you mean publicData.boxRow?"));
        QVERIFY(ChartRecordFile::toJson(reading.record, reading.document).contains("\"boxrow\": 9"));
    }
};

VD_TEST_MAIN(TestUnknownMembers)
#include "tst_unknownmembers.moc"
