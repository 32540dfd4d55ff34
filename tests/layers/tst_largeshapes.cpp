#include "layers/chartpen.h"
#include "layers/largeshapes.h"
#include "testcase.h"

#include <QPainter>

#include <cstdlib>
#include <functional>

using namespace vardeno::testcharttools;

namespace {

constexpr QSize canvas(400, 300);

using DrawShapes = std::function<void(QPainter& painter)>;

QImage drawnShapes(const DrawShapes& draw)
{
    QImage image(canvas, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    draw(painter);
    return image;
}

QImage drawnByToolkit(const SmoothPen& pen, const DrawShapes& draw)
{
    return drawnShapes([&](QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(chartPen(pen.color, pen.width));
        draw(painter);
    });
}

/// The largest difference of two pixels' alpha, and the mean one of those that either has any of.
struct AlphaDifference
{
    int largest = 0;
    double mean = 0;
};

AlphaDifference alphaDifference(const QImage& one, const QImage& other)
{
    AlphaDifference found;
    int inked = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const int a = qAlpha(one.pixel(x, y));
            const int b = qAlpha(other.pixel(x, y));
            found.largest = std::max(found.largest, std::abs(a - b));
            found.mean += std::abs(a - b);
            inked += a + b > 0 ? 1 : 0;
        }
    }
    found.mean /= std::max(1, inked);
    return found;
}

/// In tiles of that size, each on a picture of its own.
QImage drawnInTiles(const QSize& tile, const std::function<void(QPainter& painter, const QRect& area)>& draw)
{
    return drawnShapes([&](QPainter& painter) {
        for (int y = 0; y < canvas.height(); y += tile.height()) {
            for (int x = 0; x < canvas.width(); x += tile.width()) {
                const QRect area(QPoint(x, y), tile);
                QImage part(tile, QImage::Format_ARGB32_Premultiplied);
                part.fill(Qt::transparent);
                QPainter onPart(&part);
                onPart.translate(-area.topLeft());
                draw(onPart, area);
                painter.drawImage(area.topLeft(), part);
            }
        }
    });
}

} // namespace

Q_DECLARE_METATYPE(SmoothPen)

/// Lines and circles of charts that are drawn in parts.
class TestLargeShapes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void widths_data()
    {
        QTest::addColumn<SmoothPen>("pen");
        for (const double width : {2.0, 3.0, 10.0, 99.0, 100.0})
            QTest::newRow(qPrintable(QString::number(width))) << SmoothPen{Qt::red, width};
        QTest::newRow("translucent") << SmoothPen{QColor(0, 200, 0, 90), 7};
    }

    void lineLikeTheToolkits_data() { widths_data(); }

    void lineLikeTheToolkits()
    {
        QFETCH(SmoothPen, pen);
        const QPoint from(0, 0);
        const QPoint to(canvas.width(), canvas.height());
        const QImage own = drawnShapes(
            [&](QPainter& painter) { drawSmoothLine(painter, pen, from, to, QRect(QPoint(), canvas)); });
        const QImage expected = drawnByToolkit(pen, [&](QPainter& painter) { painter.drawLine(from, to); });
        const AlphaDifference found = alphaDifference(own, expected);
        QVERIFY2(found.largest < 50, qPrintable(QString::number(found.largest)));
        QVERIFY2(found.mean < 8, qPrintable(QString::number(found.mean)));
    }

    void everyRowOfALineHasItsInk_data()
    {
        widths_data();
        QTest::newRow("1") << SmoothPen{Qt::red, 1}; // which the toolkit draws in a way of its own
    }

    void everyRowOfALineHasItsInk()
    {
        QFETCH(SmoothPen, pen);
        const QImage own = drawnShapes([&](QPainter& painter) {
            drawSmoothLine(painter, pen, {0, 0}, {400, 300}, QRect(QPoint(), canvas));
        });
        const double expected = pen.width * 500 / 300 * pen.color.alpha(); // the diagonal is 500 long
        for (int y = 110; y < 190; ++y) {
            int ink = 0;
            for (int x = 0; x < canvas.width(); ++x)
                ink += qAlpha(own.pixel(x, y));
            QVERIFY2(std::abs(ink - expected) < 4 + expected / 20, qPrintable(QString::number(ink)));
        }
    }

    void circleLikeTheToolkits_data() { widths_data(); }

    void circleLikeTheToolkits()
    {
        QFETCH(SmoothPen, pen);
        const QRect square(60, 20, 251, 251);
        const QImage own = drawnShapes(
            [&](QPainter& painter) { drawSmoothCircle(painter, pen, square, QRect(QPoint(), canvas)); });
        const QImage expected = drawnByToolkit(pen, [&](QPainter& painter) { painter.drawEllipse(square); });
        const AlphaDifference found = alphaDifference(own, expected);
        QVERIFY2(found.largest < 50, qPrintable(QString::number(found.largest)));
        QVERIFY2(found.mean < 8, qPrintable(QString::number(found.mean)));
    }

    void aCircleOfNoSizeIsNotDrawn()
    {
        const QImage own = drawnShapes([](QPainter& painter) {
            drawSmoothCircle(painter, {Qt::red, 50}, QRect(100, 100, 0, 0), QRect(QPoint(), canvas));
        });
        QCOMPARE(alphaDifference(own, drawnShapes([](QPainter&) {})).largest, 0);
    }

    void tilesFitTogether_data()
    {
        QTest::addColumn<QSize>("tile");
        QTest::newRow("rows") << QSize(400, 1);
        QTest::newRow("columns") << QSize(1, 300);
        QTest::newRow("tiles") << QSize(37, 23);
    }

    void tilesFitTogether()
    {
        QFETCH(QSize, tile);
        const auto draw = [](QPainter& painter, const QRect& area) {
            drawSmoothLine(painter, {QColor(255, 0, 0, 128), 9}, {400, 0}, {0, 300}, area);
            drawSmoothCircle(painter, {Qt::blue, 3}, QRect(5, 5, 200, 200), area);
            drawSmoothCircle(painter, {Qt::green, 60}, QRect(150, 100, 40, 40), area);
        };
        const QImage whole = drawnShapes([&](QPainter& painter) { draw(painter, QRect(QPoint(), canvas)); });
        VD_COMPARE_IMAGES(drawnInTiles(tile, draw), whole);
    }
};

VD_TEST_MAIN(TestLargeShapes)
#include "tst_largeshapes.moc"
