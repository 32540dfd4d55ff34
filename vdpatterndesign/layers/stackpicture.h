#pragma once

#include "vdchartcore_export.h"

#include <QImage>

#include <functional>
#include <vector>

namespace vardeno::testcharttools {

class ChartLayer;
class LayerPicture;

/// The picture of layers that lie on one another, drawn on all cores: a small one at once, a large one in
/// tiles. It holds the layers by address; they have been fitted to `size`. For any thread.
class VDCHARTCORE_EXPORT StackPicture
{
public:
    /// Bottom to top.
    StackPicture(const QSize& size, std::vector<const ChartLayer*> layers);

    QSize size() const { return m_size; }
    /// Whether rows are drawn for themselves.
    bool isDrawnInParts() const;
    /// `count` rows from the row `top` on, opaque (RGB32). Null where there is not enough memory.
    QImage rows(int top, int count) const;
    /// Likewise what is in `area`, which lies within the picture.
    QImage area(const QRect& area) const;

    /// `rows` for one thread that asks for strip after strip: of a small picture the layers are drawn once,
    /// at the first strip, and kept.
    std::function<QImage(int top, int count)> strips() const;

private:
    bool drawTiles(QImage& part, const QPoint& origin) const;
    bool drawTile(QImage& tile, const QPoint& at) const;

    QSize m_size;
    std::vector<const ChartLayer*> m_layers;
};

} // namespace vardeno::testcharttools
