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

QString labelAt(const TestChartToolsData& record, const QPoint& pixel)
{
    const CabinetGrid grid = cabinetGrid(record.publicData);
    const int row = int(pixel.y() / grid.cellHeight());
    const int column = int(pixel.x() / grid.cellWidth());
    // Places are cut to whole pixels: one that is not in its cabinet by division is in the next.
    for (const QPoint& way : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
        const QPoint place = QPoint(column, row) + way;
        if (rect(record, place.y(), place.x()).contains(pixel))
            return label(record, place.y(), place.x());
    }
    return QString();
}

} // namespace vardeno::testcharttools::ChartCabinets
