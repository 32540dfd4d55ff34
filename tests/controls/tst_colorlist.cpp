#include "controls/colorlist.h"
#include "testcase.h"

#include <QListWidget>

#include <map>
#include <memory>
#include <vector>

using namespace vardeno::testcharttools;

namespace {

using Colors = std::map<int, QColor>;
using Leftovers = std::vector<std::unique_ptr<QListWidgetItem>>;

/// Counts how many of it are alive.
class CountedItem : public QListWidgetItem
{
public:
    explicit CountedItem(QListWidget* list)
        : QListWidgetItem(list)
    {
        ++alive;
    }
    ~CountedItem() override { --alive; }
    CountedItem(const CountedItem&) = delete;
    CountedItem& operator=(const CountedItem&) = delete;

    static int alive;
};

int CountedItem::alive = 0;

const QColor rainbow[] = {Qt::yellow, Qt::green, Qt::cyan, Qt::magenta, Qt::red};

Colors firstColors(int count)
{
    Colors colors;
    for (int row = 0; row < count; ++row)
        colors[row] = rainbow[row];
    return colors;
}

} // namespace

Q_DECLARE_METATYPE(Colors)

class TestColorList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void oneColorIsChanged()
    {
        QListWidget list;
        setListColors(&list, firstColors(3));
        setListColor(&list, 1, Qt::black);
        QVERIFY(listColors(&list) == Colors({{0, Qt::yellow}, {1, Qt::black}, {2, Qt::cyan}}));
    }

    void colorsAreMoved_data()
    {
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("step");
        QTest::addColumn<Colors>("colors");
        QTest::addColumn<int>("currentThen");
        const Colors before = firstColors(3);
        QTest::newRow("back") << 1 << -1 << Colors{{0, Qt::green}, {1, Qt::yellow}, {2, Qt::cyan}} << 0;
        QTest::newRow("on") << 1 << 1 << Colors{{0, Qt::yellow}, {1, Qt::cyan}, {2, Qt::green}} << 2;
        QTest::newRow("first, on") << 0 << 1 << Colors{{0, Qt::green}, {1, Qt::yellow}, {2, Qt::cyan}} << 1;
        QTest::newRow("first, back") << 0 << -1 << before << 0;
        QTest::newRow("last, on") << 2 << 1 << before << 2;
        QTest::newRow("none, back") << -1 << -1 << before << -1;
        QTest::newRow("none, on") << -1 << 1 << before << -1;
    }

    void colorsAreMoved()
    {
        QFETCH(int, current);
        QFETCH(int, step);
        QFETCH(Colors, colors);
        QFETCH(int, currentThen);
        QListWidget list;
        setListColors(&list, firstColors(3));
        list.setCurrentRow(current);
        QCOMPARE(moveCurrentColor(&list, step), current != currentThen);
        QVERIFY(listColors(&list) == colors);
        QCOMPARE(list.currentRow(), currentThen);
    }

    void readsBackWhatWasSet_data()
    {
        QTest::addColumn<Colors>("colors");
        QTest::addColumn<Colors>("expected");
        QTest::newRow("none") << Colors() << Colors();
        QTest::newRow("one") << firstColors(1) << firstColors(1);
        QTest::newRow("five, in their order") << firstColors(5) << firstColors(5);
        QTest::newRow("translucent") << Colors{{0, QColor(1, 2, 3, 4)}} << Colors{{0, QColor(1, 2, 3, 4)}};
        QTest::newRow("transparent") << Colors{{0, QColor(1, 2, 3, 0)}} << Colors{{0, QColor(1, 2, 3, 0)}};
        QTest::newRow("same color twice")
            << Colors{{0, Qt::red}, {1, Qt::red}} << Colors{{0, Qt::red}, {1, Qt::red}};
        QTest::newRow("rows with gaps are numbered anew")
            << Colors{{-3, Qt::red}, {4, Qt::green}, {9, Qt::blue}}
            << Colors{{0, Qt::red}, {1, Qt::green}, {2, Qt::blue}};
    }

    void readsBackWhatWasSet()
    {
        QFETCH(Colors, colors);
        QFETCH(Colors, expected);
        QListWidget list;
        setListColors(&list, Colors{{0, Qt::black}, {1, Qt::white}});
        setListColors(&list, colors);
        QCOMPARE(list.count(), int(expected.size()));
        QVERIFY(listColors(&list) == expected);
    }

    void otherBrushesCountAsWhite_data()
    {
        QTest::addColumn<QBrush>("brush");
        QTest::newRow("none") << QBrush();
        QTest::newRow("dense pattern") << QBrush(Qt::red, Qt::Dense4Pattern);
        QTest::newRow("gradient") << QBrush(QLinearGradient(0, 0, 1, 1));
        QTest::newRow("texture") << QBrush(QPixmap(2, 2));
        QTest::newRow("color without a pattern") << QBrush(Qt::red, Qt::NoBrush);
    }

    void otherBrushesCountAsWhite()
    {
        QFETCH(QBrush, brush);
        QListWidget list;
        setListColors(&list, firstColors(2));
        list.item(1)->setBackground(brush);
        const Colors expected = {{0, Qt::yellow}, {1, QColor(255, 255, 255, 255)}};
        QVERIFY(listColors(&list) == expected);
    }

    void appendsAtTheEnd()
    {
        QListWidget list;
        appendListColor(&list, Qt::red);
        appendListColor(&list, QColor(1, 2, 3, 4));
        QCOMPARE(list.count(), 2);
        QCOMPARE(list.item(1)->background(), QBrush(QColor(1, 2, 3, 4)));
        QCOMPARE(list.item(1)->sizeHint(), QSize(18, 18));
        QCOMPARE(list.item(1)->textAlignment(), int(Qt::AlignCenter));
        QCOMPARE(list.item(1)->text(), QString());
    }

    void steps_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("left");
        QTest::addColumn<int>("right");
        QTest::newRow("in the middle") << 5 << 2 << 1 << 3;
        QTest::newRow("first") << 5 << 0 << 0 << 1;
        QTest::newRow("second") << 5 << 1 << 0 << 2;
        QTest::newRow("last but one") << 5 << 3 << 2 << 4;
        QTest::newRow("last") << 5 << 4 << 3 << 4;
        QTest::newRow("only one") << 1 << 0 << 0 << 0;
        QTest::newRow("no current one") << 5 << -1 << -1 << 0;
        QTest::newRow("empty list") << 0 << -1 << -1 << -1;
    }

    void steps()
    {
        QFETCH(int, count);
        QFETCH(int, current);
        QFETCH(int, left);
        QFETCH(int, right);
        QListWidget list;
        setListColors(&list, firstColors(count));
        list.setCurrentRow(current);
        stepListLeft(&list);
        QCOMPARE(list.currentRow(), left);
        list.setCurrentRow(current);
        stepListRight(&list);
        QCOMPARE(list.currentRow(), right);
    }

    void steppingBringsTheItemIntoView()
    {
        QListWidget list;
        list.setViewMode(QListView::IconMode);
        list.setFlow(QListView::LeftToRight);
        list.setWrapping(false);
        list.setMovement(QListView::Static);
        list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list.setFixedSize(60, 24);
        setListColors(&list, firstColors(5));
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        list.setAutoScroll(false); // only the step itself scrolls
        list.setCurrentRow(3);
        list.scrollToItem(list.item(0));
        QVERIFY(!isInView(list, 4));
        stepListRight(&list);
        QVERIFY(isInView(list, 4));

        list.setCurrentRow(1);
        list.scrollToItem(list.item(4));
        QVERIFY(!isInView(list, 0));
        stepListLeft(&list);
        QVERIFY(isInView(list, 0));
    }

    void removes_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("current");
        QTest::addColumn<bool>("destroyed");
        QTest::newRow("first of five") << 5 << 0 << true;
        QTest::newRow("last of five") << 5 << 4 << true;
        QTest::newRow("one of three, two remain") << 3 << 1 << true;
        QTest::newRow("one of two, one remains") << 2 << 1 << false;
        QTest::newRow("the only one, none remain") << 1 << 0 << false;
    }

    void removes()
    {
        QFETCH(int, count);
        QFETCH(int, current);
        QFETCH(bool, destroyed);
        QListWidget list;
        std::vector<QColor> expected;
        for (int row = 0; row < count; ++row) {
            (new CountedItem(&list))->setBackground(QBrush(rainbow[row]));
            if (row != current)
                expected.push_back(rainbow[row]);
        }
        list.setCurrentRow(current);
        Leftovers leftovers;
        removeCurrentColor(&list, leftovers);
        QCOMPARE(list.count(), count - 1);
        for (int row = 0; row < count - 1; ++row)
            QCOMPARE(listColors(&list)[row], expected[size_t(row)]);
        QCOMPARE(CountedItem::alive, destroyed ? count - 1 : count);
        QCOMPARE(leftovers.size(), size_t(destroyed ? 0 : 1));
        if (!destroyed)
            QCOMPARE(leftovers.front()->background().color(), rainbow[current]);
    }

    void removesDownToNothing()
    {
        QListWidget list;
        setListColors(&list, firstColors(5));
        list.setCurrentRow(2);
        Leftovers leftovers;
        for (int remaining = 4; remaining >= 0; --remaining) {
            removeCurrentColor(&list, leftovers);
            QCOMPARE(list.count(), remaining);
        }
        QCOMPARE(leftovers.size(), size_t(2));
        QVERIFY(listColors(&list).empty());
        removeCurrentColor(&list, leftovers);
        QCOMPARE(leftovers.size(), size_t(2));
    }

    void removesNothingWithoutACurrentItem()
    {
        QListWidget list;
        setListColors(&list, firstColors(5));
        list.setCurrentRow(-1);
        Leftovers leftovers;
        removeCurrentColor(&list, leftovers);
        QVERIFY(listColors(&list) == firstColors(5));
        QVERIFY(leftovers.empty());
    }

private:
    static bool isInView(const QListWidget& list, int row)
    {
        return list.viewport()->rect().contains(list.visualItemRect(list.item(row)).center());
    }
};

VD_TEST_MAIN(TestColorList)
#include "tst_colorlist.moc"
