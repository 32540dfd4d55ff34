#include "saveimagethread.h"

#include "pngencoder.h"
#include "support/imagefile.h"

#include <cstring>
#include <new>

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

} // namespace

class SaveImageThread::Fault : public WriteFault
{
};

SaveImageThread::SaveImageThread(const QImage& image, const QString& path, QObject* parent)
    : QThread(parent)
    , m_image(image)
    , m_path(path)
    , m_fault(std::make_unique<Fault>())
{
}

SaveImageThread::~SaveImageThread()
{
    wait();
}

void SaveImageThread::run()
{
    const char* const format = formatOf(m_path);
    *m_fault = {};
    Q_EMIT saveFinished(!format || write(format));
}

bool SaveImageThread::write(const char* format)
{
    if (!m_smallPng || std::strcmp(format, "PNG") != 0)
        return writeImageWhole(m_image, m_path, format, quality, m_fault.get());
    try {
        PngOptions options;
        options.threads = idealThreadCount();
        const QByteArray file = encodePng(m_image, options);
        if (!file.isEmpty())
            return writeBytesWhole(file, m_path, m_fault.get());
    } catch (const std::bad_alloc&) {
        // told like a picture that cannot be encoded
    }
    *m_fault = {WriteFault::NotEncodable, QString()};
    return false;
}

QString SaveImageThread::failedReason() const
{
    return writeFaultText(*m_fault);
}

} // namespace vardeno::testcharttools
