#pragma once

#include "vdchartcore_export.h"

#include <QSize>

class QImageReader;

namespace vardeno::testcharttools {

/// How large the picture becomes that `reader` is to read, in pixels: as its own `size`, but never less than
/// what is decoded. The height of a BMP file is told below 0 where its rows begin at the top, and a GIF file
/// as its first frame, though the whole screen is decoded. Invalid where the format does not tell.
VDCHARTCORE_EXPORT QSize toldSize(QImageReader& reader);

} // namespace vardeno::testcharttools
