#include "testcase.h"
#include "walkorder.h"

namespace {

/// "00 01 02": row and column of each step.
QString written(const std::vector<CabinetPlace>& order)
{
    QStringList steps;
    for (const CabinetPlace& cabinet : order)
        steps.append(QString::number(cabinet.row) + QString::number(cabinet.column));
    return steps.join(QLatin1Char(' '));
}

} // namespace

/// Orders of cabinets, held against tables that were written by hand.
class TestWalkOrder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void orders_data()
    {
        QTest::addColumn<int>("sort");
        QTest::addColumn<bool>("byColumns");
        QTest::addColumn<bool>("backAndForth");
        QTest::addColumn<QString>("expected");
        QTest::newRow("down, right") << 0 << false << false << "00 01 02 10 11 12";
        QTest::newRow("down, left") << 1 << false << false << "02 01 00 12 11 10";
        QTest::newRow("up, right") << 2 << false << false << "10 11 12 00 01 02";
        QTest::newRow("up, left") << 3 << false << false << "12 11 10 02 01 00";
        QTest::newRow("down, right, columns") << 0 << true << false << "00 10 01 11 02 12";
        QTest::newRow("down, left, columns") << 1 << true << false << "02 12 01 11 00 10";
        QTest::newRow("up, right, columns") << 2 << true << false << "10 00 11 01 12 02";
        QTest::newRow("up, left, columns") << 3 << true << false << "12 02 11 01 10 00";
        QTest::newRow("down, right, back") << 0 << false << true << "00 01 02 12 11 10";
        QTest::newRow("up, left, back") << 3 << false << true << "12 11 10 00 01 02";
        QTest::newRow("down, right, columns, back") << 0 << true << true << "00 10 11 01 02 12";
        QTest::newRow("up, left, columns, back") << 3 << true << true << "12 02 01 11 10 00";
    }

    void orders()
    {
        QFETCH(int, sort);
        QFETCH(bool, byColumns);
        QFETCH(bool, backAndForth);
        QTEST(written(walkOrder(2, 3, sort, {byColumns, backAndForth})), "expected");
    }

    void aWallOfOneCabinet() { QCOMPARE(written(walkOrder(1, 1, 3, {true, true})), QStringLiteral("00")); }

    void aWallOfNone() { QVERIFY(walkOrder(0, 3, 0, {}).empty()); }

    void theLargestWallIsWalkedWhole()
    {
        std::vector<bool> seen(100 * 100);
        for (const CabinetPlace& cabinet : walkOrder(100, 100, 1, {false, true}))
            seen.at(size_t(cabinet.row * 100 + cabinet.column)) = true;
        QCOMPARE(std::count(seen.begin(), seen.end(), true), 10000);
    }

    void lines()
    {
        QCOMPARE(lineOrder(3, false), (std::vector<int>{0, 1, 2}));
        QCOMPARE(lineOrder(3, true), (std::vector<int>{2, 1, 0}));
    }
};

VD_TEST_MAIN(TestWalkOrder)
#include "tst_walkorder.moc"
