#include "chartfiles.h"
#include "testcase.h"
#include "thumbnailloader.h"

#include <QTemporaryDir>

using namespace chartfiles;

/// Pictures read on other threads.
class TestThumbnailLoader : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    static QImage load(const QString& path, const QSize& size)
    {
        ThumbnailLoader loader;
        QImage picture;
        int ticket = 0;
        connect(&loader, &ThumbnailLoader::loaded, &loader, [&](int itsTicket, const QImage& image) {
            ticket = itsTicket;
            picture = image;
        });
        loader.load(path, size, 7);
        [&] { QTRY_COMPARE(ticket, 7); }();
        return picture;
    }

private Q_SLOTS:
    void fittedOnBlack_data()
    {
        QTest::addColumn<QSize>("chart");
        QTest::addColumn<QPoint>("inside");
        QTest::addColumn<QPoint>("outside");
        QTest::newRow("same shape") << QSize(480, 270) << QPoint(0, 0) << QPoint(-1, -1);
        QTest::newRow("wide") << QSize(480, 135) << QPoint(0, 67) << QPoint(0, 20);
        QTest::newRow("tall") << QSize(135, 270) << QPoint(120, 0) << QPoint(20, 0);
        QTest::newRow("one row of pixels") << QSize(1000, 1) << QPoint(0, 67) << QPoint(0, 20);
    }

    void fittedOnBlack()
    {
        QFETCH(QSize, chart);
        QFETCH(QPoint, inside);
        QFETCH(QPoint, outside);
        const QString path = m_folder.filePath("chart.png");
        QVERIFY(writePicture(path, Qt::red, chart));
        const QImage picture = load(path, QSize(240, 135));
        QCOMPARE(picture.size(), QSize(240, 135));
        QCOMPARE(picture.pixelColor(inside), QColor(Qt::red));
        if (outside.x() >= 0)
            QCOMPARE(picture.pixelColor(outside), QColor(Qt::black));
    }

    void whatCannotBeReadIsBlack()
    {
        QVERIFY(writeFile(m_folder.filePath("damaged.png"), "no picture"));
        for (const char* name : {"damaged.png", "none.png"}) {
            const QImage picture = load(m_folder.filePath(QLatin1String(name)), QSize(24, 13));
            QCOMPARE(picture.pixelColor(12, 6), QColor(Qt::black));
        }
    }

    void theWindowIsNotHeldUp()
    {
        const QString path = m_folder.filePath("large.png");
        QVERIFY(writePicture(path, Qt::red, QSize(3840, 2160)));
        ThumbnailLoader loader;
        int loaded = 0;
        connect(&loader, &ThumbnailLoader::loaded, &loader, [&] {
            QCOMPARE(QThread::currentThread(), qApp->thread());
            ++loaded;
        });
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 20; ++i)
            loader.load(path, QSize(240, 135), i);
        QVERIFY(timer.elapsed() < 100); // reading one takes longer than that
        QTRY_COMPARE_WITH_TIMEOUT(loaded, 20, 30000);
    }

    void nothingIsToldAfterAClear()
    {
        const QString path = m_folder.filePath("large.png");
        QVERIFY(writePicture(path, Qt::red, QSize(1920, 1080)));
        ThumbnailLoader loader;
        QVector<int> tickets;
        connect(&loader, &ThumbnailLoader::loaded, &loader, [&](int ticket) { tickets.append(ticket); });
        for (int i = 0; i < 5; ++i)
            loader.load(path, QSize(240, 135), i);
        loader.clear();
        loader.load(path, QSize(240, 135), 9);
        QTRY_COMPARE(tickets, QVector<int>({9}));
        QTest::qWait(100);
        QCOMPARE(tickets, QVector<int>({9}));
    }
};

VD_TEST_MAIN(TestThumbnailLoader)
#include "tst_thumbnailloader.moc"
