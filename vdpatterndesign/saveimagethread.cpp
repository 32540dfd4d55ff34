#include "saveimagethread.h"

#include <QBuffer>
#include <QSaveFile>

namespace vardeno::testcharttools {

namespace {

constexpr int quality = 100;

/// The image format of a path's ending, null for an ending that is none of ours.
const char* formatOf(const QString& path)
{
    if (path.endsWith(QLatin1String(".png")))
        return "PNG";
    if (path.endsWith(QLatin1String(".jpg")) || path.endsWith(QLatin1String(".jpeg")))
        return "JPEG";
    if (path.endsWith(QLatin1String(".bmp")))
        return "bmp";
    return nullptr;
}

/// Encodes in memory first: saving straight to a file reports success when the disk fills up in its last
/// kilobytes, and so does a `commit` alone.
bool writeWhole(const QImage& image, const QString& path, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, format, quality))
        return false;
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
           file.commit();
}

} // namespace

SaveImageThread::SaveImageThread(const QImage& image, const QString& path, QObject* parent)
    : QThread(parent)
    , m_image(image)
    , m_path(path)
{
}

SaveImageThread::~SaveImageThread()
{
    wait();
}

void SaveImageThread::run()
{
    const char* const format = formatOf(m_path);
    Q_EMIT saveFinished(!format || writeWhole(m_image, m_path, format));
}

} // namespace vardeno::testcharttools
