#pragma once

#include <QLocale>
#include <QMetaType>
#include <QObject>
#include <QStringList>
#include <QThread>
#include <QVector>

#include <atomic>

/// What comes first in a list of charts.
enum class ChartOrder
{
    Newest,
    Oldest,
    Name
};

/// A chart as its folder tells of it. A plain value.
struct ListedChart
{
    QString image;
    QString stamp; ///< tells whether the file has changed
    QStringList tags;
};

using ListedCharts = QVector<ListedChart>;

/// What is to be read.
struct FolderWish
{
    QString folder;
    ChartOrder order = ChartOrder::Newest;
    QLocale names; ///< by whose rules names are sorted
};

/// Reads the charts of a folder in a thread of its own, however slow the disk is, and watches them.
class FolderReader : public QObject
{
    Q_OBJECT

public:
    explicit FolderReader(QObject* parent = nullptr);
    ~FolderReader() override;

    /// Returns at once. What was wished before and is not told yet is never told.
    void read(const FolderWish& wish);
    bool isReading() const { return m_told != m_wished; }

Q_SIGNALS:
    void finished(const ListedCharts& charts);
    /// A chart has come, gone or got another name since the folder was read.
    void changed();

private:
    void tell(int wish, const ListedCharts& charts);

    QThread m_thread;
    QObject* m_worker;
    std::atomic<int> m_wished{0};
    int m_told = 0;
};
