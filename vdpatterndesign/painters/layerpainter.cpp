#include "layerpainter.h"

#include "layers/chartlayer.h"
#include "layers/layerpicture.h"
#include "painters/paintpace.h"

#include <QFont>
#include <QGuiApplication>
#include <QPainter>

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
    d->held = held;
    if (!held && d->changed)
        render();
}

bool LayerPainter::coversItsArea()
{
    refresh();
    return showsOwnPicture() && d->picture.ink().opaque && pixmap(Qt::ReturnByValue).size() == size();
}

void LayerPainter::paintEvent(QPaintEvent* event)
{
    d->pace.begin();
    refresh();
    Q_EMIT sigPaintEventUpdated();
    paintStored(event);
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

void LayerPainter::draw(QPainter& painter, const QSize& size)
{
    if (!d->value)
        return;
    d->value->fit(size);
    d->value->draw(painter, size);
}

void LayerPainter::renderPicture()
{
    if (size().isEmpty() || !isDrawable())
        return;
    clear(); // lets go of the picture, which is then drawn on again
    QImage& image = d->picture.begin(size(), coverage());
    if (image.isNull())
        return;
    QPainter painter(&image);
    painter.setLayoutDirection(Qt::LeftToRight); // whatever the host's is
    if (coverage() == Coverage::Whole || coverage() == Coverage::Opaque)
        painter.setCompositionMode(QPainter::CompositionMode_Source); // over its last picture
    draw(painter, image.size());
    painter.end();
    setPixmap(d->picture.finish());
}

/// Not as the label's style would: a style sheet of the host, or a host that is disabled, must not get into
/// the chart.
void LayerPainter::paintStored(QPaintEvent*)
{
    QPainter painter(this);
    if (showsOwnPicture())
        d->picture.paint(painter);
    else
        painter.drawPixmap(0, 0, pixmap(Qt::ReturnByValue));
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
    d->changed = false;
    d->renderedSize = size();
    d->renderedFont = QGuiApplication::font();
    renderPicture();
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
    if (d->changed || d->renderedSize != size() || !showsOwnPicture() ||
        d->renderedFont != QGuiApplication::font() || sourceChanged())
        render();
}

} // namespace vardeno::testcharttools
