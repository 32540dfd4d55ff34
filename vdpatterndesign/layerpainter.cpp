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
    QLabel::paintEvent(event);
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
    bool drawn = true;
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
