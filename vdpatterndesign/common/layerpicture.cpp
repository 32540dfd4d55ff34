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

QImage& LayerPicture::blank(const QSize& size)
{
    if (m_image.size() == size && m_image.isDetached())
        wipe(m_image, m_ink.places);
    else
        m_image = transparentImage(size);
    m_ink = {};
    return m_image;
}

QPixmap LayerPicture::finished()
{
    m_ink = inkOf(m_image);
    return QPixmap::fromImage(m_image, Qt::NoOpaqueDetection);
}

} // namespace vardeno::testcharttools
