#include "arguments.h"
#include "carriedchart.h"
#include "chartinput.h"
#include "chartrenderer.h"
#include "commands.h"
#include "fileclaims.h"
#include "filename.h"
#include "imageoutput.h"
#include "outputfile.h"

#include <QFileInfo>
#include <QThread>

using namespace vardeno::testcharttools;

namespace {

/// "show.png" and the output "Left": "show-Left.png".
QString pathOfOutput(const QString& path, const QString& output)
{
    if (path == QLatin1String("-"))
        throw Failure{ExitCode::Usage,
                      QStringLiteral("-: the show has several outputs; name one with --of, or a file")};
    const QString problem = fileNameProblem(output);
    if (!problem.isEmpty())
        throw Failure{ExitCode::Unreadable, QStringLiteral("output \"%1\": %2").arg(output, problem)};
    const int ending = int(path.size() - QFileInfo(path).suffix().size()) - 1;
    return path.left(ending) + QLatin1Char('-') + output + path.mid(ending);
}

/// What is drawn, and the file of each picture.
struct RenderPlan
{
    std::vector<ChartInput> pictures;
    QStringList paths;
};

RenderPlan planOf(const ChartInput& chart, const Arguments& arguments, const QString& path)
{
    if (!chart.show || !arguments.showOutput.empty() || chart.show->show.outputs.list.size() < 2)
        return {{chosenPicture(chart, arguments.showOutput, QString::fromStdString(arguments.record))},
                {path}};
    RenderPlan plan = {picturesOf(chart), {}};
    for (const ChartInput& picture : plan.pictures)
        plan.paths.append(pathOfOutput(path, outputName(picture)));
    return plan;
}

void writePicture(const ChartRenderer& renderer, const ChartInput& chart, const Arguments& arguments,
                  const QString& path)
{
    const PictureRows picture = renderer.rows(chart);
    PngOptions options;
    options.compression = arguments.compression;
    if (!arguments.withoutRecord)
        options.texts = CarriedChart::texts(chart, QString::fromStdString(arguments.language), path);
    options.threads = QThread::idealThreadCount();
    const QString format = imageFormat(path);
    writeOutput(path, [&](const ByteSink& sink) { encodePicture(picture, format, options, sink); });
}

} // namespace

ExitCode runRender(const Arguments& arguments)
{
    const QString path = QString::fromStdString(arguments.output);
    imageFormat(path); // before anything is read
    requireNoTerminal(path);
    const QString recordPath = QString::fromStdString(arguments.record);
    const ChartInput chart = requireChart(recordPath, arguments.changes);
    const RenderPlan plan = planOf(chart, arguments, path);
    FileClaims claims;
    claims.reads(recordPath, QStringLiteral("the record that is drawn"));
    claimFiles(claims, chart, QStringLiteral("the record that is drawn"));
    for (const QString& one : plan.paths)
        claims.writes(one);
    const ChartRenderer renderer(QString::fromStdString(arguments.language));
    for (std::size_t i = 0; i < plan.pictures.size(); ++i)
        writePicture(renderer, plan.pictures[i], arguments, plan.paths.at(int(i)));
    return ExitCode::Good;
}
