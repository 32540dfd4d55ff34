#pragma once

#include "chartinput.h"

#include <pngencoder.h>

#include <QString>

#include <functional>

/// The chart in a PNG picture, as compressed texts. A record is under "testchart-record", as a record file
/// has it; a wall under "testchart-wall" with its record in it; an output of a show under "testchart-show"
/// and "testchart-output", its walls under "testchart-wall-1" and so on. The language of the resolution line
/// is under "testchart-language".
namespace CarriedChart {

/// The text of a picture under a keyword; empty where there is none.
using Texts = std::function<QString(const QString& keyword)>;

/// For a picture of `chart` that is to be written to `output`. Paths of logos are relative to its folder;
/// other files are not needed.
std::vector<vardeno::testcharttools::PngText> texts(const ChartInput& chart, const QString& language,
                                                    const QString& output);

/// Whether a picture carries one, good or not.
bool isIn(const Texts& texts);
/// What it carries; paths are relative to `folder`.
ChartReading read(const Texts& texts, const QString& folder);
QString language(const Texts& texts);
/// The name of a show's output; empty for other charts.
QString output(const Texts& texts);

/// Of the PNG file `path`, without its pixels. Throws Failure.
Texts textsOf(const QString& path);
/// Throws Failure where the picture has more text than is read. Before its texts are asked for.
void requireLittleText(QIODevice& picture, const QString& path);

/// By its first bytes; false for the standard input.
bool isPng(const QString& path);

} // namespace CarriedChart
