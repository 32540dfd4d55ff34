#pragma once

#include "folderreader.h"
#include "thumbnailloader.h"

#include <QHash>
#include <QListWidget>
#include <QTimer>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
using DraggedItems = const QList<QListWidgetItem*>;
#else
using DraggedItems = const QList<QListWidgetItem*>&;
#endif

/// The charts of a folder, as pictures. It follows the folder: what has not changed there stays as it is
/// here, with its place and its picture. The folder is read aside, and the list filled in pieces, between
/// which it can be used.
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

    using Order = ChartOrder;

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
    /// The file of the selected wall or show, empty without one.
    QString selectedDocument() const;
    /// As soon as it is listed, unless another is selected before. Nothing happens without such a chart.
    void selectChart(const QString& imagePath);
    /// How long, in ms, the list is filled at a time before it hears its user again.
    void setPieceTime(int time) { m_pieceTime = time; }
    /// Whether there may be more charts than are listed yet.
    bool isFilling() const { return m_reader.isReading() || m_fill.isActive(); }

public Q_SLOTS:
    /// Looks at the folder again.
    void refresh();

Q_SIGNALS:
    /// All charts are listed.
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
    QString selectedPath() const;
    void beginFilling(const ListedCharts& charts);
    void fillPiece();
    bool fillNext();
    void endFilling();
    void removeChart(QListWidgetItem* shown);
    void placeChart(int row, const ListedChart& chart);
    QListWidgetItem* takeChart(const QString& imagePath);
    void showChart(QListWidgetItem* shown, const ListedChart& chart);
    void select(QListWidgetItem* shown);
    void showThumbnail(int ticket, const QImage& picture);
    void showDetails(int ticket, const ChartDetails& details);
    void filter(QListWidgetItem* shown);
    QString title(const QString& imagePath) const;

    QString m_folder;
    QLocale m_dates;
    FolderReader m_reader;
    QTimer m_settle;
    QTimer m_fill;                  ///< lists the next piece
    ListedCharts m_charts;          ///< as they were read
    QList<QListWidgetItem*> m_gone; ///< are none of them
    int m_pieceTime = 10;
    int m_filled = 0;         ///< as many of them are in their place
    bool m_isPlacing = false; ///< selects by itself, and no user
    QString m_toSelect;       ///< when it is listed
    ThumbnailLoader m_thumbnails;
    QHash<int, QListWidgetItem*> m_tickets; ///< of pictures that are being read
    QHash<QString, QListWidgetItem*> m_items;
    Order m_order = Order::Newest;
    QStringList m_words;
    int m_nextTicket = 0;
};
