#include "colorpattern.h"
#include "linepattern.h"
#include "outputwindow.h"
#include "testcase.h"

#include <QPainter>
#include <QScreen>

namespace {

/// Every pixel another than its neighbours.
QImage noise(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 37 % 256, y * 59 % 256, (x ^ y) % 256));
    }
    return image;
}

QImage placed(const QImage& chart, const QPoint& at, const QSize& display)
{
    QImage image(display, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter(&image).drawImage(at, chart);
    return image;
}

/// A window that remembers what it has painted.
class Window : public OutputWindow
{
public:
    QRegion painted;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        painted += event->region();
        ++paints;
        OutputWindow::paintEvent(event);
    }
};

} // namespace

/// The window of the output, on the display of the test.
class TestOutputWindow : public TestCase
{
    Q_OBJECT

private:
    static bool show(Window& window)
    {
        window.showOn(window.screen());
        return QTest::qWaitForWindowExposed(&window) && QTest::qWaitFor([&] { return window.paints > 0; });
    }

    static QImage shown(Window& window)
    {
        return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

private Q_SLOTS:
    void aPatternIsPaintedAtOnce()
    {
        Window window;
        window.setChart(noise(QSize(301, 203)), QPoint());
        QVERIFY(show(window));
        const int paints = window.paints;
        window.setPattern(std::make_shared<LinePattern>(QSize(301, 203), LineDirection::Vertical));
        QCOMPARE(window.paints, paints + 1);
    }

    void aChartPixelForPixel_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("at");
        QTest::newRow("smaller") << QSize(301, 203) << QPoint(0, 0);
        QTest::newRow("in its place") << QSize(301, 203) << QPoint(77, 41);
        QTest::newRow("cut at the left and above") << QSize(301, 203) << QPoint(-50, -60);
        QTest::newRow("larger") << QSize(2500, 1500) << QPoint(-100, -20);
        QTest::newRow("beside it") << QSize(10, 10) << QPoint(9000, 0);
    }

    void aChartPixelForPixel()
    {
        QFETCH(QSize, size);
        QFETCH(QPoint, at);
        Window window;
        window.setChart(noise(size), at);
        QVERIFY(show(window));
        QCOMPARE(window.geometry(), window.screen()->geometry());
        VD_COMPARE_IMAGES(shown(window), placed(noise(size), at, window.size()));
        QCOMPARE(window.cursor().shape(), Qt::BlankCursor);
    }

    void onlyWhatHasChangedIsPainted()
    {
        Window window;
        QImage chart = noise(QSize(400, 300));
        window.setChart(chart, QPoint(20, 10));
        QVERIFY(show(window));
        QTest::qWait(100); // what the X server exposes
        window.painted = {};
        chart.setPixelColor(33, 44, Qt::red);
        window.setChart(chart, QPoint(20, 10));
        QTRY_VERIFY(!window.painted.isEmpty());
        QCOMPARE(window.painted.boundingRect(), QRect(53, 54, 1, 1));
        VD_COMPARE_IMAGES(shown(window), placed(chart, QPoint(20, 10), window.size()));
    }

    void everyStepIsPaintedOnce()
    {
        Window window;
        window.setChart(noise(QSize(400, 300)), QPoint());
        const auto line = std::make_shared<LinePattern>(QSize(400, 300), LineDirection::Vertical);
        window.setPattern(line, 5);
        QVERIFY(show(window));
        QTest::qWait(100);
        window.paints = 0;
        window.painted = {};
        for (int step = 6; step < 16; ++step)
            window.setStep(step);
        QCOMPARE(window.paints, 10);
        QCOMPARE(window.painted.boundingRect(), QRect(5, 0, 11, 300));
        QImage expected(window.size(), QImage::Format_RGB32);
        expected.fill(Qt::black);
        QPainter(&expected).fillRect(15, 0, 1, 300, Qt::white);
        VD_COMPARE_IMAGES(shown(window), expected);
    }

    void aPatternStandsWhereTheChartDoes()
    {
        Window window;
        window.setChart(noise(QSize(100, 80)), QPoint(30, 20));
        window.setPattern(
            std::make_shared<ColorPattern>(QSize(100, 80), std::vector<QColor>{QColor(Qt::white)}));
        QVERIFY(show(window));
        QImage white(100, 80, QImage::Format_RGB32);
        white.fill(Qt::white);
        VD_COMPARE_IMAGES(shown(window), placed(white, QPoint(30, 20), window.size()));
        window.setPattern(nullptr);
        VD_COMPARE_IMAGES(shown(window), placed(noise(QSize(100, 80)), QPoint(30, 20), window.size()));
    }

    void aChartOfAnotherSize()
    {
        Window window;
        window.setChart(noise(QSize(400, 300)), QPoint());
        QVERIFY(show(window));
        window.setChart(noise(QSize(20, 10)), QPoint(5, 5));
        VD_COMPARE_IMAGES(shown(window), placed(noise(QSize(20, 10)), QPoint(5, 5), window.size()));
    }

    void changedRects_data()
    {
        QTest::addColumn<QVector<QPoint>>("pixels");
        QTest::addColumn<QRect>("changed");
        QTest::newRow("none") << QVector<QPoint>() << QRect();
        QTest::newRow("one") << QVector<QPoint>{{3, 4}} << QRect(3, 4, 1, 1);
        QTest::newRow("corners") << QVector<QPoint>{{0, 0}, {19, 9}} << QRect(0, 0, 20, 10);
        QTest::newRow("falling") << QVector<QPoint>{{12, 2}, {5, 7}} << QRect(5, 2, 8, 6);
        QTest::newRow("rising") << QVector<QPoint>{{5, 2}, {12, 7}} << QRect(5, 2, 8, 6);
        QTest::newRow("in a row") << QVector<QPoint>{{2, 5}, {18, 5}} << QRect(2, 5, 17, 1);
    }

    void changedRects()
    {
        QFETCH(QVector<QPoint>, pixels);
        QFETCH(QRect, changed);
        const QImage before = noise(QSize(20, 10));
        QImage after = before;
        for (const QPoint& pixel : pixels)
            after.setPixelColor(pixel, QColor(1, 2, 3));
        QCOMPARE(changedRect(before, after), changed);
    }

    void changedSizes()
    {
        QCOMPARE(changedRect(noise(QSize(4, 9)), noise(QSize(8, 3))), QRect(0, 0, 8, 9));
        QCOMPARE(changedRect(QImage(), noise(QSize(8, 3))), QRect(0, 0, 8, 3));
    }

    void keysAndClosingAreTold()
    {
        Window window;
        QVERIFY(show(window));
        QString typed;
        connect(&window, &OutputWindow::keyPressed, &window,
                [&](QKeyEvent* event) { typed += event->text(); });
        QSignalSpy closed(&window, &OutputWindow::closed);
        QTest::keyClicks(&window, QStringLiteral("b1"));
        QCOMPARE(typed, QStringLiteral("b1"));
        window.close();
        QCOMPARE(closed.size(), 1);
    }
};

VD_TEST_MAIN(TestOutputWindow)
#include "tst_outputwindow.moc"
