#include "chartdelegate.h"
#include "chartfiles.h"
#include "chartlist.h"
#include "testcase.h"

#include <QDeadlineTimer>
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
        if (list.isFilling())
            return false;
        for (int row = 0; row < list.count(); ++row) {
            if (list.item(row)->icon().isNull())
                return false;
        }
        return true;
    }

    /// Lists some charts of the folder, and not all.
    static bool fillSome(ChartList& list)
    {
        list.setPieceTime(0);
        const QDeadlineTimer deadline(30000);
        while (list.count() < 2 && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        return list.count() >= 2 && list.isFilling();
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
        QTRY_COMPARE(list.count(), 2);
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
        QTRY_COMPARE(list.count(), 101);
        QTRY_VERIFY_WITH_TIMEOUT(allLoaded(list), 60000); // the oldest after any of the others
        QCOMPARE(shownPictures(list).mid(0, 100), pictures);
    }

    void datesFollowTheLanguage()
    {
        writeCharts(1);
        ChartList list;
        list.setFolder(m_folder->path());
        QTRY_COMPARE(list.count(), 1);
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
        QTRY_COMPARE(list.count(), 3);
        list.setFolder(other.path());
        QCOMPARE(list.count(), 0);
        QTRY_VERIFY(!list.isFilling());
        QVERIFY(writeChart(chart(5), Qt::red)); // in the folder that was left
        QTest::qWait(300);
        QCOMPARE(list.count(), 0);
    }

    void theFolderIsReadAside()
    {
        writeCharts(3);
        ChartList list;
        const QSignalSpy refreshed(&list, &ChartList::refreshed);
        list.setFolder(m_folder->path());
        QVERIFY(list.isFilling());
        QCOMPARE(list.count(), 0);
        QTRY_COMPARE(refreshed.count(), 1);
        QVERIFY(!list.isFilling());
        QCOMPARE(list.count(), 3);
    }

    /// A folder that is left while it is read does not come.
    void onlyTheLastFolderIsListed()
    {
        writeCharts(50);
        const QTemporaryDir other;
        const QString image = other.filePath(QStringLiteral("20230101_120000/b.png"));
        QVERIFY(writeChart(image, Qt::blue));
        ChartList list;
        const QSignalSpy refreshed(&list, &ChartList::refreshed);
        list.setFolder(m_folder->path());
        list.setFolder(other.path());
        QTRY_VERIFY(!list.isFilling());
        QCOMPARE(shown(list), QStringList({image}));
        QCOMPARE(refreshed.count(), 1);
    }

    /// Each turn of the event loop lists a piece, and what the user does meanwhile holds.
    void theListCanBeUsedWhileItFills()
    {
        writeCharts(60);
        ChartList list;
        list.setFolder(m_folder->path());
        QVERIFY(fillSome(list));
        QVERIFY(list.count() < 60);
        list.setSearch(QStringLiteral("12:00:0")); // no title has it
        list.setSearch(QString());
        list.setCurrentRow(0);
        QTRY_VERIFY(!list.isFilling());
        QCOMPARE(list.count(), 60);
        QCOMPARE(list.charts().size(), 60);
        QCOMPARE(list.selectedChart(), chart(59));
    }

    void aSearchHoldsForWhatIsListedLater()
    {
        writeCharts(20);
        QVERIFY(writeChart(chart(20, QStringLiteral("wanted")), Qt::red));
        QVERIFY(writeChart(chart(0, QStringLiteral("wanted")), Qt::red));
        ChartList list;
        list.setFolder(m_folder->path());
        QVERIFY(fillSome(list));
        list.setSearch(QStringLiteral("wanted"));
        QTRY_VERIFY(!list.isFilling());
        const QStringList wanted = {chart(20, QStringLiteral("wanted")), chart(0, QStringLiteral("wanted"))};
        QCOMPARE(list.charts(), wanted);
        list.setOrder(ChartOrder::Oldest);
        QTRY_VERIFY(!list.isFilling());
        QCOMPARE(list.charts(), QStringList({wanted.last(), wanted.first()}));
    }

    void aChartIsSelectedWhenItIsListed()
    {
        writeCharts(30);
        ChartList list;
        list.setFolder(m_folder->path());
        list.selectChart(chart(3));
        QCOMPARE(list.selectedChart(), QString());
        QTRY_COMPARE(list.selectedChart(), chart(3));
        QTRY_VERIFY(!list.isFilling());
        list.selectChart(chart(31)); // is none of them
        QVERIFY(writeChart(chart(31), Qt::red));
        QTRY_COMPARE(list.count(), 31);
        QCOMPARE(list.selectedChart(), chart(3));
    }

    void whatTheUserSelectsMeanwhileWins()
    {
        writeCharts(30);
        ChartList list;
        list.setFolder(m_folder->path());
        list.selectChart(chart(3));
        QVERIFY(fillSome(list));
        list.setCurrentRow(1);
        QTRY_VERIFY(!list.isFilling());
        QCOMPARE(list.selectedChart(), chart(28));
    }

    void anotherOrderKeepsTheSelection()
    {
        writeCharts(30);
        ChartList list;
        list.setFolder(m_folder->path());
        list.selectChart(chart(3));
        for (const ChartOrder order : {ChartOrder::Oldest, ChartOrder::Name, ChartOrder::Newest}) {
            list.setOrder(order);
            QTRY_VERIFY(!list.isFilling());
            QCOMPARE(list.selectedChart(), chart(3));
        }
    }

    void aFolderThatIsMadeLaterIsFollowed()
    {
        const QString folder = m_folder->filePath(QStringLiteral("later"));
        ChartList list;
        list.setFolder(folder);
        QTRY_VERIFY(!list.isFilling());
        const QString image = folder + QStringLiteral("/20240101_120000/a.png");
        QVERIFY(writeChart(image, Qt::red));
        list.refresh();
        QTRY_COMPARE(shown(list), QStringList({image}));
        QVERIFY(QFile::rename(image, folder + QStringLiteral("/20240101_120000/b.png")));
        QTRY_VERIFY(shown(list).value(0).endsWith(QStringLiteral("b.png")));
    }
};

VD_TEST_MAIN(TestChartList)
#include "tst_chartlist.moc"
