#include "chartlist.h"

#include "chartdelegate.h"
#include "chartfolderlist.h"

#include <QDir>
#include <QSet>

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
    connect(&m_thumbnails, &ThumbnailLoader::loaded, this, &ChartList::showThumbnail);
}

void ChartList::setFolder(const QString& folder)
{
    m_folder = folder;
    m_thumbnails.clear();
    m_tickets.clear();
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
    for (int row = 0; row < count(); ++row)
        images.append(item(row)->data(ImagePathRole).toString());
    return images;
}

QString ChartList::selectedChart() const
{
    const QListWidgetItem* selected = currentItem();
    return selected ? selected->data(ImagePathRole).toString() : QString();
}

void ChartList::selectChart(const QString& imagePath)
{
    for (int row = 0; row < count(); ++row) {
        if (item(row)->data(ImagePathRole) == imagePath)
            setCurrentRow(row);
    }
}

void ChartList::refresh()
{
    m_settle.stop();
    const QFileInfoList charts = ChartFolderList::charts(m_folder);
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
        if (!present.contains(item(row)->data(ImagePathRole).toString()))
            delete takeItem(row);
    }
}

/// All that is above `row` is in its place.
void ChartList::placeChart(int row, const QFileInfo& chart)
{
    QListWidgetItem* shown = item(row);
    if (!shown || shown->data(ImagePathRole) != chart.filePath()) {
        shown = takeChart(chart.filePath(), row + 1);
        insertItem(row, shown);
    }
    showChart(shown, chart);
}

/// Out of the list, or a new one.
QListWidgetItem* ChartList::takeChart(const QString& imagePath, int from)
{
    for (int row = from; row < count(); ++row) {
        if (item(row)->data(ImagePathRole) == imagePath)
            return takeItem(row);
    }
    auto* added = new QListWidgetItem;
    added->setData(ImagePathRole, imagePath);
    return added;
}

void ChartList::showChart(QListWidgetItem* shown, const QFileInfo& chart)
{
    const QString wanted = stamp(chart);
    if (shown->data(StampRole) == wanted)
        return;
    shown->setData(StampRole, wanted);
    shown->setText(title(chart));
    m_tickets.insert(++m_nextTicket, chart.filePath());
    m_thumbnails.load(chart.filePath(), ChartDelegate::pictureSize * devicePixelRatioF(), m_nextTicket);
}

void ChartList::showThumbnail(int ticket, const QImage& picture)
{
    const QString path = m_tickets.take(ticket);
    QPixmap pixmap = QPixmap::fromImage(picture);
    pixmap.setDevicePixelRatio(qreal(picture.width()) / ChartDelegate::pictureSize.width());
    for (int row = 0; row < count(); ++row) {
        if (item(row)->data(ImagePathRole) != path)
            continue;
        item(row)->setData(ThumbnailRole, pixmap);
        item(row)->setIcon(QIcon(pixmap));
    }
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
