#pragma once

#include <QLabel>
#include <QPen>

namespace vardeno::testcharttools {

/// One layer of the reference chart: a label that shows one transparent pixmap of its own size.
///
/// Nothing is kept from one rendering to the next, and nothing is left out: every setter that changes its
/// field and every paint renders the whole layer afresh.
class ReferenceLayer : public QLabel
{
    Q_OBJECT

public:
    ReferenceLayer();

    /// Renders the layer now and hands the picture to the label.
    virtual void renderLayer();

Q_SIGNALS:
    void sigPaintEventUpdated();

protected:
    void paintEvent(QPaintEvent* event) override;

    /// Returns false to leave the label with the picture it had.
    virtual bool draw(QPainter& painter) = 0;

    template <typename Field>
    void assign(Field& field, const Field& value)
    {
        if (field == value)
            return;
        field = value;
        renderLayer();
    }
};

/// The pen of all lines and cabinet labels.
QPen referencePen(const QColor& color, double width);

/// Gives `painter` the text family in the first size from `requested` downwards, pixel by pixel, in which
/// `text` is at most `widthLimit` wide and `heightLimit` high, and returns the size; 0 where none is.
int setFittedFont(QPainter& painter, const QString& text, int requested, double widthLimit,
                  double heightLimit);

} // namespace vardeno::testcharttools
