#include "showdocument.h"

#include "distinctcolor.h"

#include <algorithm>

namespace vardeno::walls {

namespace {

template <typename Item>
int numberOf(const std::vector<Item>& list, const std::string& name)
{
    const auto found =
        std::find_if(list.begin(), list.end(), [&](const Item& item) { return item.name == name; });
    return found == list.end() ? -1 : int(found - list.begin());
}

} // namespace

int findOutput(const ShowDocument& show, const std::string& name)
{
    return numberOf(show.outputs.list, name);
}

int findWall(const ShowDocument& show, const std::string& name)
{
    return numberOf(show.walls.list, name);
}

QColor colorOf(const ShowDocument& show, int wall)
{
    const WallColor& color = show.walls.list[std::size_t(wall)].color;
    return color.isGiven ? testcharttools::toQColor(color.value) : distinctColor(wall);
}

} // namespace vardeno::walls
