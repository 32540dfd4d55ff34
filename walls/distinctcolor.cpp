#include "distinctcolor.h"

namespace vardeno::walls {

namespace {

/// Far apart from their neighbours, and light enough for dark texts.
constexpr QRgb palette[] = {0xffffd400, 0xff19c3ff, 0xffff6fb0, 0xff6fe84b, 0xffff9233, 0xffb79bff,
                            0xff00d9a6, 0xffff7266, 0xff9fc2ff, 0xffd2dc2a, 0xffe0b483, 0xffe6a3e8};
constexpr int paletteSize = int(sizeof(palette) / sizeof(palette[0]));

} // namespace

QColor distinctColor(int number)
{
    return QColor(palette[number % paletteSize]);
}

} // namespace vardeno::walls
