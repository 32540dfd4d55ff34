#include "common/layerstack.h"

#include "paintbasicwidget.h"
#include "paintinlinewidget.h"
#include "paintpublicbrightwidget.h"
#include "paintpublicwidget.h"
#include "paintrowcolsequewidget.h"

#include <QGridLayout>
#include <QPainter>

namespace vardeno::testcharttools {

namespace {

constexpr QWidget::RenderFlags renderFlags = QWidget::DrawWindowBackground | QWidget::DrawChildren;

template <typename Painter>
LayerPainter* create()
{
    return new Painter(nullptr);
}

} // namespace

const std::vector<Layer>& chartLayers()
{
    static const std::vector<Layer> layers = {
        {0, "m_pPaintBasicWidget", "PaintBasicWidget is done", true, create<PaintBasicWidget>},
        {3, "m_pPaintRowColSequeWidget", "PaintRowColSequeWidget is done", true,
         create<PaintRowColSequeWidget>},
        {1, "m_pPaintInLineWidget", "PaintInLineWidget is done", true, create<PaintInLineWidget>},
        {4, "m_pPaintPublicBrightWidget", "PaintPublicBrightWidget is done", true,
         create<PaintPublicBrightWidget>},
        {5, "m_pPaintPublicWidget", "PaintPublicWidget is done", true, create<PaintPublicWidget>},
    };
    return layers;
}

LayerStack::LayerStack(QWidget* owner)
    : m_view(new QWidget(owner, Qt::Window))
{
    // A pixel that no layer covers is dark on the wall, whatever palette the host has.
    QPalette dark = m_view->palette();
    dark.setColor(QPalette::Window, Qt::black);
    m_view->setPalette(dark);

    auto* cell = new QGridLayout(m_view);
    cell->setContentsMargins(0, 0, 0, 0);
    for (const Layer& layer : chartLayers()) {
        m_painters.push_back(layer.create());
        cell->addWidget(m_painters.back(), 0, 0);
        m_painters.back()->raise();
        m_painters.back()->setAttribute(Qt::WA_NoSystemBackground); // nor one of a host's style sheet
    }
}

void LayerStack::setChartSize(const QSize& size)
{
    m_view->setFixedSize(size);
}

QSize LayerStack::chartSize() const
{
    return m_view->size();
}

QImage LayerStack::image() const
{
    QImage image(chartSize(), QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    m_view->render(&painter, QPoint(), QRegion(), renderFlags);
    return image;
}

} // namespace vardeno::testcharttools
