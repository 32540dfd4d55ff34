#pragma once

#include "showdocument.h"
#include "wallfile.h"

namespace vardeno::walls {

/// Shows as UTF-8 JSON documents of the format "testshow", as `docs/shows.md` describes them: read, checked
/// and written as walls are. Functions without state, for any thread, that throw nothing.
namespace ShowFile {

struct Reading
{
    ShowDocument show;
    /// What is wrong with the document, each with its field: "show.placements: (placement 2) there is no wall
    /// "Mian"". Where there are problems the show is not to be used.
    QStringList problems;
    QJsonObject document; ///< as it was read, with what is unknown here: for `write`
    QStringList unknown;  ///< with what may have been meant; it is no problem, and is kept
};

/// Whether the bytes are a document that says to be a show, good or not.
VDWALLS_EXPORT bool isShow(const QByteArray& json);

/// What `original` has besides the known fields is kept, and so is its "$schema".
VDWALLS_EXPORT QByteArray toJson(const ShowDocument& show, const QJsonObject& original = {});

/// A missing field takes its default; a wrong value, two outputs or two walls of one name, and placements of
/// what is not there are problems. The files of walls are not looked at.
VDWALLS_EXPORT Reading fromJson(const QByteArray& json);

/// Reads the file `path`. One that cannot be opened is a problem, too.
VDWALLS_EXPORT Reading read(const QString& path);

/// Writes the file `path`, whole or not at all. A show that `read` would refuse is not written. Returns an
/// empty text, or the path and the reason.
VDWALLS_EXPORT QString write(const QString& path, const ShowDocument& show, const QJsonObject& original = {});

/// The JSON Schema of the documents: what stands in `docs/show.schema.json`.
VDWALLS_EXPORT QByteArray schema();

/// A wall of a show as it stands in its file.
struct PlacedWall
{
    WallDocument wall;
    testcharttools::TestChartToolsData record;
    QString file;
    QString recordFile; ///< empty for a record in the wall's document
};

struct Walls
{
    std::vector<PlacedWall> list; ///< one for each wall of the show
    QStringList problems;         ///< "show.walls: (wall 2) side.wall.json: data.bitDepth: 7 is not in 8..16"
    QStringList unknown;
};

/// The walls that the show refers to, by paths from `folder`.
VDWALLS_EXPORT Walls wallsOf(const ShowDocument& show, const QString& folder);

} // namespace ShowFile

} // namespace vardeno::walls
