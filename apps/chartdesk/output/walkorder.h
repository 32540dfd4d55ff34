#pragma once

#include <vector>

/// A cabinet by its 0-based row and column from the top left.
struct CabinetPlace
{
    int row;
    int column;
};

inline bool operator==(const CabinetPlace& a, const CabinetPlace& b)
{
    return a.row == b.row && a.column == b.column;
}

/// The way from one cabinet to the next.
struct WalkPath
{
    bool isByColumns = false;    ///< down a column, then the next one; else along a row
    bool isBackAndForth = false; ///< every second row or column is gone through backwards
};

/// All cabinets of a wall, the one that is numbered first at the beginning. `sort` is the record's: rows are
/// counted from the bottom with 2 and 3, columns from the right with 1 and 3.
std::vector<CabinetPlace> walkOrder(int rows, int columns, int sort, const WalkPath& path);

/// The rows of a wall, or its columns, as they are numbered.
std::vector<int> lineOrder(int count, bool isBackwards);
inline bool countsFromBottom(int sort)
{
    return sort == 2 || sort == 3;
}
inline bool countsFromRight(int sort)
{
    return sort == 1 || sort == 3;
}
