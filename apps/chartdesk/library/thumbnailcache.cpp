#include "thumbnailcache.h"

#include <QCryptographicHash>
#include <QDir>
#include <QSaveFile>
#include <QStandardPaths>

ThumbnailCache::ThumbnailCache(const QString& folder)
    : m_folder(folder)
{
}

QImage ThumbnailCache::find(const QByteArray& bytes, const QSize& size) const
{
    const QImage kept(path(bytes, size), "png");
    return kept.size() == size ? kept.convertToFormat(QImage::Format_RGB32) : QImage();
}

void ThumbnailCache::insert(const QByteArray& bytes, const QImage& picture) const
{
    QDir().mkpath(m_folder);
    QSaveFile file(path(bytes, picture.size())); // another desk may write the same
    if (file.open(QIODevice::WriteOnly) && picture.save(&file, "png", 80) && file.flush())
        file.commit();
}

void ThumbnailCache::prune(int count) const
{
    const QFileInfoList files = QDir(m_folder).entryInfoList(QDir::Files, QDir::Time); // the latest first
    for (const QFileInfo& file : files.mid(count))
        QFile::remove(file.filePath());
}

QString ThumbnailCache::usersFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QLatin1String("/thumbnails");
}

QString ThumbnailCache::path(const QByteArray& bytes, const QSize& size) const
{
    const QByteArray digest = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
    return QStringLiteral("%1/%2-%3x%4.png")
        .arg(m_folder, QString::fromLatin1(digest))
        .arg(size.width())
        .arg(size.height());
}
