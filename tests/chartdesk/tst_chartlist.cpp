#include "chartdelegate.h"
#include "chartfiles.h"
#include "chartlist.h"
#include "testcase.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

using namespace chartfiles;

/// The list of a folder that changes under it.
class TestChartList : public TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString chart(int second, const QString& name = QStringLiteral("a")) const
    {
        return m_folder->filePath(
            QStringLiteral("20240101_12%1/%2.png").arg(second, 4, 10, QLatin1Char('0')).arg(name));
    }

    void writeCharts(int count) const
    {
        for (int second = 0; second < count; ++second)
            QVERIFY(writeChart(chart(second), Qt::red));
    }

    static QStringList shown(const ChartList& list)
    {
        QStringList paths;
        for (int row = 0; row < list.count(); ++row)
            paths.append(list.item(row)->data(ChartList::ImagePathRole).toString());
        return paths;
    }

    static bool allLoaded(const ChartList& list)
    {
        for (int row = 0; row < list.count(); ++row) {
            if (list.item(row)->icon().isNull())
                return false;
        }
        return true;
    }

    static QList<qint64> shownPictures(const ChartList& list)
    {
        QList<qint64> keys;
        for (int row = 0; row < list.count(); ++row)
            keys.append(list.item(row)->data(ChartList::ThumbnailRole).value<QPixmap>().cacheKey());
        return keys;
    }

    static QColor colorOf(const QListWidgetItem* item)
    {
        return item->data(ChartList::ThumbnailRole).value<QPixmap>().toImage().pixelColor(120, 67);
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void itFollowsTheFolder()
    {
        ChartList list;
        list.setFolder(m_folder->path());
        QCOMPARE(list.count(), 0);
        QVERIFY(writeChart(chart(1), Qt::red));
        QTRY_COMPARE(shown(list), QStringList({chart(1)}));
        QVERIFY(writeChart(chart(2), Qt::blue));
        QTRY_COMPARE(shown(list), QStringList({chart(2), chart(1)}));
        QVERIFY(QDir(QFileInfo(chart(1)).path()).removeRecursively());
        QTRY_COMPARE(shown(list), QStringList({chart(2)}));
    }

    void aRenameInAChartsFolderIsSeen()
    {
        writeCharts(2);
        ChartList list;
        list.setFolder(m_folder->path());
        QVERIFY(QFile::rename(chart(0), chart(0, "wall")));
        QTRY_COMPARE(shown(list), QStringList({chart(1), chart(0, "wall")}));
        QTRY_VERIFY(allLoaded(list));
    }

    void whatIsUnchangedStays()
    {
        writeCharts(40);
        ChartList list;
        list.resize(800, 600);
        list.setFolder(m_folder->path());
        list.show();
        QTRY_VERIFY(allLoaded(list));
        list.selectChart(chart(3));
        list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum() / 2);
        const int place = list.verticalScrollBar()->value();
        QVERIFY(place > 0);
        const QListWidgetItem* kept = list.item(20);
        const auto picture = kept->data(ChartList::ThumbnailRole).value<QPixmap>().cacheKey();

        const QSignalSpy refreshed(&list, &ChartList::refreshed);
        QVERIFY(writeChart(chart(40), Qt::blue));
        QTRY_COMPARE(list.count(), 41);
        QTRY_VERIFY(allLoaded(list));
        QTest::qWait(50); // laid out
        QCOMPARE(list.verticalScrollBar()->value(), place);
        QCOMPARE(list.selectedChart(), chart(3));
        QCOMPARE(list.item(21), kept);
        QCOMPARE(kept->data(ChartList::ThumbnailRole).value<QPixmap>().cacheKey(), picture);
        QVERIFY(refreshed.count() <= 3); // and not once for each file
    }

    void aChangedPictureIsReadAgain()
    {
        writeCharts(1);
        ChartList list;
        list.setFolder(m_folder->path());
        QTRY_VERIFY(allLoaded(list));
        QCOMPARE(colorOf(list.item(0)), QColor(Qt::red));
        QVERIFY(writePicture(chart(0), Qt::blue, QSize(32, 18)));
        list.refresh();
        QTRY_COMPARE(colorOf(list.item(0)), QColor(Qt::blue));
    }

    void noPictureIsReadTwice()
    {
        writeCharts(100);
        ChartList list;
        list.setFolder(m_folder->path());
        QTRY_VERIFY_WITH_TIMEOUT(allLoaded(list), 60000);
        const QList<qint64> pictures = shownPictures(list);
        QVERIFY(writeChart(m_folder->filePath("20230101_120000/a.png"), Qt::blue));
        list.refresh();
        QCOMPARE(list.count(), 101);
        QTRY_VERIFY_WITH_TIMEOUT(allLoaded(list), 60000); // the oldest after any of the others
        QCOMPARE(shownPictures(list).mid(0, 100), pictures);
    }

    void datesFollowTheLanguage()
    {
        writeCharts(1);
        ChartList list;
        list.setFolder(m_folder->path());
        for (const char* code : {"de", "en", "ja"}) {
            const QLocale locale{QLatin1String(code)};
            list.setDateLocale(locale);
            const QDateTime saved(QDate(2024, 1, 1), QTime(12, 0, 0));
            QCOMPARE(list.item(0)->text(), "a.png\n" + locale.toString(saved, QLocale::ShortFormat));
        }
    }

    void anotherFolderAnotherList()
    {
        writeCharts(3);
        const QTemporaryDir other;
        ChartList list;
        list.setFolder(m_folder->path());
        QCOMPARE(list.count(), 3);
        list.setFolder(other.path());
        QCOMPARE(list.count(), 0);
        QVERIFY(writeChart(chart(5), Qt::red)); // in the folder that was left
        QTest::qWait(300);
        QCOMPARE(list.count(), 0);
    }
};

VD_TEST_MAIN(TestChartList)
#include "tst_chartlist.moc"
