#include "testcase.h"
#include "testwalls.h"

#include <cableruns.h>

using namespace vardeno::walls;

namespace {

/// "0 1 2 3 | 7 6 5 4".
QString shown(const std::vector<CableRun>& runs)
{
    QStringList texts;
    for (const CableRun& run : runs) {
        QStringList numbers;
        for (const int cabinet : run.cabinets)
            numbers.append(QString::number(cabinet));
        texts.append(numbers.join(' '));
    }
    return texts.join(" | ");
}

QString dataRunsOf(const WallDocument& wall)
{
    return shown(dataRuns(wall, CabinetPlan(wall)));
}

QString powerRunsOf(const WallDocument& wall)
{
    return shown(powerRuns(wall, CabinetPlan(wall)));
}

constexpr auto back = Pattern::BackAndForth;
constexpr auto oneWay = Pattern::OneWay;
constexpr auto each = Pattern::EachLine;

} // namespace

class TestCableRuns : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// Worked out by hand on the wall of three rows of four cabinets; ports that take five of them.
    void all24Ways_data()
    {
        QTest::addColumn<int>("pattern");
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("corner");
        QTest::addColumn<QString>("runs");
        const auto row = [](Pattern pattern, Direction direction, Corner corner, const char* runs) {
            static const char* const patterns[] = {"back and forth", "one way", "each line"};
            static const char* const directions[] = {"rows", "columns"};
            static const char* const corners[] = {"top left", "top right", "bottom left", "bottom right"};
            QTest::addRow("%s, %s, %s", patterns[int(pattern)], directions[int(direction)],
                          corners[int(corner)])
                << int(pattern) << int(direction) << int(corner) << runs;
        };
        const auto rows = Direction::Rows;
        const auto columns = Direction::Columns;
        row(back, rows, Corner::TopLeft, "0 1 2 3 7 | 6 5 4 8 9 | 10 11");
        row(back, rows, Corner::TopRight, "3 2 1 0 4 | 5 6 7 11 10 | 9 8");
        row(back, rows, Corner::BottomLeft, "8 9 10 11 7 | 6 5 4 0 1 | 2 3");
        row(back, rows, Corner::BottomRight, "11 10 9 8 4 | 5 6 7 3 2 | 1 0");
        row(back, columns, Corner::TopLeft, "0 4 8 9 5 | 1 2 6 10 11 | 7 3");
        row(back, columns, Corner::TopRight, "3 7 11 10 6 | 2 1 5 9 8 | 4 0");
        row(back, columns, Corner::BottomLeft, "8 4 0 1 5 | 9 10 6 2 3 | 7 11");
        row(back, columns, Corner::BottomRight, "11 7 3 2 6 | 10 9 5 1 0 | 4 8");
        row(oneWay, rows, Corner::TopLeft, "0 1 2 3 4 | 5 6 7 8 9 | 10 11");
        row(oneWay, rows, Corner::TopRight, "3 2 1 0 7 | 6 5 4 11 10 | 9 8");
        row(oneWay, rows, Corner::BottomLeft, "8 9 10 11 4 | 5 6 7 0 1 | 2 3");
        row(oneWay, rows, Corner::BottomRight, "11 10 9 8 7 | 6 5 4 3 2 | 1 0");
        row(oneWay, columns, Corner::TopLeft, "0 4 8 1 5 | 9 2 6 10 3 | 7 11");
        row(oneWay, columns, Corner::TopRight, "3 7 11 2 6 | 10 1 5 9 0 | 4 8");
        row(oneWay, columns, Corner::BottomLeft, "8 4 0 9 5 | 1 10 6 2 11 | 7 3");
        row(oneWay, columns, Corner::BottomRight, "11 7 3 10 6 | 2 9 5 1 8 | 4 0");
        row(each, rows, Corner::TopLeft, "0 1 2 3 | 4 5 6 7 | 8 9 10 11");
        row(each, rows, Corner::TopRight, "3 2 1 0 | 7 6 5 4 | 11 10 9 8");
        row(each, rows, Corner::BottomLeft, "8 9 10 11 | 4 5 6 7 | 0 1 2 3");
        row(each, rows, Corner::BottomRight, "11 10 9 8 | 7 6 5 4 | 3 2 1 0");
        row(each, columns, Corner::TopLeft, "0 4 8 | 1 5 9 | 2 6 10 | 3 7 11");
        row(each, columns, Corner::TopRight, "3 7 11 | 2 6 10 | 1 5 9 | 0 4 8");
        row(each, columns, Corner::BottomLeft, "8 4 0 | 9 5 1 | 10 6 2 | 11 7 3");
        row(each, columns, Corner::BottomRight, "11 7 3 | 10 6 2 | 9 5 1 | 8 4 0");
    }

    void all24Ways()
    {
        QFETCH(int, pattern);
        QFETCH(int, direction);
        QFETCH(int, corner);
        WallDocument wall = smallWall();
        wall.data.path = {Corner(corner), Direction(direction), Pattern(pattern), {}};
        wall.data.portPixels = 5 * 32 * 32;
        QTEST(dataRunsOf(wall), "runs");
        // A circuit of 500 W feeds as many cabinets of 100 W.
        wall.power.path = wall.data.path;
        wall.power.circuitWatts = 500;
        wall.physical.watts = 100;
        QTEST(powerRunsOf(wall), "runs");
    }

    void capacity_data()
    {
        QTest::addColumn<int>("pixels");
        QTest::addColumn<int>("bits");
        QTest::addColumn<int>("rate");
        QTest::addColumn<qint64>("capacity");
        QTest::newRow("usual") << 655360 << 8 << 60 << qint64(655360);
        QTest::newRow("10 bit") << 655360 << 10 << 60 << qint64(524288);
        QTest::newRow("12 bit") << 655360 << 12 << 60 << qint64(436906); // and two thirds
        QTest::newRow("120 Hz") << 655360 << 8 << 120 << qint64(327680);
        QTest::newRow("10 bit, 50 Hz") << 655360 << 10 << 50 << qint64(629145); // and six tenths
        QTest::newRow("24 Hz") << 655360 << 8 << 24 << qint64(1638400);
        QTest::newRow("most") << 100000000 << 8 << 1 << qint64(6000000000);
    }

    void capacity()
    {
        QFETCH(int, pixels);
        QFETCH(int, bits);
        QFETCH(int, rate);
        DataCabling data;
        data.portPixels = pixels;
        data.bitDepth = bits;
        data.frameRate = rate;
        QTEST(portCapacity(data), "capacity");
    }

    void aPortIsFullAtTheExactPixel()
    {
        WallDocument wall = wallOf({100, 100, 100, 100}, {100});
        wall.data.portPixels = 20000;
        QCOMPARE(dataRunsOf(wall), QString("0 1 | 2 3"));
        wall.data.portPixels = 19999;
        QCOMPARE(dataRunsOf(wall), QString("0 | 1 | 2 | 3"));
        wall.data.portPixels = 20001;
        QCOMPARE(dataRunsOf(wall), QString("0 1 | 2 3"));
        wall.data.portPixels = 40000;
        QCOMPARE(dataRunsOf(wall), QString("0 1 2 3"));
        wall.data.portCabinets = 3;
        QCOMPARE(dataRunsOf(wall), QString("0 1 2 | 3"));
    }

    void linesBeyondAPort()
    {
        WallDocument wall = smallWall();
        wall.data.path.pattern = Pattern::EachLine;
        wall.data.portCabinets = 3;
        QCOMPARE(dataRunsOf(wall), QString("0 1 2 | 3 | 4 5 6 | 7 | 8 9 10 | 11"));
    }

    void unevenCabinets()
    {
        WallDocument wall = wallOf({100, 50, 200, 50}, {100});
        wall.data.portPixels = 15000;
        const auto runs = dataRuns(wall, CabinetPlan(wall));
        QCOMPARE(shown(runs), QString("0 1 | 2 | 3")); // 2 is too large for any port
        QCOMPARE(runs.at(0).pixels, qint64(15000));
        QCOMPARE(runs.at(1).pixels, qint64(20000));
        QCOMPARE(runs.at(2).pixels, qint64(5000));
    }

    void holesAndSpans()
    {
        WallDocument wall = smallWall();
        wall.exceptions.list = {spanning(1, 0, 2, 2), missing(3, 2)};
        //  0  1  1  2
        //  3  1  1  4
        //  5  6  7  .
        wall.data.portPixels = 5 * 32 * 32;
        QCOMPARE(dataRunsOf(wall), QString("0 1 | 2 4 3 5 6 | 7"));
    }

    void byHand()
    {
        WallDocument wall = smallWall();
        wall.exceptions.list = {spanning(1, 0, 2, 2)};
        wall.data.path.byHand.runs = {{{0, 0}, {2, 1}, {0, 2}}, {{3, 0}}};
        wall.data.portPixels = 1; // those by hand are as they are
        const auto runs = dataRuns(wall, CabinetPlan(wall));
        QCOMPARE(shown(runs), QString("0 1 5 | 2"));
        QCOMPARE(runs.front().pixels, qint64(6 * 32 * 32));
        wall.power.path.byHand.runs = {{{3, 2}}};
        QCOMPARE(powerRunsOf(wall), QString("8"));
    }

    void power()
    {
        WallDocument wall = wallOf({100, 100, 50}, {100, 100});
        QCOMPARE(powerRunsOf(wall), QString()); // nobody knows what a cabinet takes
        QCOMPARE(circuitCapacity(wall, CabinetPlan(wall)), qint64(0));
        wall.physical.watts = 200;
        wall.power.circuitWatts = 500; // two cabinets and a half
        QCOMPARE(powerRunsOf(wall), QString("0 1 2 | 5 4 3"));
        QCOMPARE(wattsOf(wall, CabinetPlan(wall), 25000), qint64(500));
        QCOMPARE(wattsOf(wall, CabinetPlan(wall), 25001), qint64(501));
        wall.power.circuitWatts = 499;
        QCOMPARE(powerRunsOf(wall), QString("0 1 | 2 5 4 | 3"));
    }
};

VD_TEST_MAIN(TestCableRuns)
#include "tst_cableruns.moc"
