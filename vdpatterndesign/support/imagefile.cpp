#include "support/imagefile.h"

#include "support/picturehead.h"
#include "support/pngtexts.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QSaveFile>

#include <cerrno>

namespace vardeno::testcharttools {

/// Encodes in memory first: saving straight to a file reports success when the disk fills up in its last
/// kilobytes, and so does a `commit` alone.
bool writeImageWhole(const QImage& image, const QString& path, const char* format, int quality,
                     WriteFault* fault)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, format, quality)) {
        if (fault)
            *fault = {WriteFault::NotEncodable, QString()};
        return false;
    }
    return writeBytesWhole(bytes, path, fault);
}

bool writeBytesWhole(const QByteArray& bytes, const QString& path, WriteFault* fault)
{
    QSaveFile file(path);
    errno = 0;
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit();
    const int errorNumber = errno;
    if (!written && fault)
        *fault = writeFaultOf(path, file, errorNumber);
    return written;
}

QSize pictureSize(const QString& path)
{
    if (!QFileInfo(path).isFile() || hasTooMuchText(path)) // a pipe keeps its reader waiting
        return {};
    QImageReader reader(path);
    return toldSize(reader);
}

PictureFile examinePicture(const QString& path)
{
    const QSize size = pictureSize(path);
    if (size.isEmpty())
        return PictureFile::Unreadable;
    const bool small = size.width() <= largestPicture && size.height() <= largestPicture;
    return small ? PictureFile::Readable : PictureFile::TooLarge;
}

QImage readPicture(const QString& path)
{
    if (hasTooMuchText(path) || examinePicture(path) == PictureFile::TooLarge)
        return {};
    QImageReader reader(path);
    reader.setAutoTransform(true);
    return reader.read();
}

const QImage& CachedPicture::load(const QString& path)
{
    const State state = stateOf(path);
    if (state == m_state)
        return m_image;
    m_state = state;
    m_image = examinePicture(path) == PictureFile::Readable ? readPicture(path) : QImage();
    m_image.setDevicePixelRatio(1); // a file may be called "logo@2x.png"
    return m_image;
}

bool CachedPicture::isOutdated(const QString& path) const
{
    return !(stateOf(path) == m_state);
}

bool CachedPicture::State::operator==(const State& other) const
{
    return path == other.path && size == other.size && modified == other.modified;
}

CachedPicture::State CachedPicture::stateOf(const QString& path)
{
    const QFileInfo file(path);
    return {path, file.exists() ? file.size() : -1, file.lastModified()};
}

} // namespace vardeno::testcharttools
