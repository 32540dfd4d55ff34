#include "pngencoder.h"
#include "testcase.h"

class TestPngEncoder : public TestCase
{
    Q_OBJECT

private:
    static QImage picture(const QSize& size, QImage::Format format)
    {
        QImage image(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                image.setPixelColor(x, y, QColor(x % 256, y % 256, (x * y) % 256));
        }
        return image.convertToFormat(format);
    }

private Q_SLOTS:
    void samePixels_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("chart") << QSize(300, 200) << QImage::Format_RGB32;
        QTest::newRow("one pixel") << QSize(1, 1) << QImage::Format_RGB32;
        QTest::newRow("one row") << QSize(4320, 1) << QImage::Format_RGB32;
        QTest::newRow("one column") << QSize(1, 4320) << QImage::Format_RGB32;
        QTest::newRow("packed") << QSize(31, 17) << QImage::Format_RGB888;
        QTest::newRow("grey") << QSize(31, 17) << QImage::Format_Grayscale8;
        QTest::newRow("table of colors") << QSize(31, 17) << QImage::Format_Indexed8;
        QTest::newRow("16 bits") << QSize(31, 17) << QImage::Format_RGBA64;
    }

    void samePixels()
    {
        QFETCH(QSize, size);
        QFETCH(QImage::Format, format);
        const QImage image = picture(size, format);
        for (int compression = 0; compression <= 9; ++compression) {
            const QImage read = QImage::fromData(encodePng(image, compression), "PNG");
            VD_COMPARE_IMAGES(read.convertToFormat(QImage::Format_RGB32),
                              image.convertToFormat(QImage::Format_RGB32));
        }
    }

    void itHasNoTransparency()
    {
        QImage image(20, 10, QImage::Format_RGB32);
        image.fill(Qt::red);
        const QByteArray file = encodePng(image, 1);
        constexpr int colorType =
            25; // behind the signature, the header's length and name, two sizes and the depth
        QCOMPARE(int(file.at(colorType)), 2);
        QVERIFY(!QImage::fromData(file).hasAlphaChannel());
    }

    void compression()
    {
        const QImage image = picture({640, 480}, QImage::Format_RGB32);
        QVERIFY(encodePng(image, 0).size() > 640 * 480 * 3);
        QVERIFY(encodePng(image, 1).size() < encodePng(image, 0).size());
        QVERIFY(encodePng(image, 9).size() <= encodePng(image, 1).size());
    }

    void nothing() { QCOMPARE(encodePng(QImage(), 1), QByteArray()); }
};

VD_TEST_MAIN(TestPngEncoder)
#include "tst_pngencoder.moc"
