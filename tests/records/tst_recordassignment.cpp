#include "chartrecordfile.h"
#include "testcase.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace vardeno::testcharttools;

/// One field of a record set by a line of text.
class TestRecordAssignment : public TestCase
{
    Q_OBJECT

private:
    static QString fieldAsJson(const TestChartToolsData& record, const QString& field)
    {
        const QJsonObject document = QJsonDocument::fromJson(ChartRecordFile::toJson(record)).object();
        const QJsonObject group = document.value(field.section('.', 0, 0)).toObject();
        QJsonObject alone;
        alone.insert(QStringLiteral("v"), group.value(field.section('.', 1)));
        return QString::fromUtf8(QJsonDocument(alone).toJson(QJsonDocument::Compact)).mid(5).chopped(1);
    }

private Q_SLOTS:
    void good_data()
    {
        QTest::addColumn<QString>("assignment");
        QTest::addColumn<QString>("stored");
        QTest::newRow("number") << "publicData.boxRow=12"
                                << "12";
        QTest::newRow("spaces") << " publicData.boxRow = 12 "
                                << "12";
        QTest::newRow("flag") << "inLineData.showCircle=false"
                              << "false";
        QTest::newRow("color") << "basicData.oddColor=[1, 2, 3, 4]"
                               << "[1,2,3,4]";
        QTest::newRow("colors") << "basicData.colorStripeColors=[[1,2,3,4],[5,6,7,255]]"
                                << "[[1,2,3,4],[5,6,7,255]]";
        QTest::newRow("no colors") << "basicData.gradientColors=[]"
                                   << "[]";
        QTest::newRow("plain text") << "selfData.selfText=two words"
                                    << "\"two words\"";
        QTest::newRow("JSON text") << "selfData.selfText=\"a\\n\\\"b\\\"\""
                                   << "\"a\\n\\\"b\\\"\"";
        QTest::newRow("text of digits") << "selfData.selfText=12"
                                        << "\"12\"";
        QTest::newRow("text like a list") << "selfData.selfText=[1,2"
                                          << "\"[1,2\"";
        QTest::newRow("two texts are one") << "selfData.selfText=\"a\",\"b\""
                                           << "\"\\\"a\\\",\\\"b\\\"\"";
        QTest::newRow("one quotation mark") << "selfData.selfText=\"a"
                                            << "\"\\\"a\"";
        QTest::newRow("another equals sign") << "logoData.logoText=a=b"
                                             << "\"a=b\"";
        QTest::newRow("no text") << "logoData.logoText="
                                 << "\"\"";
        QTest::newRow("spaces of a text") << "logoData.logoText= a "
                                          << "\" a \"";
        QTest::newRow("path") << "logoData.picturePath=logo.png"
                              << "\"logo.png\"";
        QTest::newRow("any script") << "selfData.selfText=标志"
                                    << "\"标志\"";
    }

    void good()
    {
        QFETCH(QString, assignment);
        QFETCH(QString, stored);
        const QString field = assignment.section('=', 0, 0).trimmed();
        TestChartToolsData record;
        record.basicData.colorStripeColors = record.basicData.gradientColors = {{0, Qt::red}, {7, Qt::blue}};
        const TestChartToolsData before = record;
        QCOMPARE(ChartRecordFile::setField(record, assignment), QString());
        QCOMPARE(fieldAsJson(record, field), stored);
        QCOMPARE(ChartRecordFile::setField(record, field + "=" + fieldAsJson(before, field)), QString());
        QCOMPARE(ChartRecordFile::toJson(record), ChartRecordFile::toJson(before));
    }

    void bad_data()
    {
        QTest::addColumn<QString>("assignment");
        QTest::addColumn<QString>("problem");
        const QString color = QStringLiteral(" is not a color [r, g, b, a] of numbers in 0..255");
        QTest::newRow("out of range") << "publicData.resolutionWidth=50000"
                                      << "publicData.resolutionWidth: 50000 is not in 16..32768";
        QTest::newRow("fraction") << "publicData.boxRow=1.5"
                                  << "publicData.boxRow: 1.5 is not a whole number";
        QTest::newRow("number as text") << "publicData.boxRow=\"12\""
                                        << "publicData.boxRow: \"12\" is not a whole number";
        QTest::newRow("no number") << "publicData.boxRow=many"
                                   << "publicData.boxRow: \"many\" is not a whole number";
        QTest::newRow("nothing") << "publicData.boxRow="
                                 << "publicData.boxRow: \"\" is not a whole number";
        QTest::newRow("two numbers") << "publicData.boxRow=1,2"
                                     << "publicData.boxRow: \"1,2\" is not a whole number";
        QTest::newRow("flag") << "inLineData.showCircle=1"
                              << "inLineData.showCircle: 1 is not true or false";
        QTest::newRow("color") << "basicData.oddColor=red"
                               << "basicData.oddColor: \"red\"" + color;
        QTest::newRow("colors") << "basicData.gradientColors=[[1,2,3,4],[1],[2]]"
                                << "basicData.gradientColors: [1] (color 2)" + color + "; [2] (color 3)" +
                                       color;
        QTest::newRow("text too long")
            << "selfData.selfText=" + QString(51, 'x')
            << "selfData.selfText: \"" + QString(51, 'x') + "\" is longer than 50 characters";
        QTest::newRow("no equals sign") << "publicData.boxRow 12"
                                        << "publicData.boxRow 12: \"=\" and a value expected";
        QTest::newRow("empty") << ""
                               << ": \"=\" and a value expected";
        QTest::newRow("no name") << "=12"
                                 << ": unknown field";
        QTest::newRow("letters left out")
            << "publicData.boxRw=12"
            << "publicData.boxRw: unknown field, did you mean publicData.boxRow?";
        QTest::newRow("another case") << "publicdata.BOXROW=12"
                                      << "publicdata.BOXROW: unknown field, did you mean publicData.boxRow?";
        QTest::newRow("without its group") << "boxRow=12"
                                           << "boxRow: unknown field, did you mean publicData.boxRow?";
        QTest::newRow("a group") << "publicData={}"
                                 << "publicData: unknown field";
        QTest::newRow("far from all") << "weather=rain"
                                      << "weather: unknown field";
        QTest::newRow("a long name") << QString(1000, 'x') + "=1"
                                     << QString(60, 'x') + QStringLiteral("…: unknown field");
        QTest::newRow("10 MB") << "selfData.selfText=" + QString(10 << 20, 'x')
                               << "selfData.selfText: 10485778 bytes are more than 1048576";
    }

    void bad()
    {
        QFETCH(QString, assignment);
        QFETCH(QString, problem);
        TestChartToolsData record;
        record.basicData.gradientColors = {{0, Qt::red}};
        const TestChartToolsData before = record;
        QCOMPARE(ChartRecordFile::setField(record, assignment), problem);
        QVERIFY(record == before);
    }
};

VD_TEST_MAIN(TestRecordAssignment)
#include "tst_recordassignment.moc"
