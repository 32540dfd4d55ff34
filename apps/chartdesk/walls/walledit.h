#pragma once

#include <walldocument.h>

#include <set>
#include <utility>
#include <vector>

/// Changes to walls, as values: each function returns the changed wall, or the same where the change would
/// leave none that can be built. Runs by hand lose what is no longer there.
namespace WallEdit {

using vardeno::walls::Place;
using vardeno::walls::WallDocument;

/// By row and column, each place once.
struct ByRow
{
    bool operator()(Place a, Place b) const
    {
        return std::make_pair(a.row, a.column) < std::make_pair(b.row, b.column);
    }
};
using Places = std::set<Place, ByRow>;

/// Each of these columns or rows wider or higher by so many pixels, or of exactly so many.
WallDocument widened(WallDocument wall, const Places& places, int pixels);
WallDocument heightened(WallDocument wall, const Places& places, int pixels);
WallDocument withWidth(WallDocument wall, const Places& places, int pixels);
WallDocument withHeight(WallDocument wall, const Places& places, int pixels);

/// What is added is as large as the last column or row.
WallDocument withGrid(WallDocument wall, int columns, int rows);

WallDocument withMissing(WallDocument wall, const Places& places, bool isMissing);
/// Clockwise by 90 degrees.
WallDocument turned(WallDocument wall, const Places& places);
WallDocument named(WallDocument wall, Place place, const std::string& name);

enum class Cable
{
    Data,
    Power
};

/// A run by hand through these cabinets, which leave the runs that they were in. Runs by the pattern become
/// runs by hand first, so that the others stay as they are.
WallDocument withRun(WallDocument wall, Cable cable, const std::vector<Place>& run);
/// By the pattern again.
WallDocument withoutRuns(WallDocument wall, Cable cable);

/// Which exception of the wall's list has which place of its grid, row by row; -1 for none.
std::vector<int> exceptionIndices(const WallDocument& wall);

/// What is said of the cabinet or hole at `place`; that of a usual one where nothing is.
vardeno::walls::CabinetException exceptionAt(const WallDocument& wall, Place place);

} // namespace WallEdit
