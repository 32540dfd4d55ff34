#pragma once

#include "layercoverage.h"
#include "layers/ink.h"
#include "vdchartcore_export.h"

#include <QPixmap>

class QPainter;

namespace vardeno::testcharttools {

/// A picture that something is drawn on again and again, and that knows where its ink is.
class VDCHARTCORE_EXPORT LayerPicture
{
public:
    using Coverage = LayerCoverage;

    /// A picture of `size` to draw on, in the memory of the one before unless that has another size or
    /// someone else still holds it. It is transparent, unless all of it is going to be written.
    QImage& begin(const QSize& size, Coverage coverage = Coverage::Unknown);

    /// The picture that has begun.
    QImage& image() { return m_image; }

    /// Call after drawing. Ink is looked for in `reach`; everywhere, where it is empty.
    void end(const QVector<QRect>& reach = {});
    /// The picture, without a copy. GUI thread.
    QPixmap pixmap() const;
    /// Both of them.
    QPixmap finish();

    /// Paints the picture at the origin: only its ink, and that as it is where nothing shines through.
    void paint(QPainter& painter) const;
    /// The same of what is in `area`.
    void paint(QPainter& painter, const QRect& area) const;

    QSize size() const { return m_image.size(); }

    const Ink& ink() const { return m_ink; }

private:
    QImage m_image;
    Coverage m_coverage = Coverage::Unknown;
    Ink m_ink;
};

} // namespace vardeno::testcharttools
