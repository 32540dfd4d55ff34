#include "arguments.h"
#include "chartcomparison.h"
#include "chartrenderer.h"
#include "commands.h"
#include "fileclaims.h"
#include "findingjson.h"
#include "imageoutput.h"
#include "outputfile.h"
#include "recordinput.h"
#include "secondlook.h"
#include "verifyfolder.h"
#include "wallgrid.h"
#include "wantedchart.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iostream>
#include <optional>

using namespace vardeno::testcharttools;

namespace {

constexpr qint64 pixelLimit = 64LL * 1024 * 1024; ///< more than three of the largest charts

/// A screen shows something else there, whatever color the pixel has.
qint64 translucentPixels(const QImage& picture)
{
    if (!picture.hasAlphaChannel())
        return 0;
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32);
    qint64 count = 0;
    for (int row = 0; row < pixels.height(); ++row) {
        const auto* line = reinterpret_cast<const QRgb*>(pixels.constScanLine(row));
        count += std::count_if(line, line + pixels.width(), [](QRgb pixel) { return qAlpha(pixel) < 255; });
    }
    return count;
}

/// The standard streams serve one purpose at a time.
void requireDistinct(const Arguments& arguments)
{
    if (arguments.image == "-" && arguments.record == "-")
        throw Failure{ExitCode::Usage,
                      QStringLiteral("picture and record cannot both come from the standard input")};
    if (arguments.difference == "-")
        throw Failure{ExitCode::Usage, QStringLiteral("--diff: a file is needed, for the standard output "
                                                      "gets what was found")};
}

/// What was found in the picture at `path`.
struct Verdict
{
    QString path;
    ChartComparison::Result result;
    qint64 translucent = 0;
    QStringList cables; ///< sentences of those that look pulled
    QJsonArray cablesJson;
    int tolerance = 0;
    std::optional<SecondLook> secondLook; ///< at a picture that is lossy or warped

    bool isGood() const { return result.equal && translucent == 0; }
};

QString goodText(const Verdict& verdict)
{
    const int tolerated = verdict.result.tolerated;
    return tolerated == 0 ? QStringLiteral("this is the chart, pixel for pixel")
                          : QStringLiteral("this is the chart; channels are off by up to %1 of the %2 steps "
                                           "that are tolerated")
                                .arg(tolerated)
                                .arg(verdict.tolerance);
}

/// Where the second look has found the chart, pixels that differ say nothing.
QStringList exactSentences(const Verdict& verdict)
{
    if (!verdict.secondLook || !verdict.secondLook->isLocated)
        return verdict.result.sentences() + verdict.cables;
    QStringList sentences;
    for (const ChartComparison::Finding& finding : verdict.result.findings) {
        if (finding.kind != ChartComparison::Kind::CabinetDiffers &&
            finding.kind != ChartComparison::Kind::OutsideCabinets &&
            finding.kind != ChartComparison::Kind::NotThisChart)
            sentences << sentence(finding);
    }
    return sentences;
}

QStringList sentencesOf(const Verdict& verdict)
{
    QStringList sentences;
    if (verdict.translucent > 0)
        sentences << QStringLiteral("%1 pixels are translucent").arg(verdict.translucent);
    if (verdict.isGood())
        sentences << goodText(verdict);
    sentences << exactSentences(verdict);
    if (verdict.secondLook)
        sentences << QStringLiteral("not pixel for pixel: if this is the chart it is lossy or warped, so "
                                    "\"vdchart read\" looks at it")
                  << verdict.secondLook->sentences;
    return sentences;
}

void printText(const Verdict& verdict)
{
    const std::string name = inputName(verdict.path).toStdString();
    for (const QString& sentence : sentencesOf(verdict))
        std::cout << name << ": " << sentence.toStdString() << '\n';
}

void printJson(const Verdict& verdict)
{
    QJsonArray findings;
    for (const ChartComparison::Finding& finding : verdict.result.findings)
        findings.append(findingJson(finding));
    QJsonObject document{{QStringLiteral("format"), QStringLiteral("testchart-verification")},
                         {QStringLiteral("version"), 1},
                         {QStringLiteral("picture"), verdict.path},
                         {QStringLiteral("good"), verdict.isGood()},
                         {QStringLiteral("translucentPixels"), verdict.translucent},
                         {QStringLiteral("findings"), findings}};
    if (verdict.tolerance > 0) {
        document.insert(QStringLiteral("tolerance"), verdict.tolerance);
        document.insert(QStringLiteral("greatestTolerated"), verdict.result.tolerated);
    }
    if (verdict.secondLook && !verdict.secondLook->json.isEmpty())
        document.insert(QStringLiteral("reading"), verdict.secondLook->json);
    if (!verdict.cablesJson.isEmpty())
        document.insert(QStringLiteral("pulledCables"), verdict.cablesJson);
    std::cout << QJsonDocument(document).toJson().toStdString();
}

/// Where nothing differs, what an earlier run has left would mislead.
void writeDifference(const QString& path, const QString& format, const QImage& difference)
{
    if (path.isEmpty())
        return;
    if (!difference.isNull())
        writeOutput(path, encodeImage(difference, format));
    else if (QFileInfo(path).isFile() && !QFile::remove(path))
        throw Failure{ExitCode::NotWritten,
                      QStringLiteral("%1: the old picture of differences cannot be removed").arg(path)};
}

} // namespace

ExitCode runVerify(const Arguments& arguments)
{
    if (QFileInfo(QString::fromStdString(arguments.image)).isDir()) {
        if (arguments.tolerance > 0)
            throw Failure{ExitCode::Usage, QStringLiteral("--tolerance: the pictures of a folder are "
                                                          "compared by their checksums")};
        return verifyFolder(arguments);
    }
    requireDistinct(arguments);
    const QString path = QString::fromStdString(arguments.image);
    const QString difference = QString::fromStdString(arguments.difference);
    const QString format = difference.isEmpty() ? QString() : imageFormat(difference);
    FileClaims claims;
    claims.reads(path, QStringLiteral("the picture that is looked at"));
    if (!arguments.record.empty())
        claims.reads(QString::fromStdString(arguments.record), QStringLiteral("the record of the chart"));
    claims.protect(difference);
    const QImage picture = readPicture(path, pixelLimit);
    const Wanted wanted = wantedChart(picture, path, arguments.record, arguments);
    claimFiles(claims, wanted.chart, QStringLiteral("the record of the chart"));
    claims.protect(difference);
    const QImage expected = ChartRenderer(wanted.language).render(wanted.chart);
    ChartCabinetGrid grid(wanted.chart);
    ChartComparison::Result result =
        ChartComparison::compare(expected, picture, grid.cabinets(), arguments.tolerance);
    std::optional<SecondLook> look;
    if (!wanted.chart.wall && !wanted.chart.show && isLossyOrWarped(result, grid.cabinets()))
        look = secondLook(expected, picture, grid.cabinets());
    grid.take(result);
    const Verdict verdict{path,
                          std::move(result),
                          translucentPixels(picture),
                          sentencesOf(grid.pulledCables()),
                          jsonOf(grid.pulledCables()),
                          arguments.tolerance,
                          std::move(look)};
    if (arguments.report == "json")
        printJson(verdict);
    else
        printText(verdict);
    writeDifference(difference, format, verdict.result.difference);
    return verdict.isGood() ? ExitCode::Good : ExitCode::Found;
}
