#include "cabinetorder.h"
#include "cableruns.h"
#include "require.h"
#include "wallfile.h"

#include <QtGlobal>

#include <cstdint>

using namespace vardeno::walls;

namespace {

/// By the pattern every cabinet is in one run, by hand in one at the most.
void checkRuns(const std::vector<CableRun>& runs, const CabinetPlan& plan, bool byHand)
{
    std::vector<int> fed(plan.cabinets().size(), 0);
    for (const CableRun& run : runs) {
        require(!run.cabinets.empty(), "a run has cabinets");
        for (const int cabinet : run.cabinets)
            ++fed.at(std::size_t(cabinet));
    }
    for (const int count : fed)
        require(count == 1 || (byHand && count == 0), "a cabinet is in one run");
}

/// What is read without problems can be built.
void checkWall(const WallDocument& wall)
{
    const CabinetPlan plan(wall);
    qint64 pixels = 0;
    for (const WallCabinet& cabinet : plan.cabinets())
        pixels += qint64(cabinet.rect.width()) * cabinet.rect.height();
    for (const QRect& hole : plan.holes())
        pixels += qint64(hole.width()) * hole.height();
    require(pixels == qint64(plan.size().width()) * plan.size().height(), "cabinets and holes make the wall");
    require(cabinetNames(wall, plan, {}).size() == plan.cabinets().size(), "each cabinet has a name");
    checkRuns(dataRuns(wall, plan), plan, !wall.data.path.byHand.runs.empty());
    if (wall.physical.watts > 0)
        checkRuns(powerRuns(wall, plan), plan, !wall.power.path.byHand.runs.empty());
}

} // namespace

/// A document that reads well stays itself when it is written and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto reading = WallFile::fromJson(QByteArray(reinterpret_cast<const char*>(data), int(size)));
    if (!reading.problems.isEmpty())
        return 0;
    const QByteArray written = WallFile::toJson(reading.wall, reading.document);
    const auto again = WallFile::fromJson(written);
    require(again.problems.isEmpty(), "what is written reads well");
    require(WallFile::toJson(again.wall, again.document) == written, "the document is the same");
    require(WallFile::toJson(again.wall) == WallFile::toJson(reading.wall), "the wall is the same");
    checkWall(reading.wall);
    return 0;
}
