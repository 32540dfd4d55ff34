#include "arguments.h"
#include "carriedrecord.h"
#include "chartinput.h"
#include "chartrenderer.h"
#include "commands.h"
#include "fileclaims.h"
#include "imageoutput.h"
#include "outputfile.h"

#include <QThread>

using namespace vardeno::testcharttools;

ExitCode runRender(const Arguments& arguments)
{
    const QString path = QString::fromStdString(arguments.output);
    const QString format = imageFormat(path);
    requireNoTerminal(path);
    const QString recordPath = QString::fromStdString(arguments.record);
    const ChartInput chart = requireChart(recordPath, arguments.changes);
    FileClaims claims;
    claims.reads(recordPath, QStringLiteral("the record that is drawn"));
    if (!chart.recordFile.isEmpty())
        claims.reads(chart.recordFile, QStringLiteral("the record that is drawn"));
    claims.readsLogo(chart.record.logoData);
    claims.protect(path);
    const ChartRenderer renderer(QString::fromStdString(arguments.language));
    const PictureRows picture = renderer.rows(chart);
    PngOptions options;
    options.compression = arguments.compression;
    if (!arguments.withoutRecord && !chart.wall)
        options.texts = CarriedRecord::texts(chart.record, QString::fromStdString(arguments.language), path);
    options.threads = QThread::idealThreadCount();
    writeOutput(path, [&](const ByteSink& sink) { encodePicture(picture, format, options, sink); });
    return ExitCode::Good;
}
