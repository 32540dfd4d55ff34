#pragma once

#include "common/ink.h"

#include <QPixmap>

class QPainter;

namespace vardeno::testcharttools {

/// A transparent picture that something is drawn on again and again, and that knows where its ink is.
class LayerPicture
{
public:
    /// A transparent picture of `size` to draw on. It is the one that was drawn on before, unless that has
    /// another size or someone else still holds it.
    QImage& blank(const QSize& size);

    /// Call after drawing: the picture, without a copy.
    QPixmap finished();

    const Ink& ink() const { return m_ink; }

private:
    QImage m_image;
    Ink m_ink;
};

} // namespace vardeno::testcharttools
