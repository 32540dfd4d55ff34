#include "testcase.h"
#include "testwalls.h"

#include <cabinetplan.h>

using namespace vardeno::walls;

class TestCabinetPlan : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void unevenColumnsAndRows()
    {
        const CabinetPlan plan(wallOf({10, 20, 30}, {40, 50}));
        QCOMPARE(plan.size(), QSize(60, 90));
        QCOMPARE(plan.columns(), 3);
        QCOMPARE(plan.rows(), 2);
        QVector<QRect> rects;
        for (const WallCabinet& cabinet : plan.cabinets())
            rects.append(cabinet.rect);
        QCOMPARE(rects, (QVector<QRect>{{0, 0, 10, 40},
                                        {10, 0, 20, 40},
                                        {30, 0, 30, 40},
                                        {0, 40, 10, 50},
                                        {10, 40, 20, 50},
                                        {30, 40, 30, 50}}));
        QVERIFY(!plan.isUniform());
        QVERIFY(plan.holes().empty());
    }

    void holesAndSpans()
    {
        WallDocument wall = wallOf({10, 20, 30}, {40, 50, 60});
        wall.exceptions.list = {spanning(1, 1, 2, 2, 90), missing(0, 0, 2, 1)};
        const CabinetPlan plan(wall);
        QCOMPARE(plan.cabinets().size(), std::size_t(4));
        const WallCabinet& large = plan.cabinets().at(2);
        QCOMPARE(large.rect, QRect(10, 40, 50, 110));
        QCOMPARE(large.turned, 90);
        QCOMPARE(large.exception, 0);
        QCOMPARE(plan.holes(), (std::vector<QRect>{{0, 0, 10, 40}, {10, 0, 20, 40}}));
        QCOMPARE(plan.cabinetAt(Place{2, 2}), 2);
        QCOMPARE(plan.cabinetAt(Place{1, 0}), -1);
        QCOMPARE(plan.cabinetAt(Place{0, 2}), 3);
        QVERIFY(!plan.isUniform());
    }

    /// Turned and missing cabinets leave the grid what it is.
    void uniformGrids()
    {
        WallDocument wall = wallOf({64, 64, 64}, {32, 32});
        QVERIFY(CabinetPlan(wall).isUniform());
        wall.exceptions.list = {missing(0, 0, 2, 1), spanning(1, 1, 1, 1, 180)};
        QVERIFY(CabinetPlan(wall).isUniform());
        wall.exceptions.list.push_back(spanning(0, 1, 1, 1));
        QVERIFY(CabinetPlan(wall).isUniform());
        wall.exceptions.list.back().columns = 1;
        wall.exceptions.list[1] = spanning(1, 1, 2, 1);
        QVERIFY(!CabinetPlan(wall).isUniform());
        QVERIFY(!CabinetPlan(wallOf({64, 64}, {32, 33})).isUniform());
    }

    void pixels_data()
    {
        QTest::addColumn<QPoint>("pixel");
        QTest::addColumn<int>("cabinet");
        QTest::newRow("first") << QPoint(0, 0) << 0;
        QTest::newRow("last of the first") << QPoint(9, 39) << 0;
        QTest::newRow("first of the second") << QPoint(10, 0) << 1;
        QTest::newRow("below") << QPoint(9, 40) << 3;
        QTest::newRow("last") << QPoint(59, 89) << 5;
        QTest::newRow("right of it") << QPoint(60, 0) << -1;
        QTest::newRow("below it") << QPoint(0, 90) << -1;
        QTest::newRow("left of it") << QPoint(-1, 5) << -1;
    }

    void pixels()
    {
        QFETCH(QPoint, pixel);
        QTEST(CabinetPlan(wallOf({10, 20, 30}, {40, 50})).cabinetAt(pixel), "cabinet");
    }

    void usualCabinets()
    {
        QCOMPARE(CabinetPlan(wallOf({64, 128, 128, 64, 128}, {32, 16, 16, 32})).usualCabinet(),
                 QSize(128, 32));
    }
};

VD_TEST_MAIN(TestCabinetPlan)
#include "tst_cabinetplan.moc"
