#pragma once

#include <pngencoder.h>

#include <testcharttoolsdata.h>

#include <QImage>

/// The record in a PNG picture: compressed text under "testchart-record", as a record file has it, and the
/// language of the resolution line under "testchart-language".
namespace CarriedRecord {

/// The texts for a picture that is to be written to `output`. A logo's path is relative to its folder.
std::vector<vardeno::testcharttools::PngText> texts(const vardeno::testcharttools::TestChartToolsData& record,
                                                    const QString& language, const QString& output);

/// What a picture carries; empty where it carries none.
QByteArray json(const QImage& picture);
QString language(const QImage& picture);

} // namespace CarriedRecord
