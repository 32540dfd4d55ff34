#include "layerpainter.h"

#include "layers/chartlayer.h"
#include "layers/composition.h"
#include "layers/layerpicture.h"
#include "painters/paintpace.h"
#include "support/parallel.h"

#include <QFont>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <functional>
#include <iterator>

namespace vardeno::testcharttools {

class LayerPainter::Impl
{
public:
    explicit Impl(QWidget* layer)
        : pace(layer)
    {
    }

    PaintPace pace;
    ChartLayer* value = nullptr; ///< of the layer that this is the base of
    LayerPicture picture;
    QSize renderedSize;
    QFont renderedFont;     ///< the application's, which every text is drawn in
    qint64 renderedKey = 0; ///< identifies the picture of the last render
    bool begun = false;     ///< the picture is to be drawn on
    bool held = false;
    bool changed = false; ///< while held
};

LayerPainter::LayerPainter(QWidget* parent)
    : QLabel(parent)
    , d(std::make_unique<Impl>(this))
{
    // The layer takes the size of the chart; the picture of its previous size must not hold it.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

LayerPainter::~LayerPainter() = default;

void LayerPainter::setHeld(bool held)
{
    setHeld({this}, held);
}

void LayerPainter::setHeld(const Layers& layers, bool held)
{
    Layers changed;
    for (LayerPainter* layer : layers) {
        layer->d->held = held;
        if (!held && layer->d->changed)
            changed.push_back(layer);
    }
    renderTogether(changed);
}

void LayerPainter::paintEvent(QPaintEvent* event)
{
    d->pace.begin();
    refresh();
    Q_EMIT sigPaintEventUpdated();
    // Not as the label's style would: a style sheet of the host, or a host that is disabled, must not get
    // into the chart.
    Composition shown;
    addTo(shown);
    QPainter painter(this);
    shown.paint(painter, event->rect());
}

void LayerPainter::drawWith(ChartLayer& value)
{
    d->value = &value;
}

bool LayerPainter::isDrawable() const
{
    return !d->value || d->value->isDrawable();
}

LayerPainter::Coverage LayerPainter::coverage() const
{
    return d->value ? d->value->coverage() : Coverage::Unknown;
}

void LayerPainter::prepare()
{
    if (d->value)
        d->value->fit(size());
}

void LayerPainter::draw(QPainter& painter, const QSize& size)
{
    if (d->value)
        d->value->draw(painter, size);
}

bool LayerPainter::beginPicture()
{
    if (size().isEmpty() || !isDrawable())
        return false;
    prepare();
    clear(); // lets go of the picture, which is then drawn on again
    return !d->picture.begin(size(), coverage()).isNull();
}

void LayerPainter::drawPicture()
{
    {
        QPainter painter(&d->picture.image());
        painter.setLayoutDirection(Qt::LeftToRight); // whatever the host's is
        if (coverage() == Coverage::Whole || coverage() == Coverage::Opaque)
            painter.setCompositionMode(QPainter::CompositionMode_Source); // over its last picture
        draw(painter, size());
    }
    d->picture.end(d->value ? d->value->reach(size()) : QVector<QRect>());
}

void LayerPainter::addTo(Composition& chart)
{
    const bool isPicture = !d->value || !d->value->drawsOnLayersBelow() || !isDrawable();
    if (!showsOwnPicture())
        chart.add([other = pixmap(Qt::ReturnByValue).toImage()](QPainter& painter, const QRect&) {
            painter.drawImage(0, 0, other);
        });
    else if (isPicture)
        chart.add(d->picture, size());
    else
        chart.add(*d->value, size());
}

bool LayerPainter::showsOwnPicture() const
{
    return d->renderedKey == pixmap(Qt::ReturnByValue).cacheKey();
}

bool LayerPainter::sourceChanged() const
{
    return false;
}

void LayerPainter::render()
{
    renderTogether({this});
}

/// Values are drawn on all cores; texts, and what draws itself, in this thread.
void LayerPainter::renderTogether(const Layers& layers)
{
    Layers here;
    Layers anywhere;
    for (LayerPainter* layer : layers) {
        layer->d->changed = false;
        layer->d->renderedSize = layer->size();
        layer->d->renderedFont = QGuiApplication::font();
        layer->d->begun = layer->beginPicture();
        const bool isFree = layer->d->value && !layer->d->value->hasTexts();
        if (layer->d->begun)
            (isFree ? anywhere : here).push_back(layer);
    }
    const auto drawHere = [&here] {
        std::for_each(here.begin(), here.end(), std::mem_fn(&LayerPainter::drawPicture));
    };
    inParallel(
        int(anywhere.size()), [&anywhere](int i) { anywhere[std::size_t(i)]->drawPicture(); }, drawHere);
    for (LayerPainter* layer : layers)
        layer->endRender();
}

void LayerPainter::endRender()
{
    if (d->begun)
        setPixmap(d->picture.pixmap());
    d->renderedKey = pixmap(Qt::ReturnByValue).cacheKey();
}

void LayerPainter::layerChanged()
{
    if (d->held)
        d->changed = true;
    else
        render();
}

void LayerPainter::refresh()
{
    refresh({this});
}

void LayerPainter::refresh(const Layers& layers)
{
    Layers stale;
    std::copy_if(layers.begin(), layers.end(), std::back_inserter(stale),
                 [](const LayerPainter* layer) { return layer->isStale(); });
    renderTogether(stale);
}

bool LayerPainter::isStale() const
{
    return d->changed || d->renderedSize != size() || !showsOwnPicture() ||
           d->renderedFont != QGuiApplication::font() || sourceChanged();
}

} // namespace vardeno::testcharttools
