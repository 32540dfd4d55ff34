#pragma once

#include "layerpainter.h"

#include <memory>

class QListWidget;

namespace vardeno::testcharttools {

/// The bottom layer of the chart: a chessboard of the screen's cabinets, a horizontal gradient, or vertical
/// colour stripes.
///
/// Gradient and stripes take their colours from the background brushes of the items of a list that the
/// settings panel owns, in the list's order; a list that has been deleted counts as empty. The layer looks at
/// the list at every paint, so a change of its items is shown by the next paint.
class VDPATTERNDESIGN_EXPORT PaintBasicWidget : public LayerPainter
{
    Q_OBJECT

public:
    explicit PaintBasicWidget(QWidget* parent = nullptr);
    ~PaintBasicWidget() override;

    /// 0 chessboard, 1 gradient, 2 colour stripes; with any other value the layer is transparent.
    void setMode(uint mode);
    uint mode() const;

    /// The colour of the chess cells whose row + column (0-based) is even, the top left cell among them.
    void setOddColor(const QColor& color);
    /// The colour of the chess cells whose row + column is odd.
    void setEvenColor(const QColor& color);

    /// Cabinet rows and columns; while either is 0 the chessboard keeps the picture it had.
    void setRows(ushort rows);
    void setColumns(ushort columns);

    /// Kept for the panel; the drawing reads the colour stripe list in both colour bar modes.
    void setGradientList(QListWidget* list);
    void setColorStripeList(QListWidget* list);

protected:
    void prepare() override;
    bool sourceChanged() const override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
