#include "layers/stackpicture.h"

#include "layers/chartlayer.h"
#include "layers/composition.h"
#include "layers/largechart.h"
#include "layers/layerpicture.h"
#include "support/parallel.h"

#include <QPainter>

#include <atomic>

namespace vardeno::testcharttools {

namespace {

/// What one thread draws of a large chart at once. The toolkit paints nothing from the column 32767 on.
constexpr QSize tileSize(4096, 64);

/// Draws what is in `area` of the layer; false where there is no memory for it.
bool drawPicture(const ChartLayer& layer, const QSize& chart, const QRect& area, LayerPicture& picture)
{
    QImage& own = picture.begin(area.size(), layer.coverage());
    if (own.isNull())
        return false;
    {
        QPainter painter(&own);
        painter.translate(-area.topLeft());
        painter.setLayoutDirection(Qt::LeftToRight); // whatever the host's is
        layer.draw(painter, chart, area);
    }
    QVector<QRect> reach = layer.reach(chart);
    for (QRect& place : reach)
        place.translate(-area.topLeft());
    picture.end(reach);
    return true;
}

} // namespace

StackPicture::StackPicture(const QSize& size, std::vector<const ChartLayer*> layers)
    : m_size(size)
    , m_layers(std::move(layers))
{
}

bool StackPicture::isDrawnInParts() const
{
    return !isDrawnWhole(m_size);
}

QImage StackPicture::rows(int top, int count) const
{
    return area({0, top, m_size.width(), count});
}

QImage StackPicture::area(const QRect& area) const
{
    const bool isWhole = area == QRect(QPoint(), m_size);
    if (!isDrawnInParts() && !isWhole)
        return this->area({QPoint(), m_size}).copy(area);
    QImage part(area.size(), QImage::Format_RGB32);
    if (part.isNull() || !(isDrawnInParts() ? drawTiles(part, area.topLeft()) : drawWhole(part)))
        return {};
    return part;
}

bool StackPicture::drawWhole(QImage& chart) const
{
    std::vector<LayerPicture> pictures(m_layers.size());
    Composition composition;
    for (std::size_t i = 0; i < m_layers.size(); ++i) {
        if (m_layers[i]->drawsOnLayersBelow())
            composition.add(*m_layers[i], m_size);
        else if (drawPicture(*m_layers[i], m_size, QRect(QPoint(), m_size), pictures[i]))
            composition.add(pictures[i], m_size);
        else
            return false;
    }
    composition.paintInParallel(chart);
    return true;
}

/// Each of them for itself: nothing that is drawn depends on where a tile ends.
bool StackPicture::drawTiles(QImage& part, const QPoint& origin) const
{
    uchar* const bits = part.bits();
    std::atomic<bool> drawn{true};
    const int columns = (part.width() + tileSize.width() - 1) / tileSize.width();
    const int lines = (part.height() + tileSize.height() - 1) / tileSize.height();
    inParallel(columns * lines, [&](int i) {
        const QPoint at(i % columns * tileSize.width(), i / columns * tileSize.height());
        const QSize size = QSize(part.width() - at.x(), part.height() - at.y()).boundedTo(tileSize);
        uchar* const first =
            bits + qsizetype(at.y()) * part.bytesPerLine() + at.x() * qsizetype(sizeof(QRgb));
        QImage tile(first, size.width(), size.height(), part.bytesPerLine(), part.format());
        if (!drawTile(tile, at + origin))
            drawn = false;
    });
    return drawn;
}

bool StackPicture::drawTile(QImage& tile, const QPoint& at) const
{
    const QRect area(at, tile.size());
    LayerPicture picture;
    tile.fill(Qt::black); // what no layer covers is dark on the wall
    for (const ChartLayer* layer : m_layers) {
        const bool hasPicture = !layer->drawsOnLayersBelow();
        if (hasPicture && !drawPicture(*layer, m_size, area, picture))
            return false;
        QPainter painter(&tile);
        if (hasPicture) {
            picture.paint(painter);
            continue;
        }
        painter.translate(-at);
        painter.setLayoutDirection(Qt::LeftToRight);
        layer->draw(painter, m_size, area);
    }
    return true;
}

} // namespace vardeno::testcharttools
