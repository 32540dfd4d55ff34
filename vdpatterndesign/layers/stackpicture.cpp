#include "layers/stackpicture.h"

#include "layers/chartlayer.h"
#include "layers/composition.h"
#include "layers/largechart.h"
#include "layers/layerpicture.h"
#include "support/parallel.h"

#include <QPainter>

#include <atomic>
#include <memory>

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

/// The layers of a small picture, each drawn as a whole, for what is composed of them. It holds them by
/// address.
class DrawnLayers
{
public:
    /// False where there is not enough memory.
    bool draw(const std::vector<const ChartLayer*>& layers, const QSize& chart);
    /// `count` rows from the row `top` on. Null where there is not enough memory.
    QImage rows(int top, int count) const;

private:
    QSize m_chart;
    std::vector<LayerPicture> m_pictures;
    Composition m_composition;
};

bool DrawnLayers::draw(const std::vector<const ChartLayer*>& layers, const QSize& chart)
{
    m_chart = chart;
    m_pictures.resize(layers.size());
    m_composition = {};
    for (std::size_t i = 0; i < layers.size(); ++i) {
        if (layers[i]->drawsOnLayersBelow())
            m_composition.add(*layers[i], chart);
        else if (drawPicture(*layers[i], chart, QRect(QPoint(), chart), m_pictures[i]))
            m_composition.add(m_pictures[i], chart);
        else
            return false;
    }
    return true;
}

QImage DrawnLayers::rows(int top, int count) const
{
    QImage rows(m_chart.width(), count, QImage::Format_RGB32);
    if (!rows.isNull())
        m_composition.paintInParallel(rows, top);
    return rows;
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
    if (!isDrawnInParts()) {
        DrawnLayers drawn;
        if (!drawn.draw(m_layers, m_size))
            return {};
        const QImage rows = drawn.rows(area.top(), area.height());
        return area.width() == m_size.width() ? rows : rows.copy(area.translated(0, -area.top()));
    }
    QImage part(area.size(), QImage::Format_RGB32);
    return !part.isNull() && drawTiles(part, area.topLeft()) ? part : QImage();
}

std::function<QImage(int top, int count)> StackPicture::strips() const
{
    if (isDrawnInParts())
        return [picture = *this](int top, int count) { return picture.rows(top, count); };
    return [picture = *this, drawn = std::shared_ptr<DrawnLayers>()](int top, int count) mutable {
        if (!drawn) {
            drawn = std::make_shared<DrawnLayers>();
            if (!drawn->draw(picture.m_layers, picture.m_size)) {
                drawn = nullptr;
                return QImage();
            }
        }
        return drawn->rows(top, count);
    };
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
