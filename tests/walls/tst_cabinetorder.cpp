#include "testcase.h"
#include "testwalls.h"

#include <cabinetorder.h>

using namespace vardeno::walls;

namespace {

/// "0 1 2 3 | 7 6 5 4".
QString shown(const std::vector<std::vector<int>>& lines)
{
    QStringList texts;
    for (const auto& line : lines) {
        QStringList numbers;
        for (const int cabinet : line)
            numbers.append(QString::number(cabinet));
        texts.append(numbers.join(' '));
    }
    return texts.join(" | ");
}

QString namesOf(const WallDocument& wall)
{
    QStringList names;
    for (const QString& name : cabinetNames(wall, CabinetPlan(wall), {}))
        names.append(name);
    return names.join(' ');
}

} // namespace

class TestCabinetOrder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void holesAndSpans_data()
    {
        QTest::addColumn<WallDocument>("wall");
        QTest::addColumn<int>("corner");
        QTest::addColumn<QString>("lines");

        WallDocument holes = smallWall();
        holes.exceptions.list = {missing(0, 0), missing(3, 1), missing(1, 2)};
        //  .  0  1  2
        //  3  4  5  .
        //  6  .  7  8
        QTest::newRow("holes") << holes << int(Corner::TopLeft) << "0 1 2 | 5 4 3 | 6 7 8";
        QTest::newRow("holes from below") << holes << int(Corner::BottomRight) << "8 7 6 | 3 4 5 | 2 1 0";

        WallDocument gap = smallWall();
        gap.exceptions.list = {missing(0, 1, 4, 1)};
        QTest::newRow("a row of holes does not turn the way")
            << gap << int(Corner::TopLeft) << "0 1 2 3 | 7 6 5 4";

        WallDocument spans = smallWall();
        spans.exceptions.list = {spanning(1, 0, 2, 2)};
        //  0  1  1  2
        //  3  1  1  4
        //  5  6  7  8
        QTest::newRow("a span is met once") << spans << int(Corner::TopLeft) << "0 1 2 | 4 3 | 5 6 7 8";
        QTest::newRow("and belongs to the first line that meets it")
            << spans << int(Corner::BottomLeft) << "5 6 7 8 | 4 1 3 | 0 2";

        WallDocument tall = smallWall();
        tall.exceptions.list = {spanning(0, 0, 1, 2), spanning(1, 0, 1, 2), spanning(2, 0, 2, 2)};
        QTest::newRow("a row of nothing but spans") << tall << int(Corner::TopLeft) << "0 1 2 | 6 5 4 3";
    }

    void holesAndSpans()
    {
        QFETCH(WallDocument, wall);
        QFETCH(int, corner);
        QTEST(shown(cabinetLines(CabinetPlan(wall), {Corner(corner), Direction::Rows, true})), "lines");
    }

    void names_data()
    {
        QTest::addColumn<int>("corner");
        QTest::addColumn<int>("direction");
        QTest::addColumn<bool>("backAndForth");
        QTest::addColumn<QString>("names");
        const int rows = int(Direction::Rows);
        const int columns = int(Direction::Columns);
        QTest::newRow("rows") << int(Corner::TopLeft) << rows << false << "1 2 3 4 5 6 7 8 9 10 11 12";
        QTest::newRow("rows, back and forth")
            << int(Corner::BottomLeft) << rows << true << "9 10 11 12 8 7 6 5 1 2 3 4";
        QTest::newRow("columns") << int(Corner::TopRight) << columns << false << "10 7 4 1 11 8 5 2 12 9 6 3";
        QTest::newRow("columns, back and forth")
            << int(Corner::BottomRight) << columns << true << "10 9 4 3 11 8 5 2 12 7 6 1";
    }

    void names()
    {
        QFETCH(int, corner);
        QFETCH(int, direction);
        QFETCH(bool, backAndForth);
        WallDocument wall = smallWall();
        wall.numbering = {NameStyle::Numbers, Corner(corner), Direction(direction), backAndForth, 1, {}, 1};
        QTEST(namesOf(wall), "names");
    }

    void prefixAndDigits()
    {
        WallDocument wall = wallOf({32, 32}, {32});
        wall.numbering = {NameStyle::Numbers, Corner::TopLeft, Direction::Rows, false, 99, "M-", 3};
        QCOMPARE(namesOf(wall), QString("M-099 M-100"));
        wall.numbering.digits = 1;
        wall.numbering.start = 0;
        QCOMPARE(namesOf(wall), QString("M-0 M-1"));
    }

    void ownNames()
    {
        WallDocument wall = wallOf({32, 32, 32}, {32});
        wall.exceptions.list = {spanning(1, 0, 1, 1)};
        wall.exceptions.list.front().name = "Spät";
        QCOMPARE(namesOf(wall), QString("A-A Spät A-C"));
        wall.numbering.style = NameStyle::Numbers;
        QCOMPARE(namesOf(wall), QString("1 Spät 3"));
    }
};

VD_TEST_MAIN(TestCabinetOrder)
#include "tst_cabinetorder.moc"
