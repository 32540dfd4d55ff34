#pragma once

#include "changes.h"

#include <showfile.h>

#include <QStringList>

#include <memory>
#include <optional>

class FileClaims;

/// A show with its walls.
struct ShowInput
{
    vardeno::walls::ShowDocument show;
    std::vector<vardeno::walls::ShowFile::PlacedWall> walls;
};

/// What is drawn: a record, a wall with its record, or an output of a show.
struct ChartInput
{
    vardeno::testcharttools::TestChartToolsData record; ///< a default one for a show
    std::optional<vardeno::walls::WallDocument> wall;
    QString recordFile; ///< the file that a wall names; empty where the record is in the document
    std::shared_ptr<const ShowInput> show = nullptr;
    int output = -1; ///< of the show, from 0; -1 as long as none has been chosen
    vardeno::testcharttools::MarkerData markers =
        {}; ///< of the record's document; a show's walls have theirs
};

struct ChartReading
{
    ChartInput chart;
    QStringList problems; ///< where there are some, the chart is not to be used
    QStringList unknown;
};

/// Of the document `json`, whose relative paths are from `folder`.
ChartReading readRecordOf(const QByteArray& json, const QString& folder);
ChartReading readWall(const QByteArray& json, const QString& folder);

/// Makes `changes` to the record of what was read from `path`. Throws Failure where a wall or a show forbids
/// them.
void applyChanges(ChartReading& reading, const Changes& changes, const QString& path);

/// The record, the wall or the show at `path`, or the one that a PNG picture there carries, told apart by
/// what is in it, with `changes` made to the record; what is wrong is told with it. Throws Failure for a file
/// that cannot be read, and for changes that a wall or a show forbids.
ChartReading readChart(const QString& path, const Changes& changes);

/// The same. Throws Failure where anything is wrong with it; of what is unknown in it the standard error is
/// told.
ChartInput requireChart(const QString& path, const Changes& changes);

/// Changes the fields of the chart's record, as `applySettings` does. Throws `blame` also where they are
/// those that a wall has itself, and where there are changes to a show.
void applySettings(ChartInput& chart, const std::vector<std::string>& settings, const Failure& blame);

/// The pictures that there are of the chart: one for each output of a show, otherwise the chart itself.
std::vector<ChartInput> picturesOf(const ChartInput& chart);

/// The picture of the output that is called `output`, which may be left out where there is only one. `path`
/// stands in the messages of the Failure that is thrown where there is no such picture.
ChartInput chosenPicture(const ChartInput& chart, const std::string& output, const QString& path);

/// Pixels of the picture.
QSize sizeOf(const ChartInput& chart);

/// The name of the show's output; empty for other charts.
QString outputName(const ChartInput& chart);

/// Notes every file that the chart is made of besides its own; `what` as for `FileClaims::reads`.
void claimFiles(FileClaims& claims, const ChartInput& chart, const QString& what);
