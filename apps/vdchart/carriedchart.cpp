#include "carriedchart.h"

#include "exitcode.h"
#include "recordinput.h"

#include <chartrecordfile.h>
#include <pngtexts.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QJsonDocument>

#include <memory>

using namespace vardeno::testcharttools;
using namespace vardeno::walls;

namespace {

constexpr char recordKeyword[] = "testchart-record";
constexpr char wallKeyword[] = "testchart-wall";
constexpr char showKeyword[] = "testchart-show";
constexpr char outputKeyword[] = "testchart-output";
constexpr char languageKeyword[] = "testchart-language";

QByteArray keywordOfWall(std::size_t index)
{
    return QByteArray(wallKeyword) + '-' + QByteArray::number(quint64(index + 1));
}

QByteArray textIn(const CarriedChart::Texts& texts, const char* keyword)
{
    return texts(QLatin1String(keyword)).toUtf8();
}

/// The record for a picture at `output`, which may be moved together with its logo.
QByteArray recordText(TestChartToolsData record, const MarkerData& markers, const QString& output)
{
    const QString logo = QString::fromStdString(record.logoData.picturePath);
    if (!logo.isEmpty() && output != QLatin1String("-"))
        record.logoData.picturePath = QFileInfo(output)
                                          .absoluteDir()
                                          .relativeFilePath(QFileInfo(logo).absoluteFilePath())
                                          .toStdString();
    return ChartRecordFile::toJson(record, ChartRecordFile::withMarkers({}, markers));
}

/// A record in a file of its own would be missed where the picture is looked at.
QByteArray wallText(WallDocument wall, const TestChartToolsData& record, const MarkerData& markers,
                    const QString& output)
{
    wall.chart.path.clear();
    wall.chart.record.document = QJsonDocument::fromJson(recordText(record, markers, output)).object();
    return WallFile::toJson(wall);
}

PngText pngText(const QByteArray& keyword, const QByteArray& text)
{
    return {keyword, QString::fromUtf8(text)};
}

std::vector<PngText> showTexts(const ChartInput& chart, const QString& output)
{
    std::vector<PngText> texts = {pngText(showKeyword, ShowFile::toJson(chart.show->show)),
                                  {outputKeyword, outputName(chart)}};
    for (std::size_t i = 0; i < chart.show->walls.size(); ++i) {
        const ShowFile::PlacedWall& wall = chart.show->walls[i];
        texts.push_back(
            pngText(keywordOfWall(i), wallText(wall.wall, wall.record,
                                               WallFile::markersOf(wall.wall, wall.recordFile), output)));
    }
    return texts;
}

std::vector<PngText> chartTexts(const ChartInput& chart, const QString& output)
{
    if (chart.show)
        return showTexts(chart, output);
    if (chart.wall)
        return {pngText(wallKeyword, wallText(*chart.wall, chart.record, chart.markers, output))};
    return {pngText(recordKeyword, recordText(chart.record, chart.markers, output))};
}

ShowFile::PlacedWall placedWall(const ChartInput& chart)
{
    return {*chart.wall, chart.record, {}, chart.recordFile};
}

QStringList behind(const QString& place, QStringList lines)
{
    for (QString& line : lines)
        line.prepend(place);
    return lines;
}

ChartReading readShow(const CarriedChart::Texts& texts, const QString& folder)
{
    const ShowFile::Reading show = ShowFile::fromJson(textIn(texts, showKeyword));
    ChartReading reading = {{}, show.problems, show.unknown};
    if (!show.problems.isEmpty())
        return reading;
    std::vector<ShowFile::PlacedWall> walls;
    for (std::size_t i = 0; i < show.show.walls.list.size(); ++i) {
        const ChartReading wall = readWall(textIn(texts, keywordOfWall(i)), folder);
        const QString place = QStringLiteral("show.walls: (wall %1) ").arg(i + 1);
        reading.problems += behind(place, wall.problems);
        reading.unknown += behind(place, wall.unknown);
        if (wall.problems.isEmpty())
            walls.push_back(placedWall(wall.chart));
    }
    reading.chart.show = std::make_shared<ShowInput>(ShowInput{show.show, std::move(walls)});
    return reading;
}

} // namespace

namespace CarriedChart {

std::vector<PngText> texts(const ChartInput& chart, const QString& language, const QString& output)
{
    std::vector<PngText> texts = chartTexts(chart, output);
    texts.push_back({languageKeyword, language});
    return texts;
}

bool isIn(const Texts& texts)
{
    return !textIn(texts, showKeyword).isEmpty() || !textIn(texts, wallKeyword).isEmpty() ||
           !textIn(texts, recordKeyword).isEmpty();
}

ChartReading read(const Texts& texts, const QString& folder)
{
    if (!textIn(texts, showKeyword).isEmpty())
        return readShow(texts, folder);
    const QByteArray wall = textIn(texts, wallKeyword);
    return wall.isEmpty() ? readRecordOf(textIn(texts, recordKeyword), folder) : readWall(wall, folder);
}

QString language(const Texts& texts)
{
    return texts(QLatin1String(languageKeyword));
}

QString output(const Texts& texts)
{
    return texts(QLatin1String(outputKeyword));
}

void requireLittleText(QIODevice& picture, const QString& path)
{
    if (hasTooMuchText(picture))
        throw Failure{ExitCode::Unreadable, QStringLiteral("%1: its texts have more than %2 bytes")
                                                .arg(inputName(path), QString::number(mostPngText))};
}

Texts textsOf(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        requireLittleText(file, path);
    const auto reader = std::make_shared<QImageReader>(path, "png");
    return [reader](const QString& keyword) { return reader->text(keyword); };
}

bool isPng(const QString& path)
{
    return path != QLatin1String("-") && QFileInfo(path).isFile() &&
           QImageReader::imageFormat(path) == QByteArray("png");
}

} // namespace CarriedChart
