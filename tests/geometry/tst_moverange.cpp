#include "geometry/moverange.h"
#include "testcase.h"

using namespace vardeno::testcharttools;

/// Where a window may go: it stops at the range's right and bottom edges and nowhere else.
class TestMoveRange : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void stopsAtRightAndBottom_data()
    {
        QTest::addColumn<QPoint>("target");
        QTest::addColumn<QSize>("frame");
        QTest::addColumn<QRect>("range");
        QTest::addColumn<QPoint>("place");

        const QSize frame(200, 100);
        const QRect range(50, 40, 1000, 600); // its right is 1049, its bottom 639
        QTest::newRow("inside") << QPoint(300, 200) << frame << range << QPoint(300, 200);
        QTest::newRow("reaches both edges") << QPoint(849, 539) << frame << range << QPoint(849, 539);
        QTest::newRow("one pixel past the right") << QPoint(850, 200) << frame << range << QPoint(849, 200);
        QTest::newRow("one pixel past the bottom") << QPoint(300, 540) << frame << range << QPoint(300, 539);
        QTest::newRow("far past both") << QPoint(5000, 4000) << frame << range << QPoint(849, 539);
        QTest::newRow("at the top left") << QPoint(50, 40) << frame << range << QPoint(50, 40);
        QTest::newRow("past the left") << QPoint(-70, 200) << frame << range << QPoint(-70, 200);
        QTest::newRow("past the top") << QPoint(300, -60) << frame << range << QPoint(300, -60);
        QTest::newRow("wholly past the top left")
            << QPoint(-900, -800) << frame << range << QPoint(-900, -800);
        QTest::newRow("past the left and the bottom")
            << QPoint(-70, 900) << frame << range << QPoint(-70, 539);
        QTest::newRow("past the top and the right")
            << QPoint(2000, -60) << frame << range << QPoint(849, -60);
        QTest::newRow("as large as the range")
            << QPoint(60, 45) << QSize(1000, 600) << range << QPoint(49, 39);
        QTest::newRow("wider than the range")
            << QPoint(60, 200) << QSize(1200, 100) << range << QPoint(-151, 200);
        QTest::newRow("higher than the range")
            << QPoint(300, 45) << QSize(200, 700) << range << QPoint(300, -61);
        QTest::newRow("no frame") << QPoint(1050, 640) << QSize(0, 0) << range << QPoint(1049, 639);
        QTest::newRow("range on a screen to the left")
            << QPoint(-100, 0) << frame << QRect(-1920, -200, 1920, 1080) << QPoint(-201, 0);
        QTest::newRow("null range") << QPoint(5000, 4000) << frame << QRect() << QPoint(5000, 4000);
        QTest::newRow("null range with a place")
            << QPoint(5000, 4000) << frame << QRect(10, 10, 0, 0) << QPoint(5000, 4000);
        QTest::newRow("range of one pixel")
            << QPoint(5, 5) << frame << QRect(0, 0, 1, 1) << QPoint(-200, -100);
        QTest::newRow("range without height, which is not null")
            << QPoint(300, 200) << frame << QRect(50, 40, 1000, 0) << QPoint(300, -61);
    }

    void stopsAtRightAndBottom()
    {
        QFETCH(QPoint, target);
        QFETCH(QSize, frame);
        QFETCH(QRect, range);
        QTEST(keptInRange(target, frame, range), "place");
    }
};

VD_TEST_MAIN(TestMoveRange)
#include "tst_moverange.moc"
