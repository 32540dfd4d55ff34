#include "paintpublicbrightwidget.h"
#include "testcase.h"

using namespace vardeno::testcharttools;

class TestPaintPublicBrightWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void veil_data()
    {
        QTest::addColumn<int>("percent");
        QTest::addColumn<int>("alpha");
        QTest::newRow("full brightness, no veil") << 100 << 0;
        QTest::newRow("99 %") << 99 << 3;
        QTest::newRow("half") << 50 << 128;
        QTest::newRow("1 %") << 1 << 253;
        QTest::newRow("dark") << 0 << 255;
    }

    void veil()
    {
        QFETCH(int, percent);
        QFETCH(int, alpha);
        PaintPublicBrightWidget layer;
        layer.resize(64, 36);
        layer.setBrightness(30);
        layer.setBrightness(ushort(percent));

        QImage expected(64, 36, QImage::Format_ARGB32_Premultiplied);
        expected.fill(QColor(0, 0, 0, alpha));
        VD_COMPARE_IMAGES(layerImage(layer), expected);
    }

    void startsWithoutVeil()
    {
        PaintPublicBrightWidget layer;
        layer.resize(20, 10);
        layer.grab();
        QCOMPARE(layerImage(layer).pixelColor(10, 5).alpha(), 0);
    }

    void sameBrightnessRendersOnce()
    {
        PaintPublicBrightWidget layer;
        layer.resize(20, 10);
        layer.setBrightness(40);
        const qint64 picture = layer.pixmap(Qt::ReturnByValue).cacheKey();
        layer.setBrightness(40);
        QCOMPARE(layer.pixmap(Qt::ReturnByValue).cacheKey(), picture);
        layer.setBrightness(41);
        QVERIFY(layer.pixmap(Qt::ReturnByValue).cacheKey() != picture);
    }
};

VD_TEST_MAIN(TestPaintPublicBrightWidget)
#include "tst_paintpublicbrightwidget.moc"
