#include "walkorder.h"

#include <algorithm>
#include <numeric>

std::vector<int> lineOrder(int count, bool isBackwards)
{
    std::vector<int> order(size_t(std::max(count, 0)));
    std::iota(order.begin(), order.end(), 0);
    if (isBackwards)
        std::reverse(order.begin(), order.end());
    return order;
}

std::vector<CabinetPlace> walkOrder(int rows, int columns, int sort, const WalkPath& path)
{
    const std::vector<int> downwards = lineOrder(rows, countsFromBottom(sort));
    const std::vector<int> sideways = lineOrder(columns, countsFromRight(sort));
    std::vector<CabinetPlace> order;
    order.reserve(downwards.size() * sideways.size());
    std::vector<int> along = path.isByColumns ? downwards : sideways;
    for (const int line : path.isByColumns ? sideways : downwards) {
        for (const int place : along)
            order.push_back(path.isByColumns ? CabinetPlace{place, line} : CabinetPlace{line, place});
        if (path.isBackAndForth)
            std::reverse(along.begin(), along.end());
    }
    return order;
}
