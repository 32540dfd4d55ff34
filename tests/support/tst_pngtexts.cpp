#include "pngbomb.h"
#include "support/imagefile.h"
#include "support/pngtexts.h"
#include "testcase.h"

#include <QBuffer>
#include <QTemporaryDir>

using namespace vardeno::testcharttools;

namespace {

QByteArray compressed(int bytes)
{
    return zlibStream(QByteArray(bytes, ' '));
}

/// Pictures with one text of that many bytes, as a plain, a compressed and an international one.
QByteArray plain(int bytes)
{
    return pngWith(pngChunk("tEXt", QByteArray("k\0", 2) + QByteArray(bytes, ' ')));
}

QByteArray packed(int bytes)
{
    return pngWith(pngChunk("zTXt", QByteArray("k\0\0", 3) + compressed(bytes)));
}

QByteArray international(int bytes)
{
    return pngWith(pngChunk("iTXt", QByteArray("k\0\1\0de\0Wort\0", 12) + compressed(bytes)));
}

constexpr int most = int(mostPngText);

} // namespace

/// Pictures of which the toolkit would make gigabytes of text.
class TestPngTexts : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString stored(const QByteArray& bytes)
    {
        const QString path = m_folder.filePath(QStringLiteral("picture.png"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return {};
        return path;
    }

private Q_SLOTS:
    void amounts_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("tooMuch");
        QTest::newRow("none") << pngWith({}) << false;
        QTest::newRow("a little") << plain(1000) << false;
        QTest::newRow("just enough, plain") << plain(most - 2) << false;
        QTest::newRow("too much, plain") << plain(most - 1) << true;
        QTest::newRow("nearly, packed") << packed(most - 20000) << false;
        QTest::newRow("too much, packed") << packed(most) << true;
        QTest::newRow("nearly, international") << international(most - 20000) << false;
        QTest::newRow("too much, international") << international(most) << true;
        QTest::newRow("in two") << pngBomb() << true;
        QTest::newRow("cut off within a text") << packed(most).left(2000) << false;
        QTest::newRow("cut off within a head") << packed(most).left(8 + 25 + 4) << false;
        QTest::newRow("a text without its keyword")
            << pngWith(pngChunk("zTXt", "no end") + pngChunk("iTXt", {})) << false;
        QTest::newRow("no zlib stream") << pngWith(pngChunk("zTXt", QByteArray("k\0\0no", 5))) << false;
        QTest::newRow("another chunk") << pngWith(pngChunk("prIV", compressed(most))) << false;
        QTest::newRow("no picture") << QByteArray("GIF89a") << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }

    void amounts()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, tooMuch);
        QCOMPARE(hasTooMuchText(stored(bytes)), tooMuch);
        QBuffer buffer;
        buffer.setData("head" + bytes);
        buffer.open(QIODevice::ReadOnly);
        buffer.seek(4);
        QCOMPARE(hasTooMuchText(buffer), tooMuch);
        QCOMPARE(buffer.pos(), qint64(4));
    }

    void noFile()
    {
        QVERIFY(!hasTooMuchText(m_folder.filePath(QStringLiteral("none.png"))));
        QVERIFY(!hasTooMuchText(m_folder.path()));
    }

    /// They are neither measured nor decoded.
    void picturesWithTooMuchAreNotRead()
    {
        const QString path = stored(pngBomb());
        QCOMPARE(pictureSize(path), QSize());
        QCOMPARE(int(examinePicture(path)), int(PictureFile::Unreadable));
        QVERIFY(readPicture(path).isNull());
        QVERIFY(CachedPicture().load(path).isNull());
    }

    void picturesWithLittleAre()
    {
        const QString path = stored(packed(1000));
        QCOMPARE(pictureSize(path), QSize(4, 4));
        QCOMPARE(readPicture(path).pixelColor(0, 0), QColor(Qt::red));
    }
};

VD_TEST_MAIN(TestPngTexts)
#include "tst_pngtexts.moc"
