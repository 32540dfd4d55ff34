#include "secondlook.h"

using namespace ChartComparison;

namespace {

/// Of ten cabinets: compression spares few of those that show anything, faults most.
constexpr std::size_t lossyCabinetsInTen = 5;

} // namespace

bool isLossyOrWarped(const Result& result, const CabinetGrid& grid)
{
    std::size_t differing = 0;
    for (const Finding& finding : result.findings) {
        if (finding.kind == Kind::Lossy || finding.kind == Kind::NotThisChart)
            return true;
        if (finding.kind == Kind::CabinetDiffers)
            differing += finding.cabinets.size();
    }
    return differing > 0 && differing * 10 >= grid.cabinets.size() * lossyCabinetsInTen;
}
