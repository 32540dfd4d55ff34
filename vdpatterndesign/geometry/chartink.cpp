#include "chartink.h"

#include "geometry/recordink.h"

namespace vardeno::testcharttools::ChartInk {

QRect customText(const TestChartToolsData& record)
{
    return customTextInk(record);
}

QRect logo(const TestChartToolsData& record)
{
    return logoInk(record);
}

int labelSize(const TestChartToolsData& record)
{
    return fittedLabelSize(record);
}

bool coversLabels(const TestChartToolsData& record, const QRect& area)
{
    return testcharttools::coversLabels(record, area);
}

} // namespace vardeno::testcharttools::ChartInk
