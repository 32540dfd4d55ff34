#include "layers/chartpicture.h"

#include "layers/chartlayers.h"
#include "layers/composition.h"
#include "layers/largechart.h"
#include "layers/layerpicture.h"
#include "support/parallel.h"
#include "support/translation.h"

#include <QPainter>

#include <algorithm>
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

ChartCaptions ChartCaptions::current()
{
    if (!isTranslated())
        return {};
    return {translated(QStringLiteral("ResolutionShow")), translated(QStringLiteral("BoxNumShow"))};
}

class ChartPicture::Impl
{
public:
    explicit Impl(ChartLayers chart)
        : layers(std::move(chart))
    {
        layers.fit();
    }

    bool drawWhole(QImage& chart) const;
    bool drawTiles(QImage& rows, int top) const;
    bool drawTile(QImage& tile, const QPoint& at) const;

    ChartLayers layers;
};

bool ChartPicture::Impl::drawWhole(QImage& chart) const
{
    const QSize size = layers.size;
    const auto drawn = layers.drawn();
    std::vector<LayerPicture> pictures(drawn.size());
    Composition composition;
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        if (drawn[i]->drawsOnLayersBelow())
            composition.add(*drawn[i], size);
        else if (drawPicture(*drawn[i], size, QRect(QPoint(), size), pictures[i]))
            composition.add(pictures[i], size);
        else
            return false;
    }
    composition.paintInParallel(chart);
    return true;
}

/// Each of them for itself: nothing that is drawn depends on where a tile ends.
bool ChartPicture::Impl::drawTiles(QImage& rows, int top) const
{
    uchar* const bits = rows.bits();
    std::atomic<bool> drawn{true};
    const int columns = (rows.width() + tileSize.width() - 1) / tileSize.width();
    const int lines = (rows.height() + tileSize.height() - 1) / tileSize.height();
    inParallel(columns * lines, [&](int i) {
        const QPoint at(i % columns * tileSize.width(), i / columns * tileSize.height());
        const QSize size = QSize(rows.width() - at.x(), rows.height() - at.y()).boundedTo(tileSize);
        uchar* const first =
            bits + qsizetype(at.y()) * rows.bytesPerLine() + at.x() * qsizetype(sizeof(QRgb));
        QImage tile(first, size.width(), size.height(), rows.bytesPerLine(), rows.format());
        if (!drawTile(tile, at + QPoint(0, top)))
            drawn = false;
    });
    return drawn;
}

bool ChartPicture::Impl::drawTile(QImage& tile, const QPoint& at) const
{
    const QRect area(at, tile.size());
    const auto drawn = layers.drawn();
    LayerPicture picture;
    tile.fill(Qt::black); // what no layer covers is dark on the wall
    for (const ChartLayer* layer : drawn) {
        const bool hasPicture = !layer->drawsOnLayersBelow();
        if (hasPicture && !drawPicture(*layer, layers.size, area, picture))
            return false;
        QPainter painter(&tile);
        if (hasPicture) {
            picture.paint(painter);
            continue;
        }
        painter.translate(-at);
        painter.setLayoutDirection(Qt::LeftToRight);
        layer->draw(painter, layers.size, area);
    }
    return true;
}

ChartPicture::ChartPicture(const TestChartToolsData& record, const ChartCaptions& captions)
    : d(std::make_shared<Impl>(layersOf(record, captions)))
{
}

ChartPicture::ChartPicture(const ChartPicture& other) = default;
ChartPicture& ChartPicture::operator=(const ChartPicture& other) = default;
ChartPicture::~ChartPicture() = default;

QSize ChartPicture::size() const
{
    return d->layers.size;
}

bool ChartPicture::isDrawnInParts() const
{
    return !isDrawnWhole(size());
}

QImage ChartPicture::image() const
{
    return rows(0, size().height());
}

QImage ChartPicture::rows(int top, int count) const
{
    if (!isDrawnInParts() && count < size().height())
        return image().copy(0, top, size().width(), count);
    QImage rows(size().width(), count, QImage::Format_RGB32);
    if (rows.isNull() || !(isDrawnInParts() ? d->drawTiles(rows, top) : d->drawWhole(rows)))
        return {};
    return rows;
}

} // namespace vardeno::testcharttools
