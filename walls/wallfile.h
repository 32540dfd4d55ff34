#pragma once

#include "markerdata.h"
#include "testcharttoolsdata.h"
#include "vdwalls_export.h"
#include "walldocument.h"

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

namespace vardeno::walls {

/// Walls as UTF-8 JSON documents of the format "testwall", as `docs/walls.md` describes them: read, checked
/// and written as chart records are. Functions without state, for any thread, that throw nothing.
namespace WallFile {

struct Reading
{
    WallDocument wall;
    /// What is wrong with the document, each with its field: "cabinets.columnWidths: 40000 pixels in all are
    /// not in 16..32768". Where there are problems the wall is not to be used.
    QStringList problems;
    /// The document as it was read, with what is unknown here: for `write`.
    QJsonObject document;
    /// What of it is unknown here, with what may have been meant. It is no problem, and is kept.
    QStringList unknown;
};

/// Whether the bytes are a document that says to be a wall, good or not. It is a quick look: of what is no
/// JSON it is not true.
VDWALLS_EXPORT bool isWall(const QByteArray& json);

/// What `original` has besides the known fields is kept, and so is its "$schema".
VDWALLS_EXPORT QByteArray toJson(const WallDocument& wall, const QJsonObject& original = {});

/// A missing field takes its default; a wrong value, cabinets that overlap or lie outside of the grid, and
/// runs by hand to where no cabinet is are problems. So is what is wrong with a record in the document.
VDWALLS_EXPORT Reading fromJson(const QByteArray& json);

/// Reads the file `path`. One that cannot be opened is a problem, too.
VDWALLS_EXPORT Reading read(const QString& path);

/// Writes the file `path`, whole or not at all. A wall that `read` would refuse is not written. Returns an
/// empty text, or the path and the reason.
VDWALLS_EXPORT QString write(const QString& path, const WallDocument& wall, const QJsonObject& original = {});

/// The JSON Schema of the documents: what stands in `docs/wall.schema.json`.
VDWALLS_EXPORT QByteArray schema();

struct Chart
{
    testcharttools::TestChartToolsData record;
    QStringList problems; ///< "chart.path: chart.json: No such file or directory"
    QStringList unknown;
    QString file; ///< that the record is in; empty for one in the wall's document
};

/// The record that is drawn on the wall: the one in the document, or in the file that it names, or a default
/// one. Its resolution, rows and columns are those of the wall. Relative paths are from `folder`.
VDWALLS_EXPORT Chart chartOf(const WallDocument& wall, const QString& folder);

/// What the document of that record says of markers; `file` is that of `chartOf`.
VDWALLS_EXPORT testcharttools::MarkerData markersOf(const WallDocument& wall, const QString& file);

} // namespace WallFile

} // namespace vardeno::walls
