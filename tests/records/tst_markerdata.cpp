#include "chartrecordfile.h"
#include "testcase.h"

#include <QJsonDocument>
#include <QTemporaryDir>

using namespace vardeno::testcharttools;

/// What a record's document says of markers, beside the record.
class TestMarkerData : public TestCase
{
    Q_OBJECT

private:
    static QJsonObject parsed(const QByteArray& json) { return QJsonDocument::fromJson(json).object(); }
    static QByteArray headed(const QByteArray& member)
    {
        return R"({"format": "testchart", "version": 1)" + member + "}";
    }

private Q_SLOTS:
    void read_data()
    {
        QTest::addColumn<QByteArray>("member");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<QStringList>("problems");
        QTest::addColumn<QStringList>("unknown");
        QTest::newRow("nothing") << QByteArray() << false << QStringList() << QStringList();
        QTest::newRow("an empty group")
            << QByteArray(R"(, "markerData": {})") << false << QStringList() << QStringList();
        QTest::newRow("on") << QByteArray(R"(, "markerData": {"showMarkers": true})") << true << QStringList()
                            << QStringList();
        QTest::newRow("off") << QByteArray(R"(, "markerData": {"showMarkers": false})") << false
                             << QStringList() << QStringList();
        QTest::newRow("a number") << QByteArray(R"(, "markerData": {"showMarkers": 1})") << false
                                  << QStringList("markerData.showMarkers: 1 is not true or false")
                                  << QStringList();
        QTest::newRow("no group") << QByteArray(R"(, "markerData": true)") << false
                                  << QStringList("markerData: true is not an object") << QStringList();
        QTest::newRow("misspelt") << QByteArray(R"(, "markerData": {"showMarker": true})") << false
                                  << QStringList()
                                  << QStringList("markerData.showMarker: unknown member, did you mean "
                                                 "markerData.showMarkers?");
    }

    void read()
    {
        QFETCH(QByteArray, member);
        const auto reading = ChartRecordFile::fromJson(headed(member));
        QTEST(ChartRecordFile::markersOf(reading.document).showMarkers, "shown");
        QTEST(reading.problems, "problems");
        QTEST(reading.unknown, "unknown");
        QVERIFY(reading.record == TestChartToolsData());
    }

    void aDocumentWithoutThemStaysOne()
    {
        QVERIFY(ChartRecordFile::withMarkers({}, {false}).isEmpty());
        QVERIFY(!ChartRecordFile::toJson({}).contains("markerData"));
    }

    void switchedOnAndOff()
    {
        const QJsonObject original = parsed(R"({"markerData": {"size": 12}, "x": 1})");
        const QJsonObject on = ChartRecordFile::withMarkers(original, {true});
        QCOMPARE(on, parsed(R"({"markerData": {"size": 12, "showMarkers": true}, "x": 1})"));
        const QJsonObject off = ChartRecordFile::withMarkers(on, {false});
        QCOMPARE(off, parsed(R"({"markerData": {"size": 12, "showMarkers": false}, "x": 1})"));
    }

    void keptWithTheRecord()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("chart.json");
        TestChartToolsData record;
        record.publicData.boxRow = 3;
        QCOMPARE(ChartRecordFile::write(path, record, ChartRecordFile::withMarkers({}, {true})), QString());
        const auto reading = ChartRecordFile::read(path);
        QVERIFY(ChartRecordFile::markersOf(reading.document).showMarkers);
        QVERIFY(reading.record == record);
        QCOMPARE(ChartRecordFile::write(path, {}, reading.document), QString());
        const QByteArray again = ChartRecordFile::toJson({}, ChartRecordFile::read(path).document);
        QVERIFY(again.contains(R"("showMarkers": true)"));
        QVERIFY(again.indexOf("markerData") > again.indexOf("selfData")); // where the table has it
    }

    void assigned()
    {
        TestChartToolsData record;
        MarkerData markers;
        QCOMPARE(ChartRecordFile::setField(record, markers, "markerData.showMarkers=true"), QString());
        QVERIFY(markers.showMarkers);
        QCOMPARE(ChartRecordFile::setField(record, markers, "markerData.showMarkers=yes"),
                 QStringLiteral("markerData.showMarkers: \"yes\" is not true or false"));
        QVERIFY(markers.showMarkers);
        QCOMPARE(ChartRecordFile::setField(record, markers, "publicData.boxRow=7"), QString());
        QCOMPARE(record.publicData.boxRow, 7);
    }

    /// A record alone has no place for them.
    void notAssignedToARecord()
    {
        TestChartToolsData record;
        QCOMPARE(ChartRecordFile::setField(record, "markerData.showMarkers=true"),
                 QStringLiteral("markerData.showMarkers: unknown field"));
    }
};

VD_TEST_MAIN(TestMarkerData)
#include "tst_markerdata.moc"
