#pragma once

#include "layerpainter.h"

#include <memory>

namespace vardeno::testcharttools {

/// The inline graphics of the chart: the diagonals of the whole screen, a circle against each of two opposite
/// edges, and a label in every cabinet. Sizes and widths are chart pixels.
class VDPATTERNDESIGN_EXPORT PaintInLineWidget : public LayerPainter
{
    Q_OBJECT

public:
    explicit PaintInLineWidget(QWidget* parent = nullptr);
    ~PaintInLineWidget() override;

    void setCircleVisible(bool visible);
    void setCircleColor(const QColor& color);
    void setCircleLineWidth(ushort width);
    /// The circles are drawn with twice this radius as their diameter, at most with the chart's shorter side.
    void setCircleRadius(ushort radius);

    void setDiagonalVisible(bool visible);
    void setDiagonalColor(const QColor& color);
    void setDiagonalLineWidth(ushort width);

    void setSerialVisible(bool visible);
    void setSerialColor(const QColor& color);
    /// The font's pixel size; reduced, down to 1, until a label fits its cabinet.
    void setSerialSize(ushort pixelSize);
    /// 0 letters, 1 numbers, 2 letter and number; any other value draws no labels. So for sort and position.
    void setSerialMode(uint mode);
    /// 0 to 3: rows are counted from the bottom with 2 and 3, columns from the right with 1 and 3.
    void setSerialSort(uint sort);
    /// 0 one text in the centre, 1 left up and right down, 2 left down and right up.
    void setSerialPosition(uint position);

    /// A coded marker in every cabinet that has room for one; at first there is none.
    void setMarkersVisible(bool visible);
    bool areMarkersVisible() const;

    /// The screen's cabinet rows and columns.
    void setRows(ushort rows);
    void setColumns(ushort columns);

    /// The circles' outer diameter and the labels' font size, as the last render drew them.
    ushort effectiveDiameter() const;
    ushort workingSerialSize() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
