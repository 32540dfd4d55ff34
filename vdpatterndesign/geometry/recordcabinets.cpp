#include "geometry/recordcabinets.h"

#include "testcharttoolsdata.h"

namespace vardeno::testcharttools {

CabinetGrid cabinetGrid(const PublicChartData& data)
{
    return {{data.resolutionWidth, data.resolutionHeight}, ushort(data.boxRow), ushort(data.boxCol)};
}

LabelStyle labelStyle(const InLineChartData& data)
{
    const uint mode = data.combinationMode ? 2 : data.numMode ? 1 : 0;
    return {mode, uint(data.serialSort), uint(data.serialPosition)};
}

} // namespace vardeno::testcharttools
