#pragma once

#include "testcharttoolsdata.h"
#include "vdpatterndesign_export.h"

#include <QByteArray>
#include <QStringList>

namespace vardeno::testcharttools {

/// Chart records as UTF-8 JSON documents, one object for each group, every field under its own name, colours
/// as [red, green, blue, alpha], colour lists as arrays of colours. Functions without state, for any thread.
namespace ChartRecordFile {

struct Reading
{
    TestChartToolsData record;
    /// What is wrong with the document, each with its field: "publicData.boxRow: 500 is not in 1..100". Where
    /// there are problems the record is not to be used.
    QStringList problems;
};

VDPATTERNDESIGN_EXPORT QByteArray toJson(const TestChartToolsData& record);

/// A missing field takes its default; a value of the wrong type or outside its range is a problem, never
/// converted or cut in silence.
VDPATTERNDESIGN_EXPORT Reading fromJson(const QByteArray& json);

/// Reads the file `path`. A file that cannot be opened is a problem, too.
VDPATTERNDESIGN_EXPORT Reading read(const QString& path);

/// Writes the file `path`, whole or not at all. Returns an empty text, or the path and the reason.
VDPATTERNDESIGN_EXPORT QString write(const QString& path, const TestChartToolsData& record);

} // namespace ChartRecordFile

} // namespace vardeno::testcharttools
