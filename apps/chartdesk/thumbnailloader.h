#pragma once

#include "chartdetails.h"

#include <QImage>
#include <QObject>
#include <QThreadPool>

/// Reads pictures in a small size, on threads of its own, in the order in which they are asked for. It keeps
/// them on the disk, by the content of the chart.
class ThumbnailLoader : public QObject
{
    Q_OBJECT

public:
    explicit ThumbnailLoader(QObject* parent = nullptr);
    ~ThumbnailLoader() override;

    /// Reads `path` into a picture of `size` device pixels, on black where its shape is another. `loaded`
    /// tells of it with the same `ticket`, a black picture for a file that cannot be read.
    void load(const QString& path, const QSize& size, int ticket);
    /// Gives up what has not begun; nothing more is told of tickets until now.
    void clear();

Q_SIGNALS:
    void loaded(int ticket, const QImage& picture);
    /// What else the chart tells, before its picture.
    void detailed(int ticket, const ChartDetails& details);

private:
    QThreadPool m_pool;
    int m_round = 0;
};
