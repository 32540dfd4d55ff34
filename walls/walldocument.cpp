#include "walldocument.h"

#include <numeric>

namespace vardeno::walls {

int CabinetSizes::total() const
{
    return std::accumulate(pixels.begin(), pixels.end(), 0);
}

WallDocument::WallDocument()
    : columnWidths{std::vector<int>(15, 128)}
    , rowHeights{std::vector<int>(9, 128)}
{
}

} // namespace vardeno::walls
