#pragma once

#include <chartcabinets.h>
#include <chartcomparison.h>

/// The cabinets of `record`'s chart with their labels, row by row, as comparisons tell of them.
inline ChartComparison::CabinetGrid cabinetsOf(const vardeno::testcharttools::TestChartToolsData& record)
{
    using namespace vardeno::testcharttools;
    ChartComparison::CabinetGrid grid;
    grid.columns = record.publicData.boxCol;
    for (int row = 0; row < record.publicData.boxRow; ++row) {
        for (int column = 0; column < record.publicData.boxCol; ++column)
            grid.cabinets.push_back(
                {ChartCabinets::rect(record, row, column), ChartCabinets::label(record, row, column)});
    }
    return grid;
}
