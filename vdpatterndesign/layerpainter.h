#pragma once

#include "vdpatterndesign_export.h"

#include <QLabel>
#include <QPixmap>

#include <optional>

namespace vardeno::testcharttools {

/// One layer of the chart: a label that shows one transparent pixmap of its own size.
///
/// This base owns the way in which all layers work; a layer holds its fields, a setter for each, and `draw`.
/// A setter that changes something renders the layer at once. A paint event renders only when the stored
/// picture is no longer what a fresh render would give, then reports, then paints; so a layer at rest stays
/// at rest. Sizes are chart pixels. GUI thread only.
class VDPATTERNDESIGN_EXPORT LayerPainter : public QLabel
{
    Q_OBJECT

public:
    explicit LayerPainter(QWidget* parent = nullptr);
    ~LayerPainter() override;

    /// Renders the layer now, whether or not anything has changed.
    void render();

Q_SIGNALS:
    /// Sent by every paint event, after the layer's picture is up to date and before it is painted.
    void sigPaintEventUpdated();

protected:
    void paintEvent(QPaintEvent* event) override;

    /// Draws the layer with `painter` on a transparent picture of `size` (never empty). Returns false to
    /// leave the layer with the picture it had.
    virtual bool draw(QPainter& painter, const QSize& size) = 0;

    /// The layer's picture; none to leave the layer with the one it had. The base draws a transparent picture
    /// of the layer's size.
    virtual std::optional<QPixmap> renderedPicture();

    /// Paints the stored picture; the base paints it at the top left.
    virtual void paintStored(QPaintEvent* event);

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
        render();
    }

private:
    bool isStale() const;

    QSize m_renderedSize;
    qint64 m_renderedKey = 0; ///< identifies the picture of the last render
};

} // namespace vardeno::testcharttools
