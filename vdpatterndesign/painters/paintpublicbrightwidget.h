#pragma once

#include "layerpainter.h"

#include <memory>

namespace vardeno::testcharttools {

/// The brightness veil: an even, translucent black over the layers below it, which shows the chart as a
/// darker screen would.
class VDPATTERNDESIGN_EXPORT PaintPublicBrightWidget : public LayerPainter
{
    Q_OBJECT

public:
    explicit PaintPublicBrightWidget(QWidget* parent = nullptr);
    ~PaintPublicBrightWidget() override;

    /// Percent, 0 (black) to 100 (no veil).
    void setBrightness(ushort percent);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
