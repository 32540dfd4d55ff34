#include "runfaults.h"

#include <algorithm>

namespace vardeno::walls {

std::vector<RunFault> faultyRuns(const std::vector<CableRun>& runs, const std::vector<bool>& bad)
{
    const auto isBad = [&bad](int cabinet) { return bool(bad[std::size_t(cabinet)]); };
    std::vector<RunFault> faults;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const std::vector<int>& cabinets = runs[i].cabinets;
        const auto first = std::find_if(cabinets.begin(), cabinets.end(), isBad);
        if (cabinets.end() - first >= 2 && std::all_of(first, cabinets.end(), isBad))
            faults.push_back({int(i), int(first - cabinets.begin())});
    }
    return faults;
}

} // namespace vardeno::walls
