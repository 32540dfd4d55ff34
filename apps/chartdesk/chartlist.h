#pragma once

#include "thumbnailloader.h"

#include <QFileInfoList>
#include <QFileSystemWatcher>
#include <QHash>
#include <QListWidget>
#include <QLocale>
#include <QTimer>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
using DraggedItems = const QList<QListWidgetItem*>;
#else
using DraggedItems = const QList<QListWidgetItem*>&;
#endif

/// The charts of a folder, as pictures. It follows the folder: what has not changed there stays as it is
/// here, with its place and its picture.
class ChartList : public QListWidget
{
    Q_OBJECT

public:
    /// The roles of its items, beside their texts and icons.
    enum Role
    {
        ImagePathRole = Qt::UserRole,
        ThumbnailRole, ///< a QPixmap, null before it is read
        StampRole,     ///< what tells whether the file has changed
        DetailsRole,   ///< its size and its cabinets, in words; empty before they are read
        TagsRole       ///< a QStringList
    };

    /// What comes first.
    enum class Order
    {
        Newest,
        Oldest,
        Name
    };

    explicit ChartList(QWidget* parent = nullptr);

    void setFolder(const QString& folder);
    /// Of the dates in the titles.
    void setDateLocale(const QLocale& locale);
    void setOrder(Order order);
    /// Shows only the charts that have every word of `words` in name, date, size, cabinets or tags.
    void setSearch(const QString& words);

    /// The images of the charts that are shown, as they are listed.
    QStringList charts() const;
    /// The image of the selected chart, empty without one.
    QString selectedChart() const;
    /// Nothing happens without such a chart in the list.
    void selectChart(const QString& imagePath);

public Q_SLOTS:
    /// Looks at the folder again.
    void refresh();

Q_SIGNALS:
    void refreshed();
    /// Somebody has dropped these files onto the list.
    void filesDropped(const QStringList& files);

protected:
    QStringList mimeTypes() const override;
    QMimeData* mimeData(DraggedItems items) const override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void removeMissing(const QFileInfoList& charts);
    void placeChart(int row, const QFileInfo& chart);
    QListWidgetItem* takeChart(const QString& imagePath);
    void showChart(QListWidgetItem* shown, const QFileInfo& chart);
    QFileInfoList inOrder(QFileInfoList charts) const;
    void showThumbnail(int ticket, const QImage& picture);
    void showDetails(int ticket, const ChartDetails& details);
    void showTags(QListWidgetItem* shown, const QString& imagePath);
    void filter(QListWidgetItem* shown);
    void watch();
    QString title(const QFileInfo& chart) const;

    QString m_folder;
    QLocale m_dates;
    QFileSystemWatcher m_watcher;
    QTimer m_settle;
    ThumbnailLoader m_thumbnails;
    QHash<int, QListWidgetItem*> m_tickets; ///< of pictures that are being read
    QHash<QString, QListWidgetItem*> m_items;
    Order m_order = Order::Newest;
    QStringList m_words;
    int m_nextTicket = 0;
};
