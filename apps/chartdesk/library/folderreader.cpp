#include "folderreader.h"

#include "chartfolderlist.h"
#include "charttags.h"
#include "walldocuments.h"

#include <QCollator>
#include <QDateTime>
#include <QFileSystemWatcher>
#include <QSet>

#include <algorithm>

namespace {

ListedChart listed(const QFileInfo& image)
{
    const QString stamp =
        QStringLiteral("%1 %2").arg(image.size()).arg(image.lastModified().toMSecsSinceEpoch());
    return {image.filePath(), stamp, ChartTags::of(image.filePath())};
}

/// Walls and shows stand before the charts, by name.
ListedCharts documents(const QString& folder)
{
    ListedCharts found;
    const QStringList paths = WallDocuments::in(folder);
    for (const QString& path : paths)
        found.append(listed(QFileInfo(path)));
    return found;
}

/// They come with the newest first.
void sort(ListedCharts& charts, const FolderWish& wish)
{
    if (wish.order == ChartOrder::Oldest)
        std::reverse(charts.begin(), charts.end());
    if (wish.order != ChartOrder::Name)
        return;
    QCollator byName(wish.names);
    byName.setNumericMode(true);
    byName.setCaseSensitivity(Qt::CaseInsensitive);
    const auto name = [](const ListedChart& chart) { return QFileInfo(chart.image).fileName(); };
    std::stable_sort(charts.begin(), charts.end(), [&](const ListedChart& a, const ListedChart& b) {
        return byName.compare(name(a), name(b)) < 0;
    });
}

/// Lives in the reader's thread.
class FolderWorker : public QObject
{
public:
    explicit FolderWorker(FolderReader* reader)
    {
        connect(&m_watcher, &QFileSystemWatcher::directoryChanged, reader, &FolderReader::changed);
    }

    /// Gives up when `isWished` says so. A folder is watched before it is read, so that no change is missed.
    template <typename IsWished>
    ListedCharts read(const FolderWish& wish, const IsWished& isWished)
    {
        ListedCharts charts;
        watchRoot(wish.folder);
        const QStringList folders = ChartFolderList::folders(wish.folder);
        watch(folders);
        for (const QString& folder : folders) {
            if (!isWished())
                return {};
            const QFileInfoList images = ChartFolderList::imagesIn(folder);
            for (const QFileInfo& image : images)
                charts.append(listed(image));
        }
        sort(charts, wish);
        return documents(wish.folder) + charts;
    }

private:
    void watchRoot(const QString& root)
    {
        if (root != m_root && !m_watcher.directories().isEmpty())
            m_watcher.removePaths(m_watcher.directories());
        m_root = root;
        if (!m_watcher.directories().contains(root) && QFileInfo(root).isDir())
            m_watcher.addPath(root);
    }

    void watch(const QStringList& folders)
    {
        const QStringList watched = m_watcher.directories();
        const QSet<QString> before(watched.cbegin(), watched.cend());
        QSet<QString> after(folders.cbegin(), folders.cend());
        if (before.contains(m_root))
            after.insert(m_root);
        const QStringList gone = (before - after).values();
        const QStringList added = (after - before).values();
        if (!gone.isEmpty())
            m_watcher.removePaths(gone);
        if (!added.isEmpty())
            m_watcher.addPaths(added);
    }

    QString m_root;
    QFileSystemWatcher m_watcher{this};
};

} // namespace

FolderReader::FolderReader(QObject* parent)
    : QObject(parent)
    , m_worker(new FolderWorker(this))
{
    m_worker->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread.start();
}

FolderReader::~FolderReader()
{
    ++m_wished; // what is being read is not wanted any more
    m_thread.quit();
    m_thread.wait();
}

void FolderReader::read(const FolderWish& wish)
{
    const int number = ++m_wished;
    QMetaObject::invokeMethod(m_worker, [this, wish, number] {
        const auto isWished = [this, number] { return number == m_wished; };
        if (!isWished())
            return;
        const ListedCharts charts = static_cast<FolderWorker*>(m_worker)->read(wish, isWished);
        QMetaObject::invokeMethod(this, [this, number, charts] { tell(number, charts); });
    });
}

void FolderReader::tell(int wish, const ListedCharts& charts)
{
    if (wish != m_wished)
        return;
    m_told = wish;
    Q_EMIT finished(charts);
}
