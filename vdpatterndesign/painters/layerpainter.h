#pragma once

#include "layercoverage.h"
#include "vdpatterndesign_export.h"

#include <QLabel>
#include <QPixmap>

#include <memory>
#include <vector>

namespace vardeno::testcharttools {

class ChartLayer;
class Composition;
class LayerStack;

/// One layer of the chart: a label that shows one transparent pixmap of its own size.
///
/// This base owns the way in which all layers work; a layer holds a value that draws it, and a setter for
/// each of the value's fields. A setter that changes something renders the layer at once. A paint event
/// renders only when the stored picture is no longer what a fresh render would give, then reports, then
/// paints. While the layer is shown each paint asks for another, in under two percent of a core. Sizes are
/// chart pixels. GUI thread only.
class VDPATTERNDESIGN_EXPORT LayerPainter : public QLabel
{
    Q_OBJECT

public:
    using Coverage = LayerCoverage;

    explicit LayerPainter(QWidget* parent = nullptr);
    ~LayerPainter() override;

    using QLabel::render; // which the next one would hide
    /// Renders the layer now, whether or not anything has changed.
    void render();

    /// Held, setters only note that something has changed; the layer renders once when it is let go, if need
    /// be.
    void setHeld(bool held);

Q_SIGNALS:
    /// Sent by every paint event, after the layer's picture is up to date and before it is painted.
    void sigPaintEventUpdated();

protected:
    void paintEvent(QPaintEvent* event) override;

    /// Has the layer drawn by `value`, which the next three functions then ask; a layer without one overrides
    /// `draw`.
    void drawWith(ChartLayer& value);

    /// Whether there is anything to draw from. A layer for which there is not stays with the picture it had.
    virtual bool isDrawable() const;
    /// What `draw` is about to do. Where it writes every pixel, it may find its last picture on what it draws
    /// on.
    virtual Coverage coverage() const;
    /// Makes the value ready to be drawn in the layer's size (never empty).
    virtual void prepare();
    /// Draws the layer with `painter` on a transparent picture of `size` (never empty); the base has the
    /// value draw it.
    virtual void draw(QPainter& painter, const QSize& size);

    /// Begins to make the label's picture anew. The base begins a transparent one of the layer's size.
    /// Whether it is to be drawn on.
    virtual bool beginPicture();

    /// Adds what the layer shows to a chart. The base adds its picture, at the top left.
    virtual void addTo(Composition& chart);

    /// Whether the label's picture is the one that was rendered last, not one that someone else gave it.
    bool showsOwnPicture() const;

    /// Whether anything that the layer is drawn from besides its own fields and its size has changed since it
    /// was last drawn. Asked at every paint.
    virtual bool sourceChanged() const;

    /// Stores `value` and renders the layer, unless the field already has that value.
    template <typename Field>
    void assign(Field& field, const Field& value)
    {
        if (field == value)
            return;
        field = value;
        layerChanged();
    }

    /// Renders the layer, or notes that it is to be rendered while it is held.
    void layerChanged();
    /// Renders the layer if its picture is not what a fresh render would give.
    void refresh();

private:
    friend class LayerStack;
    using Layers = std::vector<LayerPainter*>;
    static void setHeld(const Layers& layers, bool held);
    static void refresh(const Layers& layers);
    static void renderTogether(const Layers& layers);
    bool isStale() const;
    void drawPicture();
    void endRender();

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
