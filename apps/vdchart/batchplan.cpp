#include "batchplan.h"

#include "arguments.h"
#include "fileclaims.h"
#include "filename.h"
#include "recordinput.h"
#include "resume.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <optional>

using namespace vardeno::testcharttools;

namespace {

QString fileName(const Arguments& arguments, const QString& record, const Wall& wall, const QString& output)
{
    QStringList parts;
    if (arguments.records.size() > 1 || wall.name.isEmpty())
        parts.append(record == QLatin1String("-") ? QStringLiteral("chart")
                                                  : QFileInfo(record).completeBaseName());
    if (!wall.name.isEmpty())
        parts.append(wall.name);
    if (!output.isEmpty())
        parts.append(output);
    return parts.join(QLatin1Char('-')) + QLatin1Char('.') + QString::fromStdString(arguments.format);
}

/// Where a picture comes from, to be found again by who has to change it.
QString sourceOf(const Arguments& arguments, const PlannedPicture& planned, const Wall& wall)
{
    QStringList parts;
    if (arguments.records.size() > 1 || wall.name.isEmpty())
        parts.append(inputName(planned.picture.record));
    if (!wall.name.isEmpty())
        parts.append(QStringLiteral("row %1 of %2")
                         .arg(QString::number(wall.row), inputName(QString::fromStdString(arguments.walls))));
    return parts.join(QStringLiteral(" with "));
}

void requireOwnNames(const Arguments& arguments, const std::vector<PlannedPicture>& plan,
                     const std::vector<Wall>& walls)
{
    QHash<QString, QString> sources;
    for (std::size_t i = 0; i < plan.size(); ++i) {
        const QString& file = plan[i].picture.file;
        const QString source = sourceOf(arguments, plan[i], walls[i % walls.size()]);
        QString& other = sources[sameFileName(file)];
        if (!other.isEmpty())
            throw Failure{
                ExitCode::Usage,
                QStringLiteral("%1 and %2: two pictures would be called %3").arg(other, source, file)};
        other = source;
    }
}

void addOutputs(std::vector<PlannedPicture>& plan, const Arguments& arguments, const QString& path,
                const ChartInput& show)
{
    for (const ChartInput& chart : picturesOf(show)) {
        PlannedPicture planned;
        const QString output = outputName(chart);
        planned.picture.record = path;
        planned.picture.file = fileName(arguments, path, {}, output);
        planned.chart = chart;
        const QString problem = fileNameProblem(output);
        if (!problem.isEmpty())
            planned.fail({ExitCode::Unreadable, QStringLiteral("output \"%1\": %2").arg(output, problem)});
        plan.push_back(std::move(planned));
    }
}

/// The record at `path` for every wall. It is read once: the standard input cannot be read again.
void addRecord(std::vector<PlannedPicture>& plan, const Arguments& arguments, const QString& path,
               const std::vector<Wall>& walls)
{
    ChartInput chart;
    std::optional<Failure> failure;
    try {
        chart = requireChart(path, arguments.changes);
    } catch (const Failure& problem) {
        failure = problem;
    }
    if (chart.show && !failure && !arguments.walls.empty())
        failure = Failure{ExitCode::Usage, QStringLiteral("a show is not drawn for a table of walls")};
    if (chart.show && !failure) {
        addOutputs(plan, arguments, path, chart);
        return;
    }
    for (const Wall& wall : walls) {
        PlannedPicture planned;
        planned.picture.record = path;
        planned.picture.wall = wall.name;
        planned.picture.file = fileName(arguments, path, wall, {});
        planned.chart = failure ? ChartInput() : chart;
        if (failure)
            planned.fail(*failure);
        plan.push_back(std::move(planned));
    }
}

void applyWall(PlannedPicture& planned, const Wall& wall)
{
    if (planned.code != ExitCode::Good)
        return;
    try {
        applySettings(planned.chart, wall.settings,
                      {ExitCode::Unreadable, QStringLiteral("wall \"%1\"").arg(wall.name)});
    } catch (const Failure& failure) {
        planned.fail(failure);
    }
}

/// A link in the folder of a batch would have it write elsewhere, unasked.
void requireInside(const QString& folder, const QString& file)
{
    const QString root = QFileInfo(folder).canonicalFilePath();
    if (QFileInfo(file).isSymLink() && !placeOf(file).startsWith(root + QLatin1Char('/')))
        throw Failure{
            ExitCode::NotWritten,
            QStringLiteral("%1: a symbolic link is in the way, which leads out of the folder").arg(file)};
}

/// Before the first picture is written: what it would be written over may be needed for the last.
void requireOwnFiles(const Arguments& arguments, const std::vector<PlannedPicture>& plan)
{
    FileClaims claims;
    for (const std::string& record : arguments.records)
        claims.reads(QString::fromStdString(record), QStringLiteral("a record of the batch"));
    if (!arguments.walls.empty())
        claims.reads(QString::fromStdString(arguments.walls), QStringLiteral("the table of walls"));
    QString last;
    for (const PlannedPicture& planned : plan) {
        const QString source = planned.picture.record + QLatin1Char('\n') +
                               QString::fromStdString(planned.chart.record.logoData.picturePath);
        if (source != last)
            claimFiles(claims, planned.chart, QStringLiteral("a record of the batch"));
        last = source;
    }
    QStringList files = {batchPath(arguments, QLatin1String(manifestName))};
    for (const PlannedPicture& planned : plan)
        files.append(batchPath(arguments, planned.picture.file));
    for (const QString& file : files)
        claims.writes(file);
    for (const QString& file : files)
        requireInside(QString::fromStdString(arguments.folder), file);
}

} // namespace

std::vector<PlannedPicture> planBatch(const Arguments& arguments, const std::vector<Wall>& walls)
{
    std::vector<PlannedPicture> plan;
    for (const std::string& record : arguments.records)
        addRecord(plan, arguments, QString::fromStdString(record), walls);
    for (std::size_t i = 0; i < plan.size(); ++i)
        applyWall(plan[i], walls[i % walls.size()]);
    requireOwnNames(arguments, plan, walls);
    requireOwnFiles(arguments, plan);
    for (PlannedPicture& planned : plan)
        planned.picture.source = sourceHash(planned, arguments);
    if (arguments.resume)
        markProven(plan, arguments);
    return plan;
}

QString batchPath(const Arguments& arguments, const QString& file)
{
    return QDir(QString::fromStdString(arguments.folder)).filePath(file);
}
