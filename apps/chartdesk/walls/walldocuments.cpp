#include "walldocuments.h"

#include "samplechart.h"

#include <chartrecordfile.h>
#include <showpicture.h>
#include <wallpicture.h>

#include <QDir>
#include <QFileInfo>

#include <memory>

using namespace vardeno::walls;

namespace {

constexpr char wallEnding[] = ".wall.json";
constexpr char showEnding[] = ".show.json";

/// A wall, or a show with its walls, as it stands on the disk.
struct ReadDocument
{
    ShowDocument show; ///< with one output for a wall by itself
    std::vector<ShowFile::PlacedWall> walls;
    bool isGood = false;
};

ReadDocument readWallFile(const QString& path)
{
    ReadDocument read;
    const WallFile::Reading reading = WallFile::read(path);
    if (!reading.problems.isEmpty())
        return read;
    const WallFile::Chart chart = WallFile::chartOf(reading.wall, QFileInfo(path).absolutePath());
    read.walls.push_back({reading.wall, chart.record, path, chart.file});
    read.isGood = true;
    return read;
}

ReadDocument readShowFile(const QString& path)
{
    ReadDocument read;
    const ShowFile::Reading reading = ShowFile::read(path);
    if (!reading.problems.isEmpty() || reading.show.outputs.list.empty())
        return read;
    ShowFile::Walls walls = ShowFile::wallsOf(reading.show, QFileInfo(path).absolutePath());
    read.show = reading.show;
    read.walls = std::move(walls.list);
    read.isGood = walls.problems.isEmpty();
    return read;
}

ReadDocument readAny(const QString& path)
{
    return WallDocuments::isShow(path) ? readShowFile(path) : readWallFile(path);
}

/// Of a wall's picture or of an output's.
template <typename Picture>
QImage small(const Picture& picture, const QSize& size)
{
    const QSize fitted = picture.size().scaled(size, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    if (!picture.isDrawnInParts())
        return picture.image().scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return sampledRows(picture.size(), fitted, [&](int top, int count) { return picture.rows(top, count); });
}

} // namespace

namespace WallDocuments {

QStringList in(const QString& folder)
{
    QStringList paths;
    const QStringList patterns = {QLatin1Char('*') + QLatin1String(wallEnding),
                                  QLatin1Char('*') + QLatin1String(showEnding)};
    const QFileInfoList files = QDir(folder).entryInfoList(patterns, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files)
        paths.append(file.filePath());
    return paths;
}

bool isDocument(const QString& path)
{
    return isShow(path) || path.endsWith(QLatin1String(wallEnding));
}

bool isShow(const QString& path)
{
    return path.endsWith(QLatin1String(showEnding));
}

QStringList wallsOfShow(const QString& path)
{
    QStringList paths;
    for (const ShowFile::PlacedWall& wall : readShowFile(path).walls)
        paths.append(wall.file);
    paths.removeDuplicates();
    return paths;
}

ChartDetails details(const QString& path)
{
    ChartDetails details;
    const ReadDocument read = readAny(path);
    if (!read.isGood)
        return details;
    if (isShow(path)) {
        details.size = read.show.outputs.list.front().size();
        return details;
    }
    const WallDocument& wall = read.walls.front().wall;
    details.size = {wall.columnWidths.total(), wall.rowHeights.total()};
    details.grid = {wall.columnWidths.count(), wall.rowHeights.count()};
    return details;
}

QImage picture(const QString& path, const QSize& size)
{
    const ReadDocument read = readAny(path);
    if (!read.isGood)
        return {};
    return isShow(path) ? small(ShowPicture(read.show, read.walls, 0), size)
                        : small(WallPicture(read.walls.front().wall, read.walls.front().record, {},
                                            WallFile::markersOf(read.walls.front().wall,
                                                                read.walls.front().recordFile)),
                                size);
}

QByteArray contents(const QString& path)
{
    const ReadDocument read = readAny(path);
    QByteArray contents = ShowFile::toJson(read.show);
    for (const ShowFile::PlacedWall& wall : read.walls)
        contents +=
            WallFile::toJson(wall.wall) + vardeno::testcharttools::ChartRecordFile::toJson(wall.record);
    return contents;
}

} // namespace WallDocuments
