#include "common/layerpicture.h"

#include <cstdlib>

namespace vardeno::testcharttools {

namespace {

/// Memory that the system hands out as zeros costs nothing until it is drawn on: most layers are mostly
/// transparent.
QImage transparentImage(const QSize& size)
{
    const int bytesPerLine = size.width() * 4;
    void* const memory = std::calloc(std::size_t(size.height()), std::size_t(bytesPerLine));
    if (!memory)
        return {};
    return QImage(static_cast<uchar*>(memory), size.width(), size.height(), bytesPerLine,
                  QImage::Format_ARGB32_Premultiplied, std::free, memory);
}

} // namespace

QImage& LayerPicture::begin(const QSize& size, Coverage coverage)
{
    if (m_image.size() != size || !m_image.isDetached())
        m_image = transparentImage(size);
    else if (coverage == Coverage::Unknown)
        wipe(m_image, m_ink.places);
    m_coverage = coverage;
    return m_image;
}

QPixmap LayerPicture::finish()
{
    m_ink = m_coverage == Coverage::Unknown ? inkOf(m_image)
                                            : Ink{{m_image.rect()}, m_coverage == Coverage::Opaque};
    return QPixmap::fromImage(m_image, Qt::NoOpaqueDetection);
}

} // namespace vardeno::testcharttools
