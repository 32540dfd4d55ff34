#pragma once

#include "exitcode.h"

#include <markerdata.h>
#include <testcharttoolsdata.h>

#include <QSize>

#include <string>
#include <vector>

/// What a command line changes in every record that it reads.
struct Changes
{
    std::vector<std::string> settings; ///< "field=value", in their order
    std::string grid;                  ///< "16x9", columns and rows of cabinets; empty to leave them
    std::string cabinet;               ///< "128x128", a cabinet's pixels; empty to leave the resolution
};

/// The two numbers of a text like "15x9". Throws a Failure of wrong usage for anything else.
QSize parsedPair(const char* option, const std::string& text);

/// Changes `record` and what its document says beside it: the grid, then the cabinets, then the fields.
/// Throws a Failure of wrong usage.
void applyChanges(vardeno::testcharttools::TestChartToolsData& record,
                  vardeno::testcharttools::MarkerData& markers, const Changes& changes);

/// Changes the fields of both. For a setting that is none throws `blame` with the problem behind its
/// message.
void applySettings(vardeno::testcharttools::TestChartToolsData& record,
                   vardeno::testcharttools::MarkerData& markers, const std::vector<std::string>& settings,
                   const Failure& blame = {ExitCode::Usage, QStringLiteral("--set")});
