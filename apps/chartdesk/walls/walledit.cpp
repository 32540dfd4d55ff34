#include "walledit.h"

#include <cabinetplan.h>
#include <cableruns.h>

#include <algorithm>

using namespace vardeno::walls;

namespace WallEdit {

namespace {

constexpr int leastSide = 16; // of a document, as the most
constexpr int mostSide = 32768;

bool covers(const CabinetException& cabinet, Place place)
{
    return place.column >= cabinet.at.column && place.column < cabinet.at.column + cabinet.columns &&
           place.row >= cabinet.at.row && place.row < cabinet.at.row + cabinet.rows;
}

bool isUsual(const CabinetException& cabinet)
{
    return !cabinet.missing && cabinet.turned == 0 && cabinet.columns == 1 && cabinet.rows == 1 &&
           cabinet.name.empty() && cabinet.others.isEmpty();
}

/// Calls `edit` for what stands at each of the places, once.
template <typename Edit>
void editEach(WallDocument& wall, const Places& places, Edit edit)
{
    std::vector<int> indices = exceptionIndices(wall);
    std::set<int> done;
    for (const Place place : places) {
        int& index = indices[std::size_t(place.row) * std::size_t(wall.columnWidths.count()) +
                             std::size_t(place.column)];
        if (index < 0) {
            index = int(wall.exceptions.list.size());
            CabinetException added;
            added.at = place;
            wall.exceptions.list.push_back(added);
        }
        if (done.insert(index).second)
            edit(wall.exceptions.list[std::size_t(index)]);
    }
    auto& list = wall.exceptions.list;
    list.erase(std::remove_if(list.begin(), list.end(), isUsual), list.end());
}

/// Leaves what is a cabinet in them, and each cabinet by one place.
void mendRuns(CableLists& lists, const CabinetPlan& plan)
{
    for (std::vector<Place>& run : lists.runs) {
        const auto isGone = [&plan](Place place) {
            return place.column >= plan.columns() || place.row >= plan.rows() || plan.cabinetAt(place) < 0;
        };
        run.erase(std::remove_if(run.begin(), run.end(), isGone), run.end());
    }
    auto& runs = lists.runs;
    runs.erase(std::remove_if(runs.begin(), runs.end(), [](const auto& run) { return run.empty(); }),
               runs.end());
}

WallDocument mended(WallDocument wall, const WallDocument& before)
{
    const CabinetPlan plan(wall);
    if (plan.cabinets().empty())
        return before;
    mendRuns(wall.data.path.byHand, plan);
    mendRuns(wall.power.path.byHand, plan);
    return wall;
}

void resizeEach(CabinetSizes& sizes, const std::set<int>& which, int pixels, bool isChange)
{
    CabinetSizes changed = sizes;
    for (const int index : which) {
        int& size = changed.pixels[std::size_t(index)];
        size = std::max(1, isChange ? size + pixels : pixels);
    }
    if (changed.total() >= leastSide && changed.total() <= mostSide)
        sizes = changed;
}

std::set<int> columnsOf(const Places& places)
{
    std::set<int> columns;
    for (const Place place : places)
        columns.insert(place.column);
    return columns;
}

std::set<int> rowsOfPlaces(const Places& places)
{
    std::set<int> rows;
    for (const Place place : places)
        rows.insert(place.row);
    return rows;
}

CablePath& pathOf(WallDocument& wall, Cable cable)
{
    return cable == Cable::Data ? wall.data.path : wall.power.path;
}

/// What the pattern makes, as lists.
void takeRunsInHand(WallDocument& wall, const CabinetPlan& plan, Cable cable)
{
    CableLists& lists = pathOf(wall, cable).byHand;
    if (!lists.runs.empty())
        return;
    for (const CableRun& run : cable == Cable::Data ? dataRuns(wall, plan) : powerRuns(wall, plan)) {
        lists.runs.emplace_back();
        for (const int cabinet : run.cabinets)
            lists.runs.back().push_back(plan.cabinets()[std::size_t(cabinet)].at);
    }
}

} // namespace

std::vector<int> exceptionIndices(const WallDocument& wall)
{
    const int columns = wall.columnWidths.count();
    std::vector<int> indices(std::size_t(columns) * std::size_t(wall.rowHeights.count()), -1);
    for (std::size_t i = 0; i < wall.exceptions.list.size(); ++i) {
        const CabinetException& cabinet = wall.exceptions.list[i];
        for (int row = cabinet.at.row; row < cabinet.at.row + cabinet.rows; ++row) {
            for (int column = cabinet.at.column; column < cabinet.at.column + cabinet.columns; ++column)
                indices[std::size_t(row) * std::size_t(columns) + std::size_t(column)] = int(i);
        }
    }
    return indices;
}

WallDocument widened(WallDocument wall, const Places& places, int pixels)
{
    resizeEach(wall.columnWidths, columnsOf(places), pixels, true);
    return wall;
}

WallDocument heightened(WallDocument wall, const Places& places, int pixels)
{
    resizeEach(wall.rowHeights, rowsOfPlaces(places), pixels, true);
    return wall;
}

WallDocument withWidth(WallDocument wall, const Places& places, int pixels)
{
    resizeEach(wall.columnWidths, columnsOf(places), pixels, false);
    return wall;
}

WallDocument withHeight(WallDocument wall, const Places& places, int pixels)
{
    resizeEach(wall.rowHeights, rowsOfPlaces(places), pixels, false);
    return wall;
}

WallDocument withGrid(WallDocument wall, int columns, int rows)
{
    const WallDocument before = wall;
    wall.columnWidths.pixels.resize(std::size_t(columns), before.columnWidths.pixels.back());
    wall.rowHeights.pixels.resize(std::size_t(rows), before.rowHeights.pixels.back());
    for (const int total : {wall.columnWidths.total(), wall.rowHeights.total()}) {
        if (total < leastSide || total > mostSide)
            return before;
    }
    auto& list = wall.exceptions.list;
    const auto isOutside = [=](const CabinetException& cabinet) {
        return cabinet.at.column >= columns || cabinet.at.row >= rows;
    };
    list.erase(std::remove_if(list.begin(), list.end(), isOutside), list.end());
    for (CabinetException& cabinet : list) {
        cabinet.columns = std::min(cabinet.columns, columns - cabinet.at.column);
        cabinet.rows = std::min(cabinet.rows, rows - cabinet.at.row);
    }
    return mended(std::move(wall), before);
}

WallDocument withMissing(WallDocument wall, const Places& places, bool isMissing)
{
    const WallDocument before = wall;
    editEach(wall, places, [isMissing](CabinetException& cabinet) { cabinet.missing = isMissing; });
    return mended(std::move(wall), before);
}

WallDocument turned(WallDocument wall, const Places& places)
{
    editEach(wall, places, [](CabinetException& cabinet) {
        if (!cabinet.missing)
            cabinet.turned = (cabinet.turned + 90) % 360;
    });
    return wall;
}

WallDocument named(WallDocument wall, Place place, const std::string& name)
{
    editEach(wall, {place}, [&name](CabinetException& cabinet) { cabinet.name = name; });
    return wall;
}

WallDocument withRun(WallDocument wall, Cable cable, const std::vector<Place>& run)
{
    const CabinetPlan plan(wall);
    takeRunsInHand(wall, plan, cable);
    std::set<int> taken;
    std::vector<Place> places;
    for (const Place place : run) {
        const int cabinet = plan.cabinetAt(place);
        if (cabinet >= 0 && taken.insert(cabinet).second)
            places.push_back(plan.cabinets()[std::size_t(cabinet)].at);
    }
    if (places.empty())
        return wall;
    CableLists& lists = pathOf(wall, cable).byHand;
    for (std::vector<Place>& other : lists.runs)
        other.erase(std::remove_if(other.begin(), other.end(),
                                   [&](Place place) { return taken.count(plan.cabinetAt(place)) > 0; }),
                    other.end());
    lists.runs.push_back(places);
    mendRuns(lists, plan);
    return wall;
}

WallDocument withoutRuns(WallDocument wall, Cable cable)
{
    pathOf(wall, cable).byHand.runs.clear();
    return wall;
}

CabinetException exceptionAt(const WallDocument& wall, Place place)
{
    const auto& list = wall.exceptions.list;
    const auto found = std::find_if(list.begin(), list.end(), [place](const CabinetException& cabinet) {
        return covers(cabinet, place);
    });
    if (found != list.end())
        return *found;
    CabinetException usual;
    usual.at = place;
    return usual;
}

} // namespace WallEdit
