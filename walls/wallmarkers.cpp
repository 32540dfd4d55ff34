#include "wallmarkers.h"

#include "cabinetlayers.h"
#include "testcharttoolsdata.h"

namespace vardeno::walls {

using namespace testcharttools;

std::vector<CabinetMarker> cabinetMarkers(const CabinetPlan& plan, const TestChartToolsData& record)
{
    const LabelRoom labels = labelRoom(record, fittedLabelSize(plan, record.inLineData.serialSize));
    std::vector<CabinetMarker> markers;
    for (const WallCabinet& cabinet : plan.cabinets())
        markers.push_back({markerOf(int(markers.size())), markerSquare(cabinet.rect, labels)});
    return markers;
}

} // namespace vardeno::walls
