#include "layerpainter.h"

#include <QPainter>
#include <QPixmap>

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

/// Not as the label's style would: a style sheet of the host, or a host that is disabled, must not get into the chart.
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
    QPixmap layer(size());
    layer.fill(Qt::transparent);
    bool drawn = false; // nothing to draw on: the layer keeps its picture
    if (!layer.isNull()) {
        QPainter painter(&layer);
        drawn = draw(painter, layer.size());
    }
    if (drawn)
        setPixmap(layer);
    m_renderedKey = pixmap(Qt::ReturnByValue).cacheKey();
}

bool LayerPainter::isStale() const
{
    return m_renderedSize != size() || m_renderedKey != pixmap(Qt::ReturnByValue).cacheKey() ||
           sourceChanged();
}

} // namespace vardeno::testcharttools
