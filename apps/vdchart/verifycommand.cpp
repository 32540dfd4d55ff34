#include "arguments.h"
#include "chartcomparison.h"
#include "chartrenderer.h"
#include "commands.h"
#include "fileclaims.h"
#include "imageoutput.h"
#include "outputfile.h"
#include "recordinput.h"
#include "verifyfolder.h"

#include <chartcabinets.h>

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <iostream>

using namespace vardeno::testcharttools;

namespace {

constexpr qint64 fileLimit = 512LL * 1024 * 1024; ///< bytes
constexpr qint64 pixelLimit = 64LL * 1024 * 1024; ///< more than three of the largest charts

/// Looks at the size before the picture takes its memory.
QImage readPicture(const QString& path)
{
    QByteArray bytes = readInput(path, fileLimit);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > pixelLimit)
        throw Failure{ExitCode::Unreadable, QStringLiteral("%1: %2 x %3 pixels are too many")
                                                .arg(inputName(path), QString::number(size.width()),
                                                     QString::number(size.height()))};
    const QImage image = reader.read();
    if (image.isNull())
        throw Failure{ExitCode::Unreadable,
                      QStringLiteral("%1: %2").arg(inputName(path), reader.errorString())};
    return image;
}

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

ChartComparison::CabinetGrid cabinetsOf(const TestChartToolsData& record)
{
    ChartComparison::CabinetGrid grid;
    grid.columns = record.publicData.boxCol;
    for (int row = 0; row < record.publicData.boxRow; ++row) {
        for (int column = 0; column < record.publicData.boxCol; ++column)
            grid.cabinets.push_back(
                {ChartCabinets::rect(record, row, column), ChartCabinets::label(record, row, column)});
    }
    return grid;
}

/// The standard streams serve one purpose at a time.
void requireDistinct(const Arguments& arguments)
{
    if (arguments.record.empty())
        throw Failure{ExitCode::Usage, QStringLiteral("verify: the record of the picture is missing")};
    if (arguments.image == "-" && arguments.record == "-")
        throw Failure{ExitCode::Usage,
                      QStringLiteral("picture and record cannot both come from the standard input")};
    if (arguments.difference == "-")
        throw Failure{ExitCode::Usage, QStringLiteral("--diff: a file is needed, for the standard output "
                                                      "gets what was found")};
}

} // namespace

ExitCode runVerify(const Arguments& arguments)
{
    if (QFileInfo(QString::fromStdString(arguments.image)).isDir())
        return verifyFolder(arguments);
    requireDistinct(arguments);
    const QString path = QString::fromStdString(arguments.image);
    const QString difference = QString::fromStdString(arguments.difference);
    const QString format = difference.isEmpty() ? QString() : imageFormat(difference);
    const QString recordPath = QString::fromStdString(arguments.record);
    FileClaims claims;
    claims.reads(path, QStringLiteral("the picture that is looked at"));
    claims.reads(recordPath, QStringLiteral("the record of the chart"));
    claims.protect(difference);
    const auto record = requireRecord(recordPath, arguments.changes);
    claims.readsLogo(record.logoData);
    claims.protect(difference);
    const QImage expected = ChartRenderer(QString::fromStdString(arguments.language)).render(record);
    const QImage picture = readPicture(path);
    const auto result = ChartComparison::compare(expected, picture, cabinetsOf(record));
    const qint64 translucent = translucentPixels(picture);
    if (translucent > 0)
        std::cout << inputName(path).toStdString() << ": " << translucent << " pixels are translucent\n";
    if (result.equal && translucent > 0)
        return ExitCode::Found;
    if (result.equal) {
        std::cout << inputName(path).toStdString() << ": this is the chart, pixel for pixel\n";
        return ExitCode::Good;
    }
    for (const QString& sentence : result.sentences())
        std::cout << inputName(path).toStdString() << ": " << sentence.toStdString() << '\n';
    if (!difference.isEmpty())
        writeOutput(difference, encodeImage(result.difference, format));
    return ExitCode::Found;
}
