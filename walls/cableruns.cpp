#include "cableruns.h"

#include "cabinetorder.h"

#include <algorithm>
#include <limits>

namespace vardeno::walls {

namespace {

/// What a port or a circuit feeds at the most.
struct Capacity
{
    qint64 pixels;
    std::size_t cabinets = std::numeric_limits<std::size_t>::max();
};

qint64 pixelsOf(const QSize& size)
{
    return qint64(size.width()) * size.height();
}

void append(CableRun& run, const CabinetPlan& plan, int cabinet)
{
    run.cabinets.push_back(cabinet);
    run.pixels += pixelsOf(plan.cabinets()[std::size_t(cabinet)].rect.size());
}

std::vector<CableRun> runsByHand(const CableLists& lists, const CabinetPlan& plan)
{
    std::vector<CableRun> runs;
    for (const auto& places : lists.runs) {
        CableRun run;
        for (const Place place : places)
            append(run, plan, plan.cabinetAt(place));
        runs.push_back(std::move(run));
    }
    return runs;
}

bool hasRoom(const CableRun& run, const Capacity& capacity, qint64 pixels)
{
    return run.pixels + pixels <= capacity.pixels && run.cabinets.size() < capacity.cabinets;
}

std::vector<CableRun> runsByPattern(const CablePath& path, const CabinetPlan& plan, const Capacity& capacity)
{
    std::vector<CableRun> runs;
    for (const auto& line :
         cabinetLines(plan, {path.corner, path.direction, path.pattern == Pattern::BackAndForth})) {
        bool begins = path.pattern == Pattern::EachLine || runs.empty();
        for (const int cabinet : line) {
            const qint64 pixels = pixelsOf(plan.cabinets()[std::size_t(cabinet)].rect.size());
            if (begins || !hasRoom(runs.back(), capacity, pixels))
                runs.emplace_back();
            begins = false;
            append(runs.back(), plan, cabinet);
        }
    }
    return runs;
}

} // namespace

qint64 portCapacity(const DataCabling& data)
{
    return qint64(data.portPixels) * 8 * 60 / (qint64(data.bitDepth) * data.frameRate);
}

qint64 circuitCapacity(const WallDocument& wall, const CabinetPlan& plan)
{
    if (wall.physical.watts == 0)
        return 0;
    return wall.power.circuitWatts * pixelsOf(plan.usualCabinet()) / wall.physical.watts;
}

qint64 wattsOf(const WallDocument& wall, const CabinetPlan& plan, qint64 pixels)
{
    const qint64 usual = pixelsOf(plan.usualCabinet());
    return (pixels * wall.physical.watts + usual - 1) / usual;
}

std::vector<CableRun> dataRuns(const WallDocument& wall, const CabinetPlan& plan)
{
    const CablePath& path = wall.data.path;
    if (!path.byHand.runs.empty())
        return runsByHand(path.byHand, plan);
    Capacity capacity{portCapacity(wall.data)};
    if (wall.data.portCabinets > 0)
        capacity.cabinets = std::size_t(wall.data.portCabinets);
    return runsByPattern(path, plan, capacity);
}

std::vector<CableRun> powerRuns(const WallDocument& wall, const CabinetPlan& plan)
{
    const CablePath& path = wall.power.path;
    if (!path.byHand.runs.empty())
        return runsByHand(path.byHand, plan);
    if (wall.physical.watts == 0)
        return {};
    return runsByPattern(path, plan, {circuitCapacity(wall, plan)});
}

} // namespace vardeno::walls
