#include "support/imagefile.h"

#include "support/picturehead.h"
#include "support/pngtexts.h"

#include <QFileInfo>
#include <QImageReader>
#include <QSaveFile>

#include <cerrno>

namespace vardeno::testcharttools {

namespace {

/// Hands on to a file what is written, and takes the rest as well once the file has refused some: the
/// toolkit's encoders do not free what they hold when their device refuses.
class UnrefusingDevice : public QIODevice
{
public:
    explicit UnrefusingDevice(QSaveFile& file)
        : m_file(file)
    {
        open(WriteOnly | Unbuffered);
    }

    bool hasRefused() const { return m_refused; }
    /// What the system left behind when it did.
    int errorNumber() const { return m_errorNumber; }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char*, qint64) override { return -1; }

    qint64 writeData(const char* bytes, qint64 count) override
    {
        if (!m_refused && m_file.write(bytes, count) != count) {
            m_refused = true;
            m_errorNumber = errno;
        }
        return count;
    }

private:
    QSaveFile& m_file;
    bool m_refused = false;
    int m_errorNumber = 0;
};

/// A `commit` alone reports success when the disk fills up in the last kilobytes.
bool flushAndCommit(QSaveFile& file)
{
    return file.flush() && file.commit();
}

} // namespace

/// Encodes into the file: a large picture of this quality is as large in memory again.
bool writeImageWhole(const QImage& image, const QString& path, const char* format, int quality,
                     WriteFault* fault)
{
    QSaveFile file(path);
    errno = 0;
    bool encoded = !image.isNull();
    bool written = encoded && file.open(QIODevice::WriteOnly);
    int errorNumber = errno;
    if (written) {
        UnrefusingDevice device(file);
        encoded = image.save(&device, format, quality);
        written = encoded && !device.hasRefused() && flushAndCommit(file);
        errorNumber = device.hasRefused() ? device.errorNumber() : errno;
    }
    if (!written && fault)
        *fault =
            encoded ? writeFaultOf(path, file, errorNumber) : WriteFault{WriteFault::NotEncodable, QString()};
    return written;
}

bool writeBytesWhole(const QByteArray& bytes, const QString& path, WriteFault* fault)
{
    QSaveFile file(path);
    errno = 0;
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && flushAndCommit(file);
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
