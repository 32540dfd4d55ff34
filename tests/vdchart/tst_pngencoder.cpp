#include "bmpencoder.h"
#include "jpegencoder.h"
#include "pngencoder.h"
#include "testcase.h"

#include <cstdlib>
#include <random>
#include <stdexcept>
#include <vector>

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

    /// Runs of random colours, and rows that repeat, out of `count` colours that all occur where there is
    /// room.
    static QImage noise(const QSize& size, int count, int run)
    {
        std::mt19937 random(unsigned(count * 31 + run));
        std::vector<QRgb> colors;
        for (int i = 0; i < count; ++i)
            colors.push_back(qRgb(i * 37 % 256, i * 101 % 256, (i / 256 * 16 + i) % 256));
        QImage image(size, QImage::Format_RGB32);
        std::size_t next = 0;
        for (int y = 0; y < size.height(); ++y) {
            const bool repeats = y > 0 && random() % 2 == 0 && next >= colors.size();
            for (int x = 0; x < size.width(); ++x) {
                if (repeats)
                    image.setPixel(x, y, image.pixel(x, y - 1));
                else if (x > 0 && int(random() % unsigned(run)) != 0)
                    image.setPixel(x, y, image.pixel(x - 1, y));
                else
                    image.setPixel(x, y,
                                   next < colors.size() ? colors[next++] : colors[random() % colors.size()]);
            }
        }
        return image;
    }

    static ByteSink appendTo(QByteArray& file)
    {
        return [&file](const char* bytes, qint64 count) { file.append(bytes, int(count)); };
    }

    static QByteArray encoded(const PictureRows& picture, const PngOptions& options)
    {
        QByteArray file;
        encodePng(picture, options, appendTo(file));
        return file;
    }

    static QImage decoded(const QByteArray& file)
    {
        return QImage::fromData(file).convertToFormat(QImage::Format_RGB32);
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
            const QImage read = QImage::fromData(encodePng(image, {compression}), "PNG");
            VD_COMPARE_IMAGES(read.convertToFormat(QImage::Format_RGB32),
                              image.convertToFormat(QImage::Format_RGB32));
        }
    }

    void paletteUpTo256Colors_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("colorType");
        for (const int count : {1, 2, 16, 17, 255, 256})
            QTest::addRow("%d", count) << count << 3;
        QTest::newRow("257") << 257 << 2;
    }

    void paletteUpTo256Colors()
    {
        QFETCH(int, count);
        const QImage image = noise({301, 203}, count, 5);
        const QByteArray file = encodePng(image, {1});
        constexpr int colorType =
            25; // behind the signature, the header's length and name, two sizes and the depth
        QTEST(int(file.at(colorType)), "colorType");
        QVERIFY(!file.contains("tRNS"));
        QVERIFY(!QImage::fromData(file).hasAlphaChannel());
        VD_COMPARE_IMAGES(QImage::fromData(file).convertToFormat(QImage::Format_RGB32), image);
    }

    /// The 257th colour may come last.
    void theLastPixelCounts()
    {
        QImage image = noise({64, 64}, 256, 1);
        image.setPixel(63, 63, qRgb(1, 2, 3));
        VD_COMPARE_IMAGES(decoded(encodePng(image, {1})), image);
        QCOMPARE(int(encodePng(image, {1}).at(25)), 2);
    }

    void randomPictures()
    {
        std::mt19937 random(3);
        for (int i = 0; i < 60; ++i) {
            const QSize size(1 + int(random() % 700), 1 + int(random() % 300));
            const QImage image = noise(size, 1 + int(random() % 400), 1 + int(random() % 40));
            VD_COMPARE_IMAGES(decoded(encodePng(image, {int(random() % 10)})), image);
        }
    }

    void itSaysItsColorSpaceAndResolution()
    {
        const QByteArray file = encodePng(noise({3, 2}, 2, 1), {1});
        QVERIFY(file.contains(QByteArray("\0\0\0\1sRGB\0", 9)));
        QCOMPARE(QImage::fromData(file).dotsPerMeterX(), 3780);
        QCOMPARE(QImage::fromData(file).dotsPerMeterY(), 3780);
    }

    void texts()
    {
        PngOptions options;
        options.texts = {{"one", QStringLiteral("Gr\u00fc\u00dfe, \u4e16\u754c").repeated(100)},
                         {"two", QStringLiteral("x")}};
        const QByteArray file = encoded(rowsOf(noise({9, 9}, 3, 1)), options);
        QCOMPARE(QImage::fromData(file).text(QStringLiteral("one")), options.texts.front().text);
        QCOMPARE(QImage::fromData(file).text(QStringLiteral("two")), QStringLiteral("x"));
        QVERIFY(file.size() < 600);
    }

    /// Blocks end within strips and strips within blocks; rows repeat those above across both.
    void inStripsOnThreads_data()
    {
        QTest::addColumn<int>("colors");
        QTest::addColumn<int>("atOnce");
        for (const int colors : {2, 200, 9000}) {
            for (const int atOnce : {0, 1, 7, 500, 9999})
                QTest::addRow("%d colors, %d rows", colors, atOnce) << colors << atOnce;
        }
    }

    void inStripsOnThreads()
    {
        QFETCH(int, colors);
        QFETCH(int, atOnce);
        static QHash<int, QImage> images;
        QImage& image = images[colors];
        if (image.isNull())
            image = noise({1200, 1100}, colors, 90);
        PictureRows picture = rowsOf(image);
        picture.atOnce = atOnce;
        PngOptions options;
        const QByteArray file = encoded(picture, options);
        VD_COMPARE_IMAGES(decoded(file), image);
        options.threads = 3;
        QVERIFY(encoded(picture, options) == file);
    }

    void onlyTheStripsThatAreWantedAreDrawn()
    {
        const QImage image = noise({40, 100}, 3, 4);
        int drawn = 0;
        PictureRows picture = rowsOf(image);
        picture.atOnce = 30;
        picture.rows = [&](int top, int count) {
            drawn += count <= 30 ? count : 1000;
            return image.copy(0, top, 40, count);
        };
        encoded(picture, {});
        QCOMPARE(drawn, 200);
        drawn = 0;
        const QImage colorful = noise({40, 100}, 9999, 1);
        picture.rows = [&](int top, int count) {
            drawn += count;
            return colorful.copy(0, top, 40, count);
        };
        encoded(picture, {});
        QCOMPARE(drawn, 130); // the first strip shows that there are too many colours
    }

    /// What the writer of a file throws arrives, and nothing is left at work.
    void aSinkThatFails()
    {
        PngOptions options;
        options.threads = 3;
        const QImage image = noise({1200, 1100}, 9000, 1);
        int parts = 0;
        const ByteSink failing = [&parts](const char*, qint64) {
            if (++parts > 5)
                throw std::runtime_error("full");
        };
        QVERIFY_EXCEPTION_THROWN(encodePng(rowsOf(image), options, failing), std::runtime_error);
        QVERIFY_EXCEPTION_THROWN(encodeJpeg(rowsOf(image), failing), std::runtime_error);
        QVERIFY_EXCEPTION_THROWN(encodeBmp(rowsOf(image), failing), std::runtime_error);
    }

    void otherFormats_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("atOnce");
        for (const int width : {1, 2, 3, 4, 301})
            QTest::addRow("%d wide", width) << width << 0;
        QTest::newRow("in strips") << 301 << 13;
    }

    void otherFormats()
    {
        QFETCH(int, width);
        QFETCH(int, atOnce);
        const QImage image = noise({width, 100}, 300, 9);
        PictureRows picture = rowsOf(image);
        picture.atOnce = atOnce;
        QByteArray bmp;
        encodeBmp(picture, appendTo(bmp));
        VD_COMPARE_IMAGES(decoded(bmp), image);
        QByteArray jpeg;
        encodeJpeg(picture, appendTo(jpeg));
        const QImage lossy = decoded(jpeg);
        QCOMPARE(lossy.size(), image.size());
        for (const QByteArray& file : {bmp, jpeg}) {
            QCOMPARE(qRound(QImage::fromData(file).dotsPerMeterX() * 0.0254), 96);
            QCOMPARE(qRound(QImage::fromData(file).dotsPerMeterY() * 0.0254), 96);
        }
        for (int y = 0; y < image.height(); ++y) { // as near as its numbers allow: no colour is shared
            for (int x = 0; x < width; ++x) {
                const QColor a(image.pixel(x, y));
                const QColor b(lossy.pixel(x, y));
                const int off = std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
                                std::abs(a.blue() - b.blue());
                QVERIFY2(off <= 12, qPrintable(QString::number(off)));
            }
        }
    }

    void compression()
    {
        const QImage image = picture({640, 480}, QImage::Format_RGB32);
        QVERIFY(encodePng(image, {0}).size() > 640 * 480 * 3);
        QVERIFY(encodePng(image, {1}).size() < encodePng(image, {0}).size());
        QVERIFY(encodePng(image, {9}).size() <= encodePng(image, {1}).size());
    }

    void nothing() { QCOMPARE(encodePng(QImage(), {1}), QByteArray()); }
};

VD_TEST_MAIN(TestPngEncoder)
#include "tst_pngencoder.moc"

using namespace vardeno::testcharttools;
