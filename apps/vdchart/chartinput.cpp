#include "chartinput.h"

#include "recordinput.h"

#include <chartrecordfile.h>

#include <QFileInfo>

#include <functional>
#include <iostream>

using namespace vardeno;
using namespace vardeno::testcharttools;

namespace {

bool hasGridOf(const TestChartToolsData& record, const PublicChartData& grid)
{
    const PublicChartData& own = record.publicData;
    return own.resolutionWidth == grid.resolutionWidth && own.resolutionHeight == grid.resolutionHeight &&
           own.boxRow == grid.boxRow && own.boxCol == grid.boxCol;
}

/// Changes a wall's record. What the wall says itself, its record cannot say otherwise.
void change(ChartInput& chart, const Failure& blame, const std::function<void(TestChartToolsData&)>& apply)
{
    const PublicChartData before = chart.record.publicData;
    apply(chart.record);
    if (chart.wall && !hasGridOf(chart.record, before))
        throw Failure{
            blame.code,
            QStringLiteral("%1: resolution, rows and columns are those of the wall").arg(blame.message)};
}

ChartReading readWall(const QByteArray& json, const QString& folder)
{
    walls::WallFile::Reading wall = walls::WallFile::fromJson(json);
    ChartReading reading;
    reading.problems = wall.problems;
    reading.unknown = wall.unknown;
    if (!wall.problems.isEmpty())
        return reading;
    const walls::WallFile::Chart chart = walls::WallFile::chartOf(wall.wall, folder);
    reading.problems = chart.problems;
    if (!chart.file.isEmpty())
        reading.unknown += chart.unknown; // those of the document have been told
    reading.chart = {chart.record, std::move(wall.wall), chart.file};
    return reading;
}

} // namespace

ChartReading readChart(const QString& path, const Changes& changes)
{
    const QByteArray json = readInput(path, recordLimit);
    const QString folder = path == QLatin1String("-") ? QString() : QFileInfo(path).absolutePath();
    ChartReading reading;
    if (walls::WallFile::isWall(json)) {
        reading = readWall(json, folder);
    } else {
        const ChartRecordFile::Reading record = ChartRecordFile::fromJson(json, folder);
        reading = {{record.record, std::nullopt, {}}, record.problems, record.unknown};
    }
    change(reading.chart, {ExitCode::Usage, inputName(path)},
           [&](TestChartToolsData& record) { applyChanges(record, changes); });
    return reading;
}

ChartInput requireChart(const QString& path, const Changes& changes)
{
    const ChartReading reading = readChart(path, changes);
    requireAccepted(reading.problems, reading.unknown, inputName(path));
    return reading.chart;
}

void applySettings(ChartInput& chart, const std::vector<std::string>& settings, const Failure& blame)
{
    change(chart, blame, [&](TestChartToolsData& record) { applySettings(record, settings, blame); });
}
