#include "chartcabinets.h"

#include "geometry/recordcabinets.h"

namespace vardeno::testcharttools::ChartCabinets {

namespace {

bool holds(const CabinetGrid& grid, int row, int column)
{
    return row >= 0 && row < grid.rows && column >= 0 && column < grid.columns;
}

} // namespace

QString label(const TestChartToolsData& record, int row, int column)
{
    const CabinetGrid grid = cabinetGrid(record.publicData);
    if (!holds(grid, row, column))
        return QString();
    const auto parts = cabinetLabel(labelStyle(record.inLineData), row, column, grid.rows, grid.columns);
    return parts ? parts->row + QLatin1Char('-') + parts->column : QString();
}

QRect rect(const TestChartToolsData& record, int row, int column)
{
    const CabinetGrid grid = cabinetGrid(record.publicData);
    return holds(grid, row, column) ? grid.cell(row, column) : QRect();
}

} // namespace vardeno::testcharttools::ChartCabinets
