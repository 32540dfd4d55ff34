#pragma once

#include <QSize>
#include <QString>

namespace vardeno::testcharttools {

struct TestChartToolsData;

/// What keeps the file of the logo's picture from being drawn; empty where it is, or where the record wants
/// none.
QString logoFileProblem(const TestChartToolsData& record);

/// "1920 x 1080 pixels".
QString sized(const QSize& size);

} // namespace vardeno::testcharttools
