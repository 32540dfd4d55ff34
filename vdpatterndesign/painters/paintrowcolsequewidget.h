#pragma once

#include "layerpainter.h"

#include <memory>

namespace vardeno::testcharttools {

/// The cabinet grid of the chart: the lines between the cabinets, and a label in every cabinet. With both
/// switched off, as at first, the layer is transparent.
class VDPATTERNDESIGN_EXPORT PaintRowColSequeWidget : public LayerPainter
{
    Q_OBJECT

public:
    explicit PaintRowColSequeWidget(QWidget* parent = nullptr);
    ~PaintRowColSequeWidget() override;

    /// The screen's cabinet rows and columns.
    void setRows(ushort rows);
    void setColumns(ushort columns);

    void setRowColVisible(bool visible);
    void setRowColColor(const QColor& color);

    void setSequeVisible(bool visible);
    void setSequeColor(const QColor& color);
    /// The font's pixel size; reduced, down to 1, until a label fits its cabinet.
    void setSequeSize(ushort pixelSize);
    /// 0 letters, 1 numbers, 2 letter and number; any other value draws no labels. So for sort and location.
    void setShowModel(int model);
    /// 0 to 3: rows are counted from the bottom with 2 and 3, columns from the right with 1 and 3.
    void setSortType(int sort);
    /// 0 one text in the centre, 1 left up and right down, 2 left down and right up.
    void setLocation(int location);

    /// The labels' font size as the last render drew them, not the one that was set.
    int sequeSize() const;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
