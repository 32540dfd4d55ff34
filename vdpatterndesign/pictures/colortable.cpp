#include "pictures/colortable.h"

#include <cstring>

namespace vardeno::testcharttools {

namespace {

constexpr std::size_t mostColors = 256;

const QRgb* rowOf(const QImage& image, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

} // namespace

ColorTable::ColorTable()
{
    m_indices.fill(-1);
}

/// Linear probing: where the colour is, or where it would be.
std::size_t ColorTable::slotOf(QRgb color) const
{
    std::size_t slot = (color * 0x9e3779b1U) >> 22U;
    while (m_indices[slot] >= 0 && m_colors[std::size_t(m_indices[slot])] != color)
        slot = (slot + 1) % slotCount;
    return slot;
}

bool ColorTable::add(QRgb color)
{
    int& index = m_indices[slotOf(color)];
    if (index >= 0)
        return true;
    if (m_colors.size() == mostColors)
        return false;
    index = int(m_colors.size());
    m_colors.push_back(color);
    return true;
}

/// Rows that repeat the one above, and pixels that repeat the one before, are most of a chart.
bool ColorTable::add(const QImage& image)
{
    const int width = image.width();
    const auto bytes = std::size_t(width) * sizeof(QRgb);
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* const row = rowOf(image, y);
        if (y > 0 && std::memcmp(row, rowOf(image, y - 1), bytes) == 0)
            continue;
        for (int x = 0; x < width; ++x) {
            if ((x == 0 || row[x] != row[x - 1]) && !add(row[x]))
                return false;
        }
    }
    return true;
}

} // namespace vardeno::testcharttools
