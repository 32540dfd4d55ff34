#include "layers/layerpicture.h"

#include <QPainter>

#include <algorithm>
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

void LayerPicture::end(const QVector<QRect>& reach)
{
    if (m_coverage == Coverage::Unknown)
        m_ink = inkOf(m_image, reach.isEmpty() ? QVector<QRect>{m_image.rect()} : reach);
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
    paint(painter, m_image.rect());
}

void LayerPicture::paint(QPainter& painter, const QRect& area) const
{
    if (m_ink.opaque) {
        // Without its alpha channel it is copied, not blended.
        painter.drawImage(0, 0,
                          QImage(m_image.constBits(), m_image.width(), m_image.height(),
                                 m_image.bytesPerLine(), QImage::Format_RGB32));
        return;
    }
    const auto isAbove = [](const QRect& place, int y) { return place.bottom() < y; };
    const QVector<QRect>& places = m_ink.places;
    for (auto place = std::lower_bound(places.begin(), places.end(), area.top(), isAbove);
         place != places.end() && place->top() <= area.bottom(); ++place) {
        const QRect part = *place & area;
        if (!part.isEmpty())
            painter.drawImage(part.topLeft(), m_image, part);
    }
}

} // namespace vardeno::testcharttools
