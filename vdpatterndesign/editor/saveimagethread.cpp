#include "saveimagethread.h"

#include "support/imagefile.h"

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
    Q_EMIT saveFinished(!format || writeImageWhole(m_image, m_path, format, quality, m_fault.get()));
}

QString SaveImageThread::failedReason() const
{
    return writeFaultText(*m_fault);
}

} // namespace vardeno::testcharttools
