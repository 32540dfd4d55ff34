#include "layerpainter.h"

#include <QPainter>

namespace vardeno::testcharttools {

LayerPainter::LayerPainter(QWidget* parent)
    : QLabel(parent)
{
    // The layer takes the size of the chart; the picture of its previous size must not hold it.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

LayerPainter::~LayerPainter() = default;

void LayerPainter::paintEvent(QPaintEvent* event)
{
    if (isStale())
        render();
    Q_EMIT sigPaintEventUpdated();
    paintStored(event);
}

std::optional<QPixmap> LayerPainter::renderedPicture()
{
    QPixmap layer(size());
    layer.fill(Qt::transparent);
    if (layer.isNull())
        return std::nullopt; // nothing to draw on: the layer keeps its picture
    QPainter painter(&layer);
    if (!draw(painter, layer.size()))
        return std::nullopt;
    painter.end();
    return layer;
}

/// Not as the label's style would: a style sheet of the host, or a host that is disabled, must not get into
/// the chart.
void LayerPainter::paintStored(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, pixmap(Qt::ReturnByValue));
}

bool LayerPainter::sourceChanged() const
{
    return false;
}

void LayerPainter::render()
{
    m_renderedSize = size();
    if (const auto picture = renderedPicture())
        setPixmap(*picture);
    m_renderedKey = pixmap(Qt::ReturnByValue).cacheKey();
}

bool LayerPainter::isStale() const
{
    return m_renderedSize != size() || m_renderedKey != pixmap(Qt::ReturnByValue).cacheKey() ||
           sourceChanged();
}

} // namespace vardeno::testcharttools
