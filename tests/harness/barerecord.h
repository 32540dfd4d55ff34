#pragma once

#include <testcharttoolsdata.h>

namespace charttool {

/// The chart, by default that of a new record, with nothing over its base pattern but the veil and the
/// border.
inline vardeno::testcharttools::TestChartToolsData
bareRecord(vardeno::testcharttools::TestChartToolsData record = {})
{
    record.inLineData.showCircle = false;
    record.inLineData.showDiagonal = false;
    record.inLineData.showSerialNumber = false;
    record.logoData.showLogo = false;
    record.selfData.showSelfText = false;
    record.selfData.showResolution = false;
    return record;
}

} // namespace charttool
