#include "painters/layerstack.h"

#include "layers/composition.h"
#include "paintbasicwidget.h"
#include "paintinlinewidget.h"
#include "paintpiclogowidget.h"
#include "paintpublicbrightwidget.h"
#include "paintpublicwidget.h"
#include "paintrowcolsequewidget.h"
#include "paintselfwidget.h"
#include "painttextlogowidget.h"

#include <QGridLayout>
#include <QStackedWidget>

#include <algorithm>
#include <iterator>

namespace vardeno::testcharttools {

namespace {

template <typename Painter>
LayerPainter* create()
{
    return new Painter(nullptr);
}

} // namespace

std::vector<Layer>& layerTable()
{
    static std::vector<Layer> layers = {
        {0, "m_pPaintBasicWidget", "PaintBasicWidget is done", true, false, create<PaintBasicWidget>},
        {3, "m_pPaintRowColSequeWidget", "PaintRowColSequeWidget is done", true, false,
         create<PaintRowColSequeWidget>},
        {1, "m_pPaintInLineWidget", "PaintInLineWidget is done", true, false, create<PaintInLineWidget>},
        {2, "m_pPaintSelfWidget", "PaintSelfWidget is done", true, false, create<PaintSelfWidget>},
        // Not awaited: only the visible one of the two paints.
        {6, "m_pPaintPicLogoWidget", "PaintPicLogoWidget is done", false, true, create<PaintPicLogoWidget>},
        {7, "m_pPaintTextLogoWidget", "PaintTextLogoWidget is done", false, true,
         create<PaintTextLogoWidget>},
        {4, "m_pPaintPublicBrightWidget", "PaintPublicBrightWidget is done", true, false,
         create<PaintPublicBrightWidget>},
        {5, "m_pPaintPublicWidget", "PaintPublicWidget is done", true, false, create<PaintPublicWidget>},
    };
    return layers;
}

const std::vector<Layer>& chartLayers()
{
    return layerTable();
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
    for (const Layer& layer : chartLayers())
        stack(cell, layer);
}

void LayerStack::stack(QGridLayout* cell, const Layer& layer)
{
    LayerPainter* painter = layer.create();
    painter->setAttribute(Qt::WA_NoSystemBackground); // nor one of a host's style sheet
    m_painters.push_back(painter);
    QWidget* place = painter;
    if (layer.shared) {
        if (!m_sharedPlace)
            m_sharedPlace = new QStackedWidget;
        m_sharedPlace->setAttribute(Qt::WA_NoSystemBackground);
        m_sharedPlace->addWidget(painter);
        place = m_sharedPlace;
    }
    cell->addWidget(place, 0, 0);
    place->raise();
}

void LayerStack::setChartSize(const QSize& size)
{
    m_view->setFixedSize(size);
    // Now, not when the view is next drawn: a layer that renders in between would do it for nothing.
    if (m_sharedPlace)
        m_sharedPlace->resize(size);
    for (LayerPainter* painter : m_painters)
        painter->resize(size);
}

QSize LayerStack::chartSize() const
{
    return m_view->size();
}

QImage LayerStack::image() const
{
    QImage image;
    compose(image);
    return image;
}

/// As rendering the view would, but for the painting itself, in which no widget has a part.
void LayerStack::compose(QImage& image) const
{
    if (image.size() != chartSize() || image.format() != QImage::Format_RGB32 || !image.isDetached())
        image = QImage(chartSize(), QImage::Format_RGB32);
    const std::vector<LayerPainter*> shown = shownPainters();
    LayerPainter::refresh(shown);
    Composition chart;
    for (LayerPainter* painter : shown) {
        Q_EMIT painter->sigPaintEventUpdated();
        painter->addTo(chart);
    }
    if (!image.isNull())
        chart.paintInParallel(image);
}

void LayerStack::setHeld(bool held)
{
    LayerPainter::setHeld(m_painters, held);
}

std::vector<LayerPainter*> LayerStack::shownPainters() const
{
    std::vector<LayerPainter*> shown;
    std::copy_if(m_painters.begin(), m_painters.end(), std::back_inserter(shown),
                 [this](const LayerPainter* painter) { return painter->isVisibleTo(m_view); });
    return shown;
}

} // namespace vardeno::testcharttools
