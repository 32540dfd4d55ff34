#include "arguments.h"
#include "chartrenderer.h"
#include "commands.h"
#include "fileclaims.h"
#include "imageoutput.h"
#include "outputfile.h"
#include "readinggrid.h"
#include "readingjson.h"
#include "readingreport.h"
#include "recordinput.h"
#include "wantedchart.h"

#include <readingpicture.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <iostream>

namespace {

constexpr qint64 pixelLimit = 100LL * 1000 * 1000;

/// What stands on the command line: pictures, and behind them perhaps the record.
struct Inputs
{
    std::vector<std::string> pictures;
    std::string record;
};

bool isRecord(const std::string& path)
{
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly))
        return QFileInfo(file.fileName()).suffix() == QLatin1String("json");
    return file.read(64).trimmed().startsWith('{');
}

Inputs inputsOf(const std::vector<std::string>& files)
{
    Inputs inputs{files, {}};
    if (files.size() > 1 && (files.back() == "-" || isRecord(files.back()))) {
        inputs.record = files.back();
        inputs.pictures.pop_back();
    }
    return inputs;
}

/// The outputs must not take the place of what is read.
void protectInputs(const Inputs& inputs, const Arguments& arguments)
{
    FileClaims claims;
    for (const std::string& picture : inputs.pictures)
        claims.reads(QString::fromStdString(picture), QStringLiteral("a picture that is looked at"));
    if (!inputs.record.empty())
        claims.reads(QString::fromStdString(inputs.record), QStringLiteral("the record of the chart"));
    for (const std::string& output : {arguments.difference, arguments.page}) {
        if (output == "-")
            throw Failure{ExitCode::Usage, QStringLiteral("a file is needed for --diff and --report, for the "
                                                          "standard output gets what was found")};
        claims.protect(QString::fromStdString(output));
    }
}

/// Nor that of what the chart is made of.
void protectParts(const ChartInput& chart, const Arguments& arguments)
{
    FileClaims claims;
    claimFiles(claims, chart, QStringLiteral("the record of the chart"));
    for (const std::string& output : {arguments.difference, arguments.page})
        claims.protect(QString::fromStdString(output));
}

void printJson(const WallReading::Reading& reading, const std::vector<PulledCable>& cables)
{
    QJsonObject document = readingJson(reading);
    if (!cables.empty())
        document.insert(QStringLiteral("pulledCables"), jsonOf(cables));
    std::cout << QJsonDocument(document).toJson().toStdString();
}

void print(const WallReading::Reading& reading, const std::vector<PulledCable>& cables, const QString& name,
           const Arguments& arguments)
{
    if (arguments.report == "json")
        return printJson(reading, cables);
    for (const QString& sentence : reading.sentences() + sentencesOf(cables))
        std::cout << name.toStdString() << ": " << sentence.toStdString() << '\n';
}

ExitCode codeOf(const WallReading::Reading& reading)
{
    if (!reading.isLocated)
        return ExitCode::Unreadable;
    return reading.isGood() ? ExitCode::Good : ExitCode::Found;
}

} // namespace

ExitCode runRead(const Arguments& arguments)
{
    const Inputs inputs = inputsOf(arguments.records);
    protectInputs(inputs, arguments);
    const QString difference = QString::fromStdString(arguments.difference);
    const QString format = difference.isEmpty() ? QString() : imageFormat(difference);
    std::vector<QImage> pictures;
    for (const std::string& picture : inputs.pictures)
        pictures.push_back(readPicture(QString::fromStdString(picture), pixelLimit));
    const QString first = QString::fromStdString(inputs.pictures.front());
    const Wanted wanted = wantedChart(pictures.front(), first, inputs.record, arguments);
    if (wanted.chart.show)
        throw Failure{
            ExitCode::Unreadable,
            QStringLiteral("%1: a show; photographs are read by records and walls only")
                .arg(inputName(inputs.record.empty() ? first : QString::fromStdString(inputs.record)))};
    protectParts(wanted.chart, arguments);
    ReadingGrid grid(wanted.chart);
    const WallReading::Chart chart{ChartRenderer(wanted.language).render(wanted.chart), grid.cabinets()};
    std::vector<WallReading::Reading> readings;
    for (const QImage& picture : pictures)
        readings.push_back(WallReading::read(picture, chart, grid.markers()));
    WallReading::Reading reading = WallReading::combined(readings, chart);
    grid.take(reading);
    print(reading, grid.pulled(), pictures.size() == 1 ? inputName(first) : QStringLiteral("the wall"),
          arguments);
    if (!difference.isEmpty() && reading.isLocated)
        writeOutput(difference, encodeImage(WallReading::markedPicture(reading, chart), format));
    if (!arguments.page.empty())
        writeOutput(QString::fromStdString(arguments.page), readingReport(reading, chart, first));
    return codeOf(reading);
}
