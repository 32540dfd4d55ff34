#include "chartlist.h"

#include "chartdelegate.h"
#include "chartfolderlist.h"
#include "walldocuments.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QSet>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int settleTime = 100; ///< ms: a folder tells of one change many times

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
    connect(&m_reader, &FolderReader::changed, &m_settle, qOverload<>(&QTimer::start));
    connect(&m_settle, &QTimer::timeout, this, &ChartList::refresh);
    connect(&m_reader, &FolderReader::finished, this, &ChartList::beginFilling);
    connect(&m_fill, &QTimer::timeout, this, &ChartList::fillPiece);
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        if (!m_isPlacing)
            m_toSelect.clear();
    });
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
    m_fill.stop();
    m_toSelect.clear();
    clear();
    refresh();
}

void ChartList::setDateLocale(const QLocale& locale)
{
    m_dates = locale;
    for (int row = 0; row < count(); ++row)
        item(row)->setText(title(item(row)->data(ImagePathRole).toString()));
}

QStringList ChartList::charts() const
{
    QStringList images;
    for (int row = 0; row < count(); ++row) {
        const QString path = item(row)->data(ImagePathRole).toString();
        if (!item(row)->isHidden() && !WallDocuments::isDocument(path))
            images.append(path);
    }
    return images;
}

QString ChartList::selectedChart() const
{
    const QString path = selectedPath();
    return WallDocuments::isDocument(path) ? QString() : path;
}

QString ChartList::selectedDocument() const
{
    const QString path = selectedPath();
    return WallDocuments::isDocument(path) ? path : QString();
}

QString ChartList::selectedPath() const
{
    const QListWidgetItem* chart = currentItem();
    const bool isSelected = chart && chart->isSelected() && !chart->isHidden();
    return isSelected ? chart->data(ImagePathRole).toString() : QString();
}

void ChartList::selectChart(const QString& imagePath)
{
    if (QListWidgetItem* shown = m_items.value(imagePath))
        select(shown);
    else if (isFilling())
        m_toSelect = imagePath;
}

void ChartList::select(QListWidgetItem* shown)
{
    m_toSelect.clear();
    setCurrentItem(shown);
    scrollToItem(shown);
}

void ChartList::refresh()
{
    m_settle.stop();
    m_reader.read({m_folder, m_order, m_dates});
}

void ChartList::beginFilling(const ListedCharts& charts)
{
    m_charts = charts;
    m_filled = 0;
    QSet<QString> present;
    for (const ListedChart& chart : charts)
        present.insert(chart.image);
    m_gone.clear();
    for (auto it = m_items.cbegin(); it != m_items.cend(); ++it) {
        if (!present.contains(it.key()))
            m_gone.append(it.value());
    }
    m_fill.start(0);
    fillPiece();
}

void ChartList::fillPiece()
{
    const QScopedValueRollback<bool> placing(m_isPlacing, true);
    QElapsedTimer clock;
    clock.start();
    while (fillNext()) {
        if (clock.elapsed() >= m_pieceTime)
            return;
    }
    endFilling();
}

/// False when all is done.
bool ChartList::fillNext()
{
    if (!m_gone.isEmpty()) {
        removeChart(m_gone.takeLast());
        return true;
    }
    if (m_filled == m_charts.size())
        return false;
    placeChart(m_filled, m_charts.at(m_filled));
    ++m_filled;
    return true;
}

void ChartList::endFilling()
{
    m_fill.stop();
    m_charts.clear();
    m_filled = 0;
    if (!m_reader.isReading())
        m_toSelect.clear();
    Q_EMIT refreshed();
}

void ChartList::removeChart(QListWidgetItem* shown)
{
    m_tickets.remove(m_tickets.key(shown));
    m_items.remove(shown->data(ImagePathRole).toString());
    delete takeItem(row(shown));
}

/// All that is above `row` is in its place.
void ChartList::placeChart(int row, const ListedChart& chart)
{
    QListWidgetItem* shown = item(row);
    if (!shown || shown->data(ImagePathRole) != chart.image) {
        shown = takeChart(chart.image);
        insertItem(row, shown);
        filter(shown); // which taking it has undone
    }
    showChart(shown, chart);
    if (chart.image == m_toSelect)
        select(shown);
}

/// Out of the list, or a new one. It is selected again when it is back.
QListWidgetItem* ChartList::takeChart(const QString& imagePath)
{
    if (QListWidgetItem* known = m_items.value(imagePath)) {
        if (m_toSelect.isEmpty() && selectedPath() == imagePath)
            m_toSelect = imagePath;
        return takeItem(row(known));
    }
    auto* added = new QListWidgetItem;
    added->setData(ImagePathRole, imagePath);
    m_items.insert(imagePath, added);
    return added;
}

void ChartList::showChart(QListWidgetItem* shown, const ListedChart& chart)
{
    if (shown->data(TagsRole).toStringList() != chart.tags) {
        shown->setData(TagsRole, chart.tags);
        filter(shown);
    }
    if (shown->data(StampRole) == chart.stamp)
        return;
    shown->setData(StampRole, chart.stamp);
    shown->setText(title(chart.image));
    filter(shown);
    m_tickets.insert(++m_nextTicket, shown);
    m_thumbnails.load(chart.image, ChartDelegate::pictureSize * devicePixelRatioF(), m_nextTicket);
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

void ChartList::setOrder(Order order)
{
    m_order = order;
    refresh();
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

/// The name of the chart's file, and when it was saved.
QString ChartList::title(const QString& imagePath) const
{
    const QFileInfo chart(imagePath);
    const QDateTime saved =
        WallDocuments::isDocument(imagePath) ? chart.lastModified() : ChartFolderList::savedAt(imagePath);
    const QString when =
        saved.isValid() ? m_dates.toString(saved, QLocale::ShortFormat) : chart.dir().dirName();
    return chart.fileName() + QLatin1Char('\n') + when;
}
