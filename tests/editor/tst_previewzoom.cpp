#include "editor/previewzoom.h"
#include "testcase.h"

using namespace vardeno::testcharttools;

namespace {

PreviewZoom zoomOf(const QSize& view, const QSize& chart)
{
    PreviewZoom zoom;
    zoom.setView(view);
    zoom.setChart(chart);
    return zoom;
}

const QSize view(800, 600);
const QSize chart(1600, 900);
const QPointF middle(400, 300);

} // namespace

class TestPreviewZoom : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fitsAtFirst()
    {
        const PreviewZoom zoom = zoomOf(view, chart);
        QVERIFY(zoom.isFitted());
        QCOMPARE(zoom.scale(), 0.5);
        QCOMPARE(zoom.place(), QRect(0, 75, 800, 450));
    }

    void empty_data()
    {
        QTest::addColumn<QSize>("view");
        QTest::addColumn<QSize>("chart");
        QTest::newRow("nothing") << QSize() << QSize();
        QTest::newRow("no chart") << view << QSize();
        QTest::newRow("no view") << QSize(0, 0) << chart;
    }
    void empty()
    {
        QFETCH(QSize, view);
        QFETCH(QSize, chart);
        PreviewZoom zoom = zoomOf(view, chart);
        zoom.zoom(3, middle);
        zoom.zoom(-9, middle);
        zoom.showPixels(middle);
        zoom.move({5, 5});
        zoom.fit();
        QVERIFY(zoom.place().isEmpty());
        QVERIFY(zoom.scale() > 0);
        QCOMPARE(zoom.pixelAt(middle), QPoint(-1, -1));
    }

    void steps_data()
    {
        QTest::addColumn<QSize>("chart");
        QTest::addColumn<int>("steps");
        QTest::addColumn<double>("scale");
        QTest::newRow("none") << chart << 0 << 0.5;
        QTest::newRow("one") << chart << 1 << 1.0;
        QTest::newRow("two") << chart << 2 << 2.0;
        QTest::newRow("to the largest") << chart << 8 << 16.0;
        QTest::newRow("beyond the largest") << chart << 20 << 16.0;
        QTest::newRow("below all of it") << chart << -3 << 0.5;
        QTest::newRow("a large chart") << QSize(7680, 4320) << 2 << 0.25;
        QTest::newRow("a small chart") << QSize(160, 90) << 1 << 6.0;
        QTest::newRow("a small chart, smaller") << QSize(160, 90) << -1 << 4.0;
        QTest::newRow("a small chart in its own size") << QSize(160, 90) << -9 << 1.0;
    }
    void steps()
    {
        QFETCH(QSize, chart);
        QFETCH(int, steps);
        QFETCH(double, scale);
        PreviewZoom zoom = zoomOf(view, chart);
        zoom.zoom(steps, middle);
        QCOMPARE(zoom.scale(), scale);
    }

    /// The way out leads to all of the chart, and stops there.
    void theWayBackFits()
    {
        PreviewZoom zoom = zoomOf(view, chart);
        zoom.zoom(5, {10, 90});
        zoom.zoom(-5, {700, 400});
        QVERIFY(zoom.isFitted());
        zoom.zoom(-1, middle);
        QVERIFY(zoom.isFitted());
    }

    void aSmallChartIsFittedOnTheWay()
    {
        PreviewZoom zoom = zoomOf(view, {160, 90}); // fitted at 5
        zoom.zoom(1, middle);
        QVERIFY(!zoom.isFitted());
        zoom.zoom(-1, middle);
        QVERIFY(zoom.isFitted());
        zoom.zoom(-1, middle);
        QCOMPARE(zoom.scale(), 4.0);
        zoom.zoom(1, middle);
        QVERIFY(zoom.isFitted());
    }

    void whatIsUnderThePointerStays_data()
    {
        QTest::addColumn<QPointF>("at");
        QTest::newRow("middle") << middle;
        QTest::newRow("left") << QPointF(30, 200);
        QTest::newRow("right") << QPointF(790, 400);
    }
    void whatIsUnderThePointerStays()
    {
        QFETCH(QPointF, at);
        PreviewZoom zoom = zoomOf(view, chart);
        zoom.zoom(3, at);
        const QPoint pixel = zoom.pixelAt(at);
        for (const int steps : {1, 2, -1, -2}) {
            zoom.zoom(steps, at);
            const QPoint moved = zoom.pixelAt(at) - pixel;
            QVERIFY2(qAbs(moved.x()) <= 1 && qAbs(moved.y()) <= 1, qPrintable(QString::number(steps)));
        }
    }

    void pixels()
    {
        PreviewZoom zoom = zoomOf(view, chart);
        QCOMPARE(zoom.pixelAt({0, 75}), QPoint(0, 0));
        QCOMPARE(zoom.pixelAt({799, 524}), QPoint(1598, 898));
        QVERIFY(zoom.pixelAt({0, 74}).y() < 0);
        zoom.zoom(20, {0, 0});
        QCOMPARE(zoom.place(), QRect(0, 0, 1600 * 16, 900 * 16)); // no room is left beside it
        for (int i = 0; i < 40; ++i)
            QCOMPARE(zoom.pixelAt(QPointF(i, 5)), QPoint(i / 16, 0));
    }

    void movesAsFarAsThereIsChart()
    {
        PreviewZoom zoom = zoomOf(view, chart);
        zoom.showPixels(middle);
        QCOMPARE(zoom.place(), QRect(-400, -150, 1600, 900));
        zoom.move({100, -50});
        QCOMPARE(zoom.place(), QRect(-300, -200, 1600, 900));
        zoom.move({10000, 10000});
        QCOMPARE(zoom.place(), QRect(0, 0, 1600, 900));
        zoom.move({-10000, -10000});
        QCOMPARE(zoom.place(), QRect(-800, -300, 1600, 900));
    }

    void aSmallChartStaysInTheMiddle()
    {
        PreviewZoom zoom = zoomOf(view, {160, 90});
        zoom.showPixels({0, 0});
        QCOMPARE(zoom.place(), QRect(320, 255, 160, 90));
        zoom.move({50, 50});
        QCOMPARE(zoom.place(), QRect(320, 255, 160, 90));
    }

    void allOfItDoesNotMove()
    {
        PreviewZoom zoom = zoomOf(view, chart);
        zoom.move({50, 50});
        QCOMPARE(zoom.place(), QRect(0, 75, 800, 450));
    }

    void anotherViewKeepsTheMiddle()
    {
        PreviewZoom zoom = zoomOf(view, chart);
        zoom.zoom(3, middle);
        const QPoint pixel = zoom.pixelAt(middle);
        zoom.setView({1000, 500});
        QCOMPARE(zoom.pixelAt({500, 250}), pixel);
        QCOMPARE(zoom.scale(), 3.0);
    }

    void anotherChartIsKeptInside()
    {
        PreviewZoom zoom = zoomOf(view, chart);
        zoom.showPixels(middle);
        zoom.move({-10000, -10000});
        zoom.setChart({900, 700});
        QCOMPARE(zoom.place(), QRect(-100, -100, 900, 700));
    }
};

VD_TEST_MAIN(TestPreviewZoom)
#include "tst_previewzoom.moc"
