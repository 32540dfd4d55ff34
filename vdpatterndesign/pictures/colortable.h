#pragma once

#include <QImage>

#include <array>
#include <vector>

namespace vardeno::testcharttools {

/// The colours of a picture, as long as there are at most 256 of them.
class ColorTable
{
public:
    ColorTable();

    /// Adds the colours of an image of the format RGB32. False where there would be more than 256.
    bool add(const QImage& image);

    /// The place of a colour that has been added.
    uchar indexOf(QRgb color) const { return uchar(m_indices[slotOf(color)]); }

    /// In the order in which they were added.
    const std::vector<QRgb>& colors() const { return m_colors; }

private:
    bool add(QRgb color);
    std::size_t slotOf(QRgb color) const;

    static constexpr std::size_t slotCount = 1024; // a quarter of them at the most is taken
    std::array<int, slotCount> m_indices;          ///< -1: free
    std::vector<QRgb> m_colors;
};

} // namespace vardeno::testcharttools
