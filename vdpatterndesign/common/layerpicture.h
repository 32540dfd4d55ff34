#pragma once

#include "common/ink.h"
#include "layerpainter.h"

#include <QPixmap>

namespace vardeno::testcharttools {

/// A picture that something is drawn on again and again, and that knows where its ink is.
class LayerPicture
{
public:
    using Coverage = LayerPainter::Coverage;

    /// A picture of `size` to draw on, in the memory of the one before unless that has another size or
    /// someone else still holds it. It is transparent, unless all of it is going to be written.
    QImage& begin(const QSize& size, Coverage coverage = Coverage::Unknown);

    /// Call after drawing: the picture, without a copy.
    QPixmap finish();

    const Ink& ink() const { return m_ink; }

private:
    QImage m_image;
    Coverage m_coverage = Coverage::Unknown;
    Ink m_ink;
};

} // namespace vardeno::testcharttools
