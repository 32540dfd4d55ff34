#include "layers/layerpicture.h"
#include "testcase.h"

#include <QPainter>

using namespace vardeno::testcharttools;

namespace {

QPixmap drawn(LayerPicture& picture, const QSize& size, const QRect& where, const QColor& color)
{
    QImage& image = picture.begin(size);
    QPainter painter(&image);
    painter.fillRect(where, color);
    painter.end();
    return picture.finish();
}

QImage expected(const QSize& size, const QRect& where, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter(&image).fillRect(where, color);
    return image;
}

constexpr QSize chart(200, 100);
constexpr QRect onTheLeft(10, 10, 50, 50);
constexpr QRect onTheRight(120, 40, 60, 60);

} // namespace

class TestLayerPicture : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void beginsTransparent()
    {
        LayerPicture picture;
        const QImage& image = picture.begin(chart);
        QCOMPARE(image.size(), chart);
        QCOMPARE(image.format(), QImage::Format_ARGB32_Premultiplied);
        VD_COMPARE_IMAGES(image, expected(chart, {}, Qt::black));
    }

    void knowsItsInk()
    {
        LayerPicture picture;
        drawn(picture, chart, onTheLeft, Qt::red);
        QVERIFY(!picture.ink().places.isEmpty());
        for (const QRect& place : picture.ink().places)
            QVERIFY(place.intersects(onTheLeft));
        drawn(picture, chart, {}, Qt::red);
        QVERIFY(picture.ink().places.isEmpty());
    }

    void isDrawnOnAgain()
    {
        LayerPicture picture;
        const uchar* memory = nullptr;
        {
            const QPixmap first = drawn(picture, chart, onTheLeft, Qt::red);
            VD_COMPARE_IMAGES(first.toImage(), expected(chart, onTheLeft, Qt::red));
            memory = first.toImage().constBits();
        }
        const QPixmap second = drawn(picture, chart, onTheRight, QColor(0, 0, 255, 80));
        VD_COMPARE_IMAGES(second.toImage(), expected(chart, onTheRight, QColor(0, 0, 255, 80)));
        QCOMPARE(second.toImage().constBits(), memory);
    }

    void leavesWhatSomeoneHolds()
    {
        LayerPicture picture;
        const QPixmap first = drawn(picture, chart, onTheLeft, Qt::red);
        const QPixmap second = drawn(picture, chart, onTheRight, Qt::blue);
        VD_COMPARE_IMAGES(first.toImage(), expected(chart, onTheLeft, Qt::red));
        VD_COMPARE_IMAGES(second.toImage(), expected(chart, onTheRight, Qt::blue));
        QVERIFY(first.cacheKey() != second.cacheKey());
    }

    void everyDrawingHasAKeyOfItsOwn()
    {
        LayerPicture picture;
        const qint64 first = drawn(picture, chart, onTheLeft, Qt::red).cacheKey();
        const qint64 second = drawn(picture, chart, onTheLeft, Qt::blue).cacheKey();
        QVERIFY(first != second);
    }

    void whatIsWrittenWholeIsNotLookedAt()
    {
        LayerPicture picture;
        drawn(picture, chart, onTheLeft, Qt::red);
        QImage& image = picture.begin(chart, LayerPicture::Coverage::Whole);
        image.fill(QColor(0, 0, 0, 90));
        const QPixmap whole = picture.finish();
        VD_COMPARE_IMAGES(whole.toImage(), expected(chart, QRect(QPoint(), chart), QColor(0, 0, 0, 90)));
        QCOMPARE(picture.ink().places, QVector<QRect>{QRect(QPoint(), chart)});
        QVERIFY(!picture.ink().opaque);
        picture.begin(chart, LayerPicture::Coverage::Opaque).fill(Qt::white);
        picture.finish();
        QVERIFY(picture.ink().opaque);
    }

    void transparentAgainAfterItWasWrittenWhole()
    {
        LayerPicture picture;
        picture.begin(chart, LayerPicture::Coverage::Opaque).fill(Qt::white);
        picture.finish();
        const QPixmap part = drawn(picture, chart, onTheLeft, Qt::red);
        VD_COMPARE_IMAGES(part.toImage(), expected(chart, onTheLeft, Qt::red));
    }

    void nothingIsNotLookedFor()
    {
        LayerPicture picture;
        picture.begin(chart, LayerPicture::Coverage::Whole).fill(Qt::white);
        picture.finish();
        for (int again = 0; again < 2; ++again) {
            picture.begin(chart, LayerPicture::Coverage::Nothing);
            VD_COMPARE_IMAGES(picture.finish().toImage(), expected(chart, QRect(), Qt::white));
            QVERIFY(picture.ink().places.isEmpty() && !picture.ink().opaque);
        }
        const QPixmap part = drawn(picture, chart, onTheLeft, Qt::red);
        VD_COMPARE_IMAGES(part.toImage(), expected(chart, onTheLeft, Qt::red));
        picture.begin(chart, LayerPicture::Coverage::Nothing);
        VD_COMPARE_IMAGES(picture.finish().toImage(), expected(chart, QRect(), Qt::white));
    }

    void takesAnotherSize()
    {
        LayerPicture picture;
        drawn(picture, chart, onTheLeft, Qt::red);
        const QPixmap larger = drawn(picture, {300, 200}, onTheRight, Qt::blue);
        VD_COMPARE_IMAGES(larger.toImage(), expected({300, 200}, onTheRight, Qt::blue));
    }
};

VD_TEST_MAIN(TestLayerPicture)
#include "tst_layerpicture.moc"
