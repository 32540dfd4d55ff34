#include "support/nearestname.h"
#include "testcase.h"

using namespace vardeno::testcharttools;

class TestNearestName : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nearest_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected");
        QTest::newRow("the name itself") << "wall.rows"
                                         << "wall.rows";
        QTest::newRow("a letter replaced") << "wall.rowz"
                                           << "wall.rows";
        QTest::newRow("a letter left out") << "wall.row"
                                           << "wall.rows";
        QTest::newRow("a letter too many") << "wall.rowws"
                                           << "wall.rows";
        QTest::newRow("two letters changed over") << "wall.orws"
                                                  << "wall.rows";
        QTest::newRow("upper case") << "WALL.ROWS"
                                    << "wall.rows";
        QTest::newRow("between two") << "wall.columnz"
                                     << "wall.columns";
        QTest::newRow("last part alone") << "columns"
                                         << "wall.columns";
        QTest::newRow("part of the last part") << "colum"
                                               << "wall.columns";
        QTest::newRow("too far") << "rain"
                                 << "";
        QTest::newRow("nothing") << ""
                                 << "";
        QTest::newRow("a letter") << "x"
                                  << "";
        QTest::newRow("very long") << "wall.rows" + QString(100000, 'x') << "";
    }

    void nearest()
    {
        QFETCH(QString, name);
        QFETCH(QString, expected);
        QCOMPARE(nearestName(name, {"wall.rows", "wall.columns", "wall.color"}), expected);
    }

    void noNames() { QCOMPARE(nearestName(QStringLiteral("rows"), {}), QString()); }
};

VD_TEST_MAIN(TestNearestName)
#include "tst_nearestname.moc"
