#include "layers/composition.h"

#include "layers/chartlayer.h"
#include "layers/layerpicture.h"
#include "support/parallel.h"

#include <QPainter>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

/// Of a band: what is painted on it one after the other stays in the cache of a core.
constexpr int bandBytes = 512 * 1024;

/// The rows from `top` on, in the memory of `image`.
QImage bandOf(uchar* bits, const QImage& image, int top, int count)
{
    return {bits + qsizetype(top) * image.bytesPerLine(), image.width(), count, image.bytesPerLine(),
            image.format()};
}

} // namespace

void Composition::add(const Paint& paint, bool covers)
{
    m_isCovered |= m_paints.empty() && covers;
    m_paints.push_back(paint);
}

void Composition::add(const ChartLayer& layer, const QSize& chart)
{
    const auto draw = [&layer, chart](QPainter& painter, const QRect& area) {
        layer.draw(painter, chart, area);
    };
    add(draw, layer.coverage() == LayerCoverage::Opaque);
}

void Composition::add(const LayerPicture& picture, const QSize& chart)
{
    const auto paint = [&picture](QPainter& painter, const QRect& area) { picture.paint(painter, area); };
    add(paint, picture.ink().opaque && picture.size() == chart);
}

void Composition::paint(QPainter& painter, const QRect& area) const
{
    for (const Paint& paint : m_paints) {
        painter.save();
        paint(painter, area);
        painter.restore();
    }
}

void Composition::paintInParallel(QImage& image, int top) const
{
    uchar* const bits = image.bits();
    const int height = std::max(1, bandBytes / int(image.bytesPerLine()));
    inParallel((image.height() + height - 1) / height, [&](int i) {
        QImage band = bandOf(bits, image, i * height, std::min(height, image.height() - i * height));
        paintBand(band, top + i * height);
    });
}

void Composition::paintBand(QImage& rows, int top) const
{
    if (!m_isCovered)
        rows.fill(Qt::black);
    const QRect area = rows.rect().translated(0, top);
    QPainter painter(&rows);
    painter.translate(0, -top);
    painter.setLayoutDirection(Qt::LeftToRight); // whatever the host's is
    paint(painter, area);
}

} // namespace vardeno::testcharttools
