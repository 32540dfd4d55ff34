#include "wantedchart.h"

#include "arguments.h"
#include "carriedchart.h"
#include "exitcode.h"
#include "languages.h"
#include "recordinput.h"

#include <picturehead.h>

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

using namespace vardeno::testcharttools;

namespace {

constexpr qint64 fileLimit = 512LL * 1024 * 1024; ///< bytes

QString carriedLanguage(const CarriedChart::Texts& texts, const QString& path)
{
    const QString language = CarriedChart::language(texts);
    if (language.isEmpty() || languageCodes().contains(language))
        return language;
    throw Failure{ExitCode::Unreadable,
                  QStringLiteral("%1: its record is for the language \"%2\", which is not known")
                      .arg(inputName(path), language)};
}

ChartInput carriedChart(const CarriedChart::Texts& texts, const QString& path, const Arguments& arguments)
{
    const QString folder = path == QLatin1String("-") ? QString() : QFileInfo(path).absolutePath();
    ChartReading reading = CarriedChart::read(texts, folder);
    applyChanges(reading, arguments.changes, path);
    requireAccepted(reading.problems, reading.unknown, inputName(path));
    const std::string output =
        arguments.showOutput.empty() ? CarriedChart::output(texts).toStdString() : arguments.showOutput;
    return chosenPicture(reading.chart, output, path);
}

Wanted wantedFrom(const QImage& picture, const QString& path, const Arguments& arguments)
{
    const CarriedChart::Texts texts = [&picture](const QString& keyword) { return picture.text(keyword); };
    if (!CarriedChart::isIn(texts))
        throw Failure{ExitCode::Unreadable,
                      QStringLiteral("%1: it carries no record; name one behind it").arg(inputName(path))};
    const QString language = arguments.isLanguageGiven ? QString() : carriedLanguage(texts, path);
    return {carriedChart(texts, path, arguments),
            language.isEmpty() ? QString::fromStdString(arguments.language) : language};
}

} // namespace

QImage readPicture(const QString& path, qint64 pixelLimit)
{
    QByteArray bytes = readInput(path, fileLimit);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    CarriedChart::requireLittleText(buffer, path);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = toldSize(reader);
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

Wanted wantedChart(const QImage& picture, const QString& path, const std::string& record,
                   const Arguments& arguments)
{
    if (record.empty())
        return wantedFrom(picture, path, arguments);
    const QString source = QString::fromStdString(record);
    return {chosenPicture(requireChart(source, arguments.changes), arguments.showOutput, source),
            QString::fromStdString(arguments.language)};
}
