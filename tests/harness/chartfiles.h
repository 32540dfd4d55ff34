#pragma once

#include "chartfolderlist.h"

#include <chartrecordfile.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>

/// Charts as files, for tests of what works on them.
namespace chartfiles {

inline bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size();
}

inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writePicture(const QString& path, const QColor& color, const QSize& size = QSize(16, 9))
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return QDir().mkpath(QFileInfo(path).path()) && image.save(path);
}

/// An image in `color`, and its record with the picture `logo`, which may be empty.
inline bool writeChart(const QString& image, const QColor& color, const QString& logo = {})
{
    vardeno::testcharttools::TestChartToolsData record;
    record.logoData.picturePath = logo.toStdString();
    return writePicture(image, color) && writeFile(ChartFolderList::recordPath(image),
                                                   vardeno::testcharttools::ChartRecordFile::toJson(record));
}

/// The text that the record of `image` has for its picture.
inline QString storedPicture(const QString& image)
{
    const auto reading =
        vardeno::testcharttools::ChartRecordFile::fromJson(readFile(ChartFolderList::recordPath(image)));
    return QString::fromStdString(reading.record.logoData.picturePath);
}

/// Everything below `folder`, hidden files too, relative to it and in order; folders end with a slash.
inline QStringList tree(const QString& folder)
{
    QStringList found;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        found.append(QDir(folder).relativeFilePath(path) +
                     (entries.fileInfo().isDir() ? QLatin1String("/") : QLatin1String("")));
    }
    found.sort();
    return found;
}

} // namespace chartfiles
