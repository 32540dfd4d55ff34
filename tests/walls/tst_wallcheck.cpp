#include "testcase.h"
#include "testwalls.h"

#include <wallcheck.h>

using namespace vardeno::walls;

class TestWallCheck : public TestCase
{
    Q_OBJECT

private:
    /// Those of the wall, without what its chart's record is warned of.
    static QStringList of(const WallDocument& wall)
    {
        QStringList own;
        for (const QString& warning : WallCheck::warnings(wall, WallFile::chartOf(wall, {}))) {
            if (!warning.startsWith("chart."))
                own.append(warning);
        }
        return own;
    }

private Q_SLOTS:
    void warnings_data()
    {
        QTest::addColumn<WallDocument>("wall");
        QTest::addColumn<QString>("warnings");
        WallDocument wall = wallOf({100, 100, 100, 100}, {100});
        QTest::newRow("none") << wall << QString();
        wall.data.portPixels = 9999;
        QTest::newRow("a cabinet too large for a port")
            << wall
            << "data.portPixels: port 1 has 10000 pixels, 1 more than the 9999 that it feeds\n"
               "data.portPixels: port 2 has 10000 pixels, 1 more than the 9999 that it feeds\n"
               "data.portPixels: port 3 has 10000 pixels, 1 more than the 9999 that it feeds\n"
               "data.portPixels: port 4 has 10000 pixels, 1 more than the 9999 that it feeds";
        wall.data.portPixels = 20000;
        wall.data.path.byHand.runs = {{{0, 0}, {1, 0}}};
        QTest::newRow("in no run") << wall << "data.runs: 2 cabinets are in no run: A-C, A-D";
        wall.data.path.byHand.runs = {{{0, 0}, {1, 0}, {2, 0}}};
        QTest::newRow("too much by hand")
            << wall
            << "data.portPixels: port 1 has 30000 pixels, 10000 more than the 20000 that it feeds\n"
               "data.runs: 1 cabinet is in no run: A-D";
        wall.data.portPixels = 655360;
        wall.data.portCabinets = 2;
        QTest::newRow("too many by hand") << wall
                                          << "data.portCabinets: port 1 has 3 cabinets, not 2\n"
                                             "data.runs: 1 cabinet is in no run: A-D";
        wall = wallOf({100, 100, 100, 100}, {100});
        wall.layers.powerRuns = true;
        QTest::newRow("no watts")
            << wall << "physical.watts: 0 leaves open what a cabinet takes; no power cables are drawn";
        wall.physical.watts = 1000;
        wall.power.path.byHand.runs = {{{0, 0}, {1, 0}, {2, 0}, {3, 0}}};
        QTest::newRow("too many watts")
            << wall << "power.circuitWatts: circuit 1 takes 4000 W, 1000 more than the 3000 that it feeds";
        wall = wallOf({100, 100, 100}, {100});
        wall.exceptions.list = {spanning(0, 0, 1, 1), spanning(2, 0, 1, 1)};
        wall.exceptions.list[0].name = "Left";
        wall.exceptions.list[1].name = "Left";
        QTest::newRow("a name twice") << wall << "cabinets.exceptions: several cabinets are called Left";
        wall = wallOf({128, 128}, {128});
        wall.physical = {500, 480, 3906, 0, 0};
        QTest::newRow("a pitch that does not fit")
            << wall
            << QString::fromUtf8("physical.height: 480 mm are not the 499 mm of 128 pixels of 3906 µm");
    }

    void warnings()
    {
        QFETCH(WallDocument, wall);
        QTEST(of(wall).join('\n'), "warnings");
    }

    void manyOfOneKind()
    {
        WallDocument wall = wallOf(std::vector<int>(30, 100), {100});
        wall.data.portPixels = 1;
        const QStringList warnings = of(wall);
        QCOMPARE(warnings.size(), 11);
        QCOMPARE(warnings.last(), QString("data: 20 more that feed too much"));
    }

    /// The grid of the record is not drawn on an uneven wall.
    void theRecordsGrid()
    {
        const auto remainders = [](const WallDocument& wall) {
            return WallCheck::warnings(wall, WallFile::chartOf(wall, {})).filter("remainder").size();
        };
        QCOMPARE(remainders(wallOf({100, 101, 100}, {100, 100})), 0);
        WallDocument wall = wallOf({400, 400}, {400, 400});
        const QString warned = WallCheck::warnings(wall, WallFile::chartOf(wall, {})).join('\n');
        QVERIFY2(warned.contains("chart.record."), qPrintable(warned));
    }
};

VD_TEST_MAIN(TestWallCheck)
#include "tst_wallcheck.moc"
