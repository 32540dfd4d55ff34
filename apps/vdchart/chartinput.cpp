#include "chartinput.h"

#include "carriedchart.h"
#include "fileclaims.h"
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
void change(ChartInput& chart, const Failure& blame, const std::function<void(ChartInput&)>& apply)
{
    const PublicChartData before = chart.record.publicData;
    apply(chart);
    if (chart.wall && !hasGridOf(chart.record, before))
        throw Failure{
            blame.code,
            QStringLiteral("%1: resolution, rows and columns are those of the wall").arg(blame.message)};
}

/// Its walls have records of their own.
void forbidChanges(const ChartInput& chart, bool isChanged, const Failure& blame)
{
    if (chart.show && isChanged)
        throw Failure{
            blame.code,
            QStringLiteral("%1: a show has several records; change those of its walls").arg(blame.message)};
}

ChartReading readShow(const QByteArray& json, const QString& folder)
{
    walls::ShowFile::Reading show = walls::ShowFile::fromJson(json);
    ChartReading reading;
    reading.problems = show.problems;
    reading.unknown = show.unknown;
    if (!show.problems.isEmpty())
        return reading;
    walls::ShowFile::Walls placed = walls::ShowFile::wallsOf(show.show, folder);
    reading.problems = placed.problems;
    reading.unknown += placed.unknown;
    reading.chart.show = std::make_shared<ShowInput>(ShowInput{std::move(show.show), std::move(placed.list)});
    return reading;
}

ChartReading readAnyChart(const QByteArray& json, const QString& folder)
{
    if (walls::ShowFile::isShow(json))
        return readShow(json, folder);
    if (walls::WallFile::isWall(json))
        return readWall(json, folder);
    return readRecordOf(json, folder);
}

/// A picture may be much larger than a document, but of it only the texts are read.
ChartReading readFile(const QString& path)
{
    const QString folder = path == QLatin1String("-") ? QString() : QFileInfo(path).absolutePath();
    if (!CarriedChart::isPng(path))
        return readAnyChart(readInput(path, recordLimit), folder);
    const CarriedChart::Texts texts = CarriedChart::textsOf(path);
    if (!CarriedChart::isIn(texts))
        throw Failure{ExitCode::Unreadable, QStringLiteral("%1: a picture that carries no record").arg(path)};
    return CarriedChart::read(texts, folder);
}

} // namespace

ChartReading readRecordOf(const QByteArray& json, const QString& folder)
{
    const ChartRecordFile::Reading record = ChartRecordFile::fromJson(json, folder);
    ChartReading reading = {{record.record, std::nullopt, {}}, record.problems, record.unknown};
    reading.chart.markers = ChartRecordFile::markersOf(record.document);
    return reading;
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
    reading.chart.markers = walls::WallFile::markersOf(*reading.chart.wall, chart.file);
    return reading;
}

void applyChanges(ChartReading& reading, const Changes& changes, const QString& path)
{
    const Failure blame = {ExitCode::Usage, inputName(path)};
    forbidChanges(reading.chart,
                  !changes.settings.empty() || !changes.grid.empty() || !changes.cabinet.empty(), blame);
    change(reading.chart, blame,
           [&](ChartInput& chart) { applyChanges(chart.record, chart.markers, changes); });
}

ChartReading readChart(const QString& path, const Changes& changes)
{
    ChartReading reading = readFile(path);
    applyChanges(reading, changes, path);
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
    forbidChanges(chart, !settings.empty(), blame);
    change(chart, blame,
           [&](ChartInput& input) { applySettings(input.record, input.markers, settings, blame); });
}

std::vector<ChartInput> picturesOf(const ChartInput& chart)
{
    if (!chart.show)
        return {chart};
    std::vector<ChartInput> pictures;
    for (std::size_t i = 0; i < chart.show->show.outputs.list.size(); ++i) {
        pictures.push_back(chart);
        pictures.back().output = int(i);
    }
    return pictures;
}

ChartInput chosenPicture(const ChartInput& chart, const std::string& output, const QString& path)
{
    const auto refuse = [&path](const QString& why) -> Failure {
        return {ExitCode::Usage, QStringLiteral("%1: %2").arg(inputName(path), why)};
    };
    if (!chart.show && !output.empty())
        throw refuse(QStringLiteral("--of: only a show has outputs"));
    const std::vector<ChartInput> pictures = picturesOf(chart);
    QStringList names;
    for (const ChartInput& picture : pictures) {
        if (outputName(picture) == QString::fromStdString(output) || pictures.size() == 1)
            return picture;
        names.append(outputName(picture));
    }
    if (names.isEmpty())
        throw refuse(QStringLiteral("the show has no outputs"));
    throw refuse(
        QStringLiteral("--of: one of the show's outputs is needed: %1").arg(names.join(QLatin1String(", "))));
}

QSize sizeOf(const ChartInput& chart)
{
    if (chart.show)
        return chart.show->show.outputs.list.at(std::size_t(chart.output)).size();
    return {chart.record.publicData.resolutionWidth, chart.record.publicData.resolutionHeight};
}

QString outputName(const ChartInput& chart)
{
    return chart.show
               ? QString::fromStdString(chart.show->show.outputs.list.at(std::size_t(chart.output)).name)
               : QString();
}

void claimFiles(FileClaims& claims, const ChartInput& chart, const QString& what)
{
    if (!chart.recordFile.isEmpty())
        claims.reads(chart.recordFile, what);
    claims.readsLogo(chart.record.logoData);
    if (!chart.show)
        return;
    for (const walls::ShowFile::PlacedWall& wall : chart.show->walls) {
        if (!wall.file.isEmpty())
            claims.reads(wall.file, QStringLiteral("a wall of the show"));
        if (!wall.recordFile.isEmpty())
            claims.reads(wall.recordFile, what);
        claims.readsLogo(wall.record.logoData);
    }
}
