#include "layers/ink.h"
#include "testcase.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QRegion>

using namespace vardeno::testcharttools;

namespace {

QImage transparent(const QSize& size)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    return picture;
}

bool holds(const QVector<QRect>& places, const QPoint& point)
{
    return std::any_of(places.begin(), places.end(),
                       [&](const QRect& place) { return place.contains(point); });
}

} // namespace

class TestInk : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothing_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("null") << QSize();
        QTest::newRow("one pixel") << QSize(1, 1);
        QTest::newRow("chart") << QSize(1920, 1080);
    }
    void nothing()
    {
        QFETCH(QSize, size);
        const Ink ink = inkOf(size.isEmpty() ? QImage() : transparent(size));
        QVERIFY(ink.places.isEmpty());
        QVERIFY(!ink.opaque);
    }

    void onePixel_data()
    {
        QTest::addColumn<QPoint>("at");
        QTest::newRow("first") << QPoint(0, 0);
        QTest::newRow("last") << QPoint(998, 700);
        QTest::newRow("in the last column") << QPoint(998, 3);
        QTest::newRow("in the last row") << QPoint(3, 700);
        QTest::newRow("inside") << QPoint(513, 333);
    }
    void onePixel()
    {
        QFETCH(QPoint, at);
        QImage picture = transparent({999, 701});
        picture.setPixelColor(at, QColor(0, 0, 0, 1));
        const Ink ink = inkOf(picture);
        QCOMPARE(ink.places.size(), 1);
        QVERIFY(ink.places.first().contains(at));
        QVERIFY(picture.rect().contains(ink.places.first()));
        QVERIFY(ink.places.first().width() <= 64 && ink.places.first().height() <= 32);
        QVERIFY(!ink.opaque);
    }

    void opaque_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QPoint>("hole");
        QTest::addColumn<bool>("opaque");
        QTest::newRow("whole") << QColor(Qt::black) << QPoint(-1, -1) << true;
        QTest::newRow("translucent") << QColor(0, 0, 0, 254) << QPoint(-1, -1) << false;
        QTest::newRow("hole at the end") << QColor(Qt::white) << QPoint(998, 700) << false;
        QTest::newRow("hole at the beginning") << QColor(Qt::white) << QPoint(0, 0) << false;
    }
    void opaque()
    {
        QFETCH(QColor, color);
        QFETCH(QPoint, hole);
        QFETCH(bool, opaque);
        QImage picture = transparent({999, 701});
        picture.fill(color);
        if (hole.x() >= 0)
            picture.setPixelColor(hole, QColor(255, 255, 255, 254));
        QCOMPARE(inkOf(picture).opaque, opaque);
    }

    void placesHoldAllInkAndAreDisjoint()
    {
        QRandomGenerator random(20260103);
        for (int i = 0; i < 40; ++i) {
            QImage picture = transparent({1 + random.bounded(400), 1 + random.bounded(300)});
            QPainter painter(&picture);
            for (int shapes = random.bounded(5); shapes > 0; --shapes)
                painter.fillRect(random.bounded(400), random.bounded(300), random.bounded(90),
                                 random.bounded(50), QColor::fromRgba(random.generate()));
            painter.end();
            const Ink ink = inkOf(picture);
            QRegion covered;
            for (const QRect& place : ink.places) {
                QVERIFY(!covered.intersects(place));
                covered += place;
            }
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    if (picture.pixel(x, y) != 0)
                        QVERIFY(holds(ink.places, {x, y}));
                }
            }
            wipe(picture, ink.places);
            VD_COMPARE_IMAGES(picture, transparent(picture.size()));
        }
    }
};

VD_TEST_MAIN(TestInk)
#include "tst_ink.moc"
