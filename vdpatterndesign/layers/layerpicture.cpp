#include "layers/layerpicture.h"

#include <QPainter>

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
    else if (coverage == Coverage::Unknown || coverage == Coverage::Nothing)
        wipe(m_image, m_ink.places);
    m_coverage = coverage;
    return m_image;
}

void LayerPicture::end()
{
    if (m_coverage == Coverage::Unknown)
        m_ink = inkOf(m_image);
    else if (m_coverage == Coverage::Nothing)
        m_ink = Ink();
    else
        m_ink = {{m_image.rect()}, m_coverage == Coverage::Opaque};
}

QPixmap LayerPicture::pixmap() const
{
    return QPixmap::fromImage(m_image, Qt::NoOpaqueDetection);
}

QPixmap LayerPicture::finish()
{
    end();
    return pixmap();
}

void LayerPicture::paint(QPainter& painter) const
{
    if (m_ink.opaque) {
        // Without its alpha channel it is copied, not blended.
        painter.drawImage(0, 0,
                          QImage(m_image.constBits(), m_image.width(), m_image.height(),
                                 m_image.bytesPerLine(), QImage::Format_RGB32));
        return;
    }
    for (const QRect& place : m_ink.places)
        painter.drawImage(place.topLeft(), m_image, place);
}

} // namespace vardeno::testcharttools
