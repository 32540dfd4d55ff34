#pragma once

#include <cabinetplan.h>

#include <vector>

/// Walls for tests.
inline vardeno::walls::WallDocument wallOf(std::vector<int> widths, std::vector<int> heights)
{
    vardeno::walls::WallDocument wall;
    wall.columnWidths.pixels = std::move(widths);
    wall.rowHeights.pixels = std::move(heights);
    return wall;
}

/// Three rows of four cabinets of 32 x 32 pixels:
///     0  1  2  3
///     4  5  6  7
///     8  9 10 11
inline vardeno::walls::WallDocument smallWall()
{
    return wallOf({32, 32, 32, 32}, {32, 32, 32});
}

inline vardeno::walls::CabinetException missing(int column, int row, int columns = 1, int rows = 1)
{
    return {{column, row}, true, 0, columns, rows, {}, {}};
}

inline vardeno::walls::CabinetException spanning(int column, int row, int columns, int rows, int turned = 0)
{
    return {{column, row}, false, turned, columns, rows, {}, {}};
}
