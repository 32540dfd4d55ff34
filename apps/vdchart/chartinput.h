#pragma once

#include "changes.h"

#include <wallfile.h>

#include <QStringList>

#include <optional>

/// What is drawn: a record, or a wall with its record.
struct ChartInput
{
    vardeno::testcharttools::TestChartToolsData record;
    std::optional<vardeno::walls::WallDocument> wall;
    QString recordFile; ///< the file that a wall names; empty where the record is in the document
};

struct ChartReading
{
    ChartInput chart;
    QStringList problems; ///< where there are some, the chart is not to be used
    QStringList unknown;
};

/// The record or the wall at `path`, told apart by what is in it, with `changes` made to the record; what is
/// wrong is told with it. Throws Failure for a file that cannot be read, and for changes that a wall forbids.
ChartReading readChart(const QString& path, const Changes& changes);

/// The same. Throws Failure where anything is wrong with it; of what is unknown in it the standard error is
/// told.
ChartInput requireChart(const QString& path, const Changes& changes);

/// Changes the fields of the chart's record, as `applySettings` does. Throws `blame` also where they are
/// those that a wall has itself.
void applySettings(ChartInput& chart, const std::vector<std::string>& settings, const Failure& blame);
