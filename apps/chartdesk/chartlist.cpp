#include "chartlist.h"

#include "chartdelegate.h"
#include "chartfolderlist.h"
#include "charttags.h"

#include <QCollator>
#include <QDir>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QSet>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int settleTime = 100; ///< ms: a folder tells of one change many times

QString stamp(const QFileInfo& chart)
{
    return QStringLiteral("%1 %2").arg(chart.size()).arg(chart.lastModified().toMSecsSinceEpoch());
}

} // namespace

ChartList::ChartList(QWidget* parent)
    : QListWidget(parent)
{
    setObjectName(QStringLiteral("chartList"));
    setViewMode(QListView::IconMode);
    setResizeMode(QListView::Adjust);
    setMovement(QListView::Static);
    setItemDelegate(new ChartDelegate(this));
    setMouseTracking(true); // a chart under the pointer shows itself
    setFrameShape(QFrame::NoFrame);
    m_settle.setSingleShot(true);
    m_settle.setInterval(settleTime);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_settle, qOverload<>(&QTimer::start));
    connect(&m_settle, &QTimer::timeout, this, &ChartList::refresh);
    setDragEnabled(true); // what may be moved elsewhere stays here all the same
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true); // which a list that moves nothing has refused
    setDefaultDropAction(Qt::CopyAction);
    connect(&m_thumbnails, &ThumbnailLoader::detailed, this, &ChartList::showDetails);
    connect(&m_thumbnails, &ThumbnailLoader::loaded, this, &ChartList::showThumbnail);
}

void ChartList::setFolder(const QString& folder)
{
    m_folder = folder;
    m_thumbnails.clear();
    m_tickets.clear();
    m_items.clear();
    clear();
    refresh();
}

void ChartList::setDateLocale(const QLocale& locale)
{
    m_dates = locale;
    for (int row = 0; row < count(); ++row)
        item(row)->setText(title(QFileInfo(item(row)->data(ImagePathRole).toString())));
}

QStringList ChartList::charts() const
{
    QStringList images;
    for (int row = 0; row < count(); ++row) {
        if (!item(row)->isHidden())
            images.append(item(row)->data(ImagePathRole).toString());
    }
    return images;
}

QString ChartList::selectedChart() const
{
    const QListWidgetItem* chart = currentItem();
    const bool isSelected = chart && chart->isSelected() && !chart->isHidden();
    return isSelected ? chart->data(ImagePathRole).toString() : QString();
}

void ChartList::selectChart(const QString& imagePath)
{
    if (QListWidgetItem* shown = m_items.value(imagePath)) {
        setCurrentItem(shown);
        scrollToItem(shown);
    }
}

void ChartList::refresh()
{
    m_settle.stop();
    const QFileInfoList charts = inOrder(ChartFolderList::charts(m_folder));
    removeMissing(charts);
    for (int row = 0; row < charts.size(); ++row)
        placeChart(row, charts.at(row));
    watch();
    Q_EMIT refreshed();
}

void ChartList::removeMissing(const QFileInfoList& charts)
{
    QSet<QString> present;
    for (const QFileInfo& chart : charts)
        present.insert(chart.filePath());
    for (int row = count() - 1; row >= 0; --row) {
        const QString path = item(row)->data(ImagePathRole).toString();
        if (present.contains(path))
            continue;
        m_tickets.remove(m_tickets.key(item(row)));
        m_items.remove(path);
        delete takeItem(row);
    }
}

/// All that is above `row` is in its place.
void ChartList::placeChart(int row, const QFileInfo& chart)
{
    QListWidgetItem* shown = item(row);
    if (!shown || shown->data(ImagePathRole) != chart.filePath()) {
        shown = takeChart(chart.filePath());
        insertItem(row, shown);
    }
    showChart(shown, chart);
}

/// Out of the list, or a new one.
QListWidgetItem* ChartList::takeChart(const QString& imagePath)
{
    if (QListWidgetItem* known = m_items.value(imagePath))
        return takeItem(row(known));
    auto* added = new QListWidgetItem;
    added->setData(ImagePathRole, imagePath);
    m_items.insert(imagePath, added);
    return added;
}

void ChartList::showChart(QListWidgetItem* shown, const QFileInfo& chart)
{
    showTags(shown, chart.filePath());
    const QString wanted = stamp(chart);
    if (shown->data(StampRole) == wanted)
        return;
    shown->setData(StampRole, wanted);
    shown->setText(title(chart));
    filter(shown);
    m_tickets.insert(++m_nextTicket, shown);
    m_thumbnails.load(chart.filePath(), ChartDelegate::pictureSize * devicePixelRatioF(), m_nextTicket);
}

void ChartList::showThumbnail(int ticket, const QImage& picture)
{
    QListWidgetItem* shown = m_tickets.take(ticket);
    if (!shown)
        return;
    QPixmap pixmap = QPixmap::fromImage(picture);
    pixmap.setDevicePixelRatio(qreal(picture.width()) / ChartDelegate::pictureSize.width());
    shown->setData(ThumbnailRole, pixmap);
    shown->setIcon(QIcon(pixmap));
}

void ChartList::showDetails(int ticket, const ChartDetails& details)
{
    if (QListWidgetItem* shown = m_tickets.value(ticket)) {
        shown->setData(DetailsRole, details.text());
        filter(shown);
    }
}

void ChartList::showTags(QListWidgetItem* shown, const QString& imagePath)
{
    const QStringList tags = ChartTags::of(imagePath);
    if (shown->data(TagsRole).toStringList() == tags)
        return;
    shown->setData(TagsRole, tags);
    filter(shown);
}

void ChartList::setOrder(Order order)
{
    m_order = order;
    const QString current = selectedChart();
    refresh();
    selectChart(current);
}

void ChartList::setSearch(const QString& words)
{
    m_words = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (QListWidgetItem* shown : qAsConst(m_items))
        filter(shown);
    Q_EMIT refreshed();
}

void ChartList::filter(QListWidgetItem* shown)
{
    const QString text = shown->text() + QLatin1Char(' ') + shown->data(DetailsRole).toString() +
                         QLatin1Char(' ') + shown->data(TagsRole).toStringList().join(QLatin1Char(' '));
    const bool isFound = std::all_of(m_words.cbegin(), m_words.cend(), [&](const QString& word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
    if (shown->isHidden() == isFound)
        shown->setHidden(!isFound);
}

QFileInfoList ChartList::inOrder(QFileInfoList charts) const
{
    if (m_order == Order::Oldest)
        std::reverse(charts.begin(), charts.end());
    if (m_order != Order::Name)
        return charts;
    QCollator byName(m_dates);
    byName.setNumericMode(true);
    byName.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(charts.begin(), charts.end(), [&](const QFileInfo& a, const QFileInfo& b) {
        return byName.compare(a.fileName(), b.fileName()) < 0;
    });
    return charts;
}

QStringList ChartList::mimeTypes() const
{
    return {QStringLiteral("text/uri-list")};
}

QMimeData* ChartList::mimeData(DraggedItems items) const
{
    QList<QUrl> files;
    for (const QListWidgetItem* dragged : items)
        files.append(QUrl::fromLocalFile(dragged->data(ImagePathRole).toString()));
    auto* data = new QMimeData;
    data->setUrls(files);
    return data;
}

void ChartList::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->source() != this && event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void ChartList::dragMoveEvent(QDragMoveEvent* event)
{
    if (event->source() != this && event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void ChartList::dropEvent(QDropEvent* event)
{
    QStringList files;
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    }
    event->acceptProposedAction();
    Q_EMIT filesDropped(files);
}

/// The folder, to see charts come and go, and each chart's, to see its files renamed.
void ChartList::watch()
{
    QStringList wanted = ChartFolderList::folders(m_folder);
    if (QFileInfo(m_folder).isDir())
        wanted.append(m_folder);
    const QStringList watched = m_watcher.directories();
    const QSet<QString> before(watched.cbegin(), watched.cend());
    const QSet<QString> after(wanted.cbegin(), wanted.cend());
    const QStringList gone = (before - after).values();
    const QStringList added = (after - before).values();
    if (!gone.isEmpty())
        m_watcher.removePaths(gone);
    if (!added.isEmpty())
        m_watcher.addPaths(added);
}

/// The name of the chart's file, and when it was saved.
QString ChartList::title(const QFileInfo& chart) const
{
    const QDateTime saved = ChartFolderList::savedAt(chart.filePath());
    const QString when =
        saved.isValid() ? m_dates.toString(saved, QLocale::ShortFormat) : chart.dir().dirName();
    return chart.fileName() + QLatin1Char('\n') + when;
}
