#pragma once

#include <QImage>
#include <QString>

/// Small pictures of charts, kept on the disk by the content of the chart: a copy of it, or the chart under
/// another name, has its picture at once. For any thread.
class ThumbnailCache
{
public:
    /// In `folder`, which is made with the first picture.
    explicit ThumbnailCache(const QString& folder);

    /// The picture of the chart whose file has these bytes; null where it is not kept.
    QImage find(const QByteArray& bytes, const QSize& size) const;
    void insert(const QByteArray& bytes, const QImage& picture) const;
    /// Leaves the latest `count` pictures.
    void prune(int count) const;

    /// That of this user.
    static QString usersFolder();

private:
    QString path(const QByteArray& bytes, const QSize& size) const;

    QString m_folder;
};
