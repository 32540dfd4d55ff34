#include "testcase.h"

#include <chartcabinets.h>

using namespace vardeno::testcharttools;

Q_DECLARE_METATYPE(vardeno::testcharttools::InLineChartData)

class TestChartCabinets : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void labels_data()
    {
        QTest::addColumn<InLineChartData>("data");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("label");
        InLineChartData data;
        QTest::newRow("letters, first") << data << 0 << 0 << "A-A";
        QTest::newRow("letters, last") << data << 8 << 15 << "I-P";
        QTest::newRow("above") << data << -1 << 0 << "";
        QTest::newRow("below") << data << 9 << 0 << "";
        QTest::newRow("left") << data << 0 << -1 << "";
        QTest::newRow("right") << data << 0 << 16 << "";
        data.showSerialNumber = false;
        data.serialPosition = 1;
        QTest::newRow("not drawn") << data << 1 << 2 << "B-C";
        data.letterMode = false;
        data.numMode = true;
        QTest::newRow("numbers") << data << 1 << 2 << "2-3";
        data.serialSort = 3;
        QTest::newRow("numbers from the far corner") << data << 0 << 0 << "9-16";
        data.serialSort = 7;
        QTest::newRow("no such sort") << data << 0 << 0 << "";
        data.serialSort = 2;
        data.combinationMode = true;
        QTest::newRow("the last of two modes") << data << 0 << 0 << "z-1";
        data.numMode = false;
        data.combinationMode = false;
        data.serialSort = 0;
        QTest::newRow("letters without a mode") << data << 1 << 2 << "B-C";
    }

    void labels()
    {
        QFETCH(InLineChartData, data);
        QFETCH(int, row);
        QFETCH(int, column);
        TestChartToolsData record;
        record.inLineData = data;
        QTEST(ChartCabinets::label(record, row, column), "label");
    }

    void rects_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QRect>("rect");
        QTest::newRow("first") << 0 << 0 << QRect(0, 0, 274, 120);
        QTest::newRow("before a gap") << 8 << 3 << QRect(822, 960, 274, 120);
        QTest::newRow("after a gap") << 8 << 4 << QRect(1097, 960, 274, 120);
        QTest::newRow("last") << 8 << 6 << QRect(1645, 960, 274, 120);
        QTest::newRow("outside") << 0 << 7 << QRect();
        QTest::newRow("above") << -1 << 0 << QRect();
    }

    void rects()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        TestChartToolsData record;
        record.publicData.boxCol = 7;
        QTEST(ChartCabinets::rect(record, row, column), "rect");
    }
};

VD_TEST_MAIN(TestChartCabinets)
#include "tst_chartcabinets.moc"
