#pragma once

#include "layerpainter.h"

#include <memory>

namespace vardeno::testcharttools {

/// The texts of the chart: a line of the user's, and below it an information line with the chart's size in
/// pixels and the number of cabinets. Both stand centred in the lower part of the chart. Sizes are font pixel
/// sizes, reduced until a line fits the chart.
class VDPATTERNDESIGN_EXPORT PaintSelfWidget : public LayerPainter
{
    Q_OBJECT

public:
    explicit PaintSelfWidget(QWidget* parent = nullptr);
    ~PaintSelfWidget() override;

    void setSelfTextVisible(bool visible);
    void setSelfText(QString text);
    void setSelfTextColor(const QColor& color);
    void setSelfTextSize(ushort pixelSize);

    /// The information line; without it the number of cabinets is not shown either.
    void setResolutionVisible(bool visible);
    void setResolutionColor(const QColor& color);
    void setResolutionSize(ushort pixelSize);

    void setBoxNumVisible(bool visible);
    /// Kept; the whole information line has the resolution's colour.
    void setBoxNumColor(const QColor& color);

    /// The screen's cabinet rows and columns.
    void setRows(ushort rows);
    void setColumns(ushort columns);

    /// The sizes as the last render drew them.
    int selfTextSize() const;
    int resolutionSize() const;

    /// Shows the captions of the information line in the current language; before the first call they are
    /// empty.
    void retranslate();

protected:
    void showEvent(QShowEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
