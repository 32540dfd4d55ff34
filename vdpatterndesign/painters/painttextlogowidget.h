#pragma once

#include "layerpainter.h"

#include <memory>

namespace vardeno::testcharttools {

/// The text logo of the chart.
class VDPATTERNDESIGN_EXPORT PaintTextLogoWidget : public LayerPainter
{
    Q_OBJECT

public:
    explicit PaintTextLogoWidget(QWidget* parent = nullptr);
    ~PaintTextLogoWidget() override;

    void setText(QString text);
    /// The colour's alpha gives way to the opacity.
    void setTextColor(const QColor& color);
    /// The font's pixel size; reduced until the text takes at most 80 % of the chart's width and height.
    void setTextSize(int pixels);
    void setOpacity(int percent);

    /// The anchor: 0 centre, 1 left up, 2 left down, 3 right up, 4 right down.
    void setPosition(int index);
    /// The user's shift from the anchor, chart pixels; the text stays on the chart.
    void setMoveX(int pixels);
    void setMoveY(int pixels);

    /// What the last render left of the shift, and the font size that it drew.
    int appliedMoveX() const;
    int appliedMoveY() const;
    int fittedSize() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
