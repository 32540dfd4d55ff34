#pragma once

#include "thumbnailloader.h"

#include <QFileInfoList>
#include <QFileSystemWatcher>
#include <QHash>
#include <QListWidget>
#include <QLocale>
#include <QTimer>

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
        StampRole      ///< what tells whether the file has changed
    };

    explicit ChartList(QWidget* parent = nullptr);

    void setFolder(const QString& folder);
    /// Of the dates in the titles.
    void setDateLocale(const QLocale& locale);
    /// The images of all charts, as they are listed.
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

private:
    void removeMissing(const QFileInfoList& charts);
    void placeChart(int row, const QFileInfo& chart);
    QListWidgetItem* takeChart(const QString& imagePath, int from);
    void showChart(QListWidgetItem* shown, const QFileInfo& chart);
    void showThumbnail(int ticket, const QImage& picture);
    void watch();
    QString title(const QFileInfo& chart) const;

    QString m_folder;
    QLocale m_dates;
    QFileSystemWatcher m_watcher;
    QTimer m_settle;
    ThumbnailLoader m_thumbnails;
    QHash<int, QString> m_tickets; ///< of pictures that are being read, and the files
    int m_nextTicket = 0;
};
