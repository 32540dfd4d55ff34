#pragma once

#include "layerpainter.h"

#include <memory>

namespace vardeno::testcharttools {

/// The top layer of the chart: its outer border, flush with the chart's edges.
class VDPATTERNDESIGN_EXPORT PaintPublicWidget : public LayerPainter
{
    Q_OBJECT

public:
    explicit PaintPublicWidget(QWidget* parent = nullptr);
    ~PaintPublicWidget() override;

    void setOutLineVisible(bool visible);
    /// Chart pixels.
    void setOutLineWidth(int width);
    void setOutLineColor(const QColor& color);

    /// The cabinet grid, which the panel tells every layer; no line of it is drawn here.
    void setRows(ushort rows);
    void setColumns(ushort columns);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
