#include "support/imagefile.h"
#include "testcase.h"

#include <QBuffer>
#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>

#include <csignal>
#include <sys/resource.h>

using namespace vardeno::testcharttools;

namespace {

/// A picture that compresses badly.
QImage noise(const QSize& size, quint32 seed = 1)
{
    QImage image(size, QImage::Format_RGB32);
    QRandomGenerator random(seed);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, random.generate() | 0xff000000U);
    }
    return image;
}

QImage plain(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

QByteArray encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

quint32 crc32(const QByteArray& bytes)
{
    quint32 crc = 0xffffffffU;
    for (const char byte : bytes) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) ? 0xedb88320U : 0);
    }
    return ~crc;
}

/// A PNG picture whose header claims other sides than its data have.
QByteArray pngClaiming(quint32 width, quint32 height)
{
    const QByteArray header =
        QByteArrayLiteral("IHDR") + bigEndian(width) + bigEndian(height) + QByteArray("\x08\x02\0\0\0", 5);
    QByteArray png = encoded(plain({4, 4}, Qt::red), "PNG");
    return png.replace(12, 21, header + bigEndian(crc32(header)));
}

/// A BMP picture of 24 bits a pixel; a negative height stores its rows from the top.
QByteArray bmpClaiming(qint32 width, qint32 height)
{
    QByteArray bmp = encoded(plain({4, 4}, Qt::red), "BMP");
    qToLittleEndian(width, bmp.data() + 18);
    qToLittleEndian(height, bmp.data() + 22);
    return bmp;
}

/// A GIF picture of one frame on a larger screen, all of which is decoded.
QByteArray gifOnScreen(quint16 width, quint16 height)
{
    QByteArray gif("GIF89a\0\0\0\0\x80\0\0\0\0\xff\0\0\0,\0\0\0\0\4\0\4\0\0\2\4\x84\x8f\x09\5\0;", 36);
    qToLittleEndian(width, gif.data() + 6);
    qToLittleEndian(height, gif.data() + 8);
    return gif;
}

void store(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QByteArray stored(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void setModified(const QString& path, const QDateTime& time)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

/// While it lives, no file can become larger than `bytes`, as on a disk that fills up.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

    Q_DISABLE_COPY(FullDisk)

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

} // namespace

/// Writing picture files whole, examining them, and reading them once.
class TestImageFile : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

private Q_SLOTS:
    void cleanup()
    {
        QDir folder(m_folder.path());
        for (const QFileInfo& entry :
             folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
            entry.isDir() ? folder.rmdir(entry.fileName()) : folder.remove(entry.fileName());
        TestCase::cleanup();
    }

    void writesWhole_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<QByteArray>("start");
        QTest::newRow("PNG") << QByteArray("PNG") << QByteArray("\x89PNG");
        QTest::newRow("BMP") << QByteArray("bmp") << QByteArray("BM");
        QTest::newRow("JPEG") << QByteArray("JPEG") << QByteArray("\xff\xd8");
    }

    void writesWhole()
    {
        QFETCH(QByteArray, format);
        QFETCH(QByteArray, start);
        const QImage image = noise({31, 17});
        store(path("picture"), QByteArray(20000, 'x')); // what was there before is longer
        QVERIFY(writeImageWhole(image, path("picture"), format.constData(), 100));
        QVERIFY(stored(path("picture")).startsWith(start));
        QByteArray inMemory;
        QBuffer buffer(&inMemory);
        QVERIFY(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, format.constData(), 100));
        QCOMPARE(stored(path("picture")), inMemory);
        if (format != "JPEG")
            VD_COMPARE_IMAGES(QImage(path("picture")), image);
    }

    void qualityIsPassedOn()
    {
        const QImage image = noise({64, 64});
        QVERIFY(writeImageWhole(image, path("fine.jpg"), "JPEG", 100));
        QVERIFY(writeImageWhole(image, path("coarse.jpg"), "JPEG", 1));
        QVERIFY(stored(path("coarse.jpg")).size() * 3 < stored(path("fine.jpg")).size());
    }

    void failedWriteLeavesWhatWasThere_data()
    {
        QTest::addColumn<QImage>("image");
        QTest::addColumn<QByteArray>("format");
        QTest::newRow("unknown format") << noise({8, 8}) << QByteArray("XYZ");
        QTest::newRow("null picture") << QImage() << QByteArray("PNG");
    }

    void failedWriteLeavesWhatWasThere()
    {
        QFETCH(QImage, image);
        QFETCH(QByteArray, format);
        store(path("old.png"), "before");
        QVERIFY(!writeImageWhole(image, path("old.png"), format.constData()));
        QCOMPARE(stored(path("old.png")), QByteArray("before"));
        QVERIFY(!writeImageWhole(image, path("new.png"), format.constData()));
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("old.png"));
    }

    void fullDisk_data()
    {
        QTest::addColumn<int>("missing");
        QTest::newRow("the last byte does not fit") << 1;
        QTest::newRow("the last kilobytes do not fit") << 5000;
        QTest::newRow("next to nothing fits") << -1;
    }

    void fullDisk()
    {
        QFETCH(int, missing);
        const QImage image = noise({120, 90});
        const int size = encoded(image, "PNG").size();
        store(path("old.png"), "before");
        for (const char* name : {"old.png", "new.png"}) {
            const FullDisk disk(missing < 0 ? 10 : rlim_t(size - missing));
            QVERIFY(!writeImageWhole(image, path(name), "PNG"));
        }
        QCOMPARE(stored(path("old.png")), QByteArray("before"));
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("old.png"));
        const FullDisk disk{rlim_t(size)};
        QVERIFY(writeImageWhole(image, path("old.png"), "PNG"));
        VD_COMPARE_IMAGES(QImage(path("old.png")), image);
    }

    void unwritablePaths_data()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("missing folder") << path("missing/picture.png");
        QTest::newRow("a folder") << m_folder.path();
        QTest::newRow("no path") << QString();
    }

    void unwritablePaths()
    {
        QFETCH(QString, target);
        log().allowWarning(QStringLiteral("^QFSFileEngine::open: No file name specified"));
        QVERIFY(!writeImageWhole(noise({8, 8}), target, "PNG"));
        QVERIFY(QDir(m_folder.path()).isEmpty());
    }

    void examines_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("verdict");
        const int readable = int(PictureFile::Readable);
        const int tooLarge = int(PictureFile::TooLarge);
        const int unreadable = int(PictureFile::Unreadable);
        QTest::newRow("one pixel") << encoded(plain({1, 1}, Qt::red), "PNG") << readable;
        QTest::newRow("3840 x 3840") << encoded(QImage(3840, 3840, QImage::Format_Mono), "PNG") << readable;
        QTest::newRow("3841 x 1") << encoded(plain({3841, 1}, Qt::red), "PNG") << tooLarge;
        QTest::newRow("1 x 3841") << encoded(plain({1, 3841}, Qt::red), "PNG") << tooLarge;
        QTest::newRow("JPEG") << encoded(plain({9, 9}, Qt::red), "JPEG") << readable;
        QTest::newRow("wide JPEG") << encoded(plain({3841, 1}, Qt::red), "JPEG") << tooLarge;
        QTest::newRow("BMP") << encoded(plain({9, 9}, Qt::red), "BMP") << readable;
        QTest::newRow("wide BMP") << encoded(plain({3841, 1}, Qt::red), "BMP") << tooLarge;
        QTest::newRow("BMP, rows from the top") << bmpClaiming(4, -4) << readable;
        QTest::newRow("BMP, rows from the top, that claims 10000 x 10000")
            << bmpClaiming(10000, -10000) << tooLarge;
        QTest::newRow("BMP that claims 10000 x 10000") << bmpClaiming(10000, 10000) << tooLarge;
        QTest::newRow("GIF") << gifOnScreen(4, 4) << readable;
        QTest::newRow("GIF on a wide screen") << gifOnScreen(4000, 4) << tooLarge;
        QTest::newRow("GIF on a high screen") << gifOnScreen(4, 20000) << tooLarge;
        QTest::newRow("GIF, cut off in its head") << gifOnScreen(4, 4).left(9) << unreadable;
        QTest::newRow("PNG that claims 60000 x 60000") << pngClaiming(60000, 60000) << tooLarge;
        QTest::newRow("PNG that claims 3840 x 3840") << pngClaiming(3840, 3840) << readable;
        QTest::newRow("PNG of no pixels") << pngClaiming(0, 0) << unreadable;
        QTest::newRow("header only") << encoded(noise({9, 9}), "PNG").left(80) << readable;
        QTest::newRow("within the header") << encoded(noise({9, 9}), "PNG").left(20) << unreadable;
        QTest::newRow("text") << QByteArray("Cabinets: 144\n") << unreadable;
        QTest::newRow("empty") << QByteArray() << unreadable;
    }

    void examines()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, verdict);
        log().allowWarning(QStringLiteral("^libpng warning: Image (width|height) is zero in IHDR"));
        // The content decides, whatever the file is called.
        for (const char* name : {"picture.png", "picture.jpg", "picture"}) {
            store(path(name), bytes);
            QCOMPARE(int(examinePicture(path(name))), verdict);
        }
    }

    void examinesWhatIsNoFile()
    {
        QCOMPARE(int(examinePicture(path("missing.png"))), int(PictureFile::Unreadable));
        QCOMPARE(int(examinePicture(m_folder.path())), int(PictureFile::Unreadable));
    }

    /// A painter that has no picture yet asks for this one.
    void noPathIsNoFile()
    {
        QCOMPARE(int(examinePicture(QString())), int(PictureFile::Unreadable));
        store(path("red.png"), encoded(plain({5, 3}, Qt::red), "PNG"));
        CachedPicture picture;
        QVERIFY(!picture.load(path("red.png")).isNull());
        QVERIFY(picture.load(QString()).isNull());
    }

    void loads_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QSize>("size");
        QTest::newRow("PNG") << encoded(plain({5, 3}, Qt::red), "PNG") << QSize(5, 3);
        QTest::newRow("JPEG") << encoded(plain({5, 3}, Qt::red), "JPEG") << QSize(5, 3);
        QTest::newRow("BMP") << encoded(plain({5, 3}, Qt::red), "BMP") << QSize(5, 3);
        QTest::newRow("BMP, rows from the top") << bmpClaiming(4, -4) << QSize(4, 4);
        QTest::newRow("largest") << encoded(QImage(3840, 3840, QImage::Format_Mono), "PNG")
                                 << QSize(3840, 3840);
        QTest::newRow("too wide") << encoded(plain({3841, 1}, Qt::red), "PNG") << QSize(0, 0);
        QTest::newRow("too high") << encoded(plain({1, 3841}, Qt::red), "PNG") << QSize(0, 0);
        QTest::newRow("header only") << encoded(noise({9, 9}), "PNG").left(80) << QSize(0, 0);
        QTest::newRow("half of it") << encoded(noise({90, 90}), "PNG").left(9000) << QSize(0, 0);
        QTest::newRow("text") << QByteArray("Cabinets: 144\n") << QSize(0, 0);
        QTest::newRow("empty") << QByteArray() << QSize(0, 0);
    }

    void loads()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QSize, size);
        store(path("picture.png"), bytes);
        CachedPicture picture;
        QVERIFY(picture.isOutdated(path("picture.png")));
        QCOMPARE(picture.load(path("picture.png")).size(), size);
        QVERIFY(!picture.isOutdated(path("picture.png")));
    }

    void decodesOncePerFileState()
    {
        const QString file = path("picture.bmp");
        store(file, encoded(plain({5, 3}, Qt::red), "BMP"));
        const QDateTime time = QFileInfo(file).lastModified();
        CachedPicture picture;
        const qint64 first = picture.load(file).cacheKey();
        QCOMPARE(picture.load(file).cacheKey(), first);

        // Nothing tells this file from the first one, so it is not read.
        store(file, encoded(plain({5, 3}, Qt::blue), "BMP"));
        setModified(file, time);
        QVERIFY(!picture.isOutdated(file));
        QCOMPARE(picture.load(file).pixelColor(0, 0), QColor(Qt::red));
    }

    void readsAgain_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("later");
        QTest::newRow("another modification time") << QSize(5, 3) << 2;
        QTest::newRow("an older modification time") << QSize(5, 3) << -2000;
        QTest::newRow("another size") << QSize(50, 30) << 0;
    }

    void readsAgain()
    {
        QFETCH(QSize, size);
        QFETCH(int, later);
        const QString file = path("picture.bmp");
        store(file, encoded(plain({5, 3}, Qt::red), "BMP"));
        const QDateTime time = QFileInfo(file).lastModified();
        CachedPicture picture;
        QCOMPARE(picture.load(file).pixelColor(0, 0), QColor(Qt::red));

        store(file, encoded(plain(size, Qt::blue), "BMP"));
        setModified(file, time.addMSecs(later));
        QVERIFY(picture.isOutdated(file));
        QCOMPARE(picture.load(file).pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(picture.load(file).size(), size);
        QVERIFY(!picture.isOutdated(file));
    }

    void followsTheFile()
    {
        const QString file = path("picture.png");
        CachedPicture picture;
        QVERIFY(picture.load(file).isNull());
        QVERIFY(!picture.isOutdated(file));

        store(file, encoded(plain({5, 3}, Qt::red), "PNG"));
        QVERIFY(picture.isOutdated(file));
        QCOMPARE(picture.load(file).size(), QSize(5, 3));

        store(file, "no picture any more");
        QVERIFY(picture.load(file).isNull());
        QVERIFY(QFile::remove(file));
        QVERIFY(picture.isOutdated(file));
        QVERIFY(picture.load(file).isNull());
    }

    void followsThePath()
    {
        store(path("red.bmp"), encoded(plain({5, 3}, Qt::red), "BMP"));
        store(path("blue.bmp"), encoded(plain({5, 3}, Qt::blue), "BMP"));
        const QDateTime time = QFileInfo(path("red.bmp")).lastModified();
        setModified(path("blue.bmp"), time);
        CachedPicture picture;
        QCOMPARE(picture.load(path("red.bmp")).pixelColor(0, 0), QColor(Qt::red));
        QVERIFY(picture.isOutdated(path("blue.bmp")));
        QCOMPARE(picture.load(path("blue.bmp")).pixelColor(0, 0), QColor(Qt::blue));
    }
};

VD_TEST_MAIN(TestImageFile)
#include "tst_imagefile.moc"
