#pragma once

#include <testcharttoolsdata.h>

#include <QStringList>

/// The numbers of `record` that are others in `shown`, what the editor made of it: "publicData.boxRow: 500".
/// Such a record cannot be edited without changing what nobody asked to change.
QStringList beyondEditor(const vardeno::testcharttools::TestChartToolsData& record,
                         const vardeno::testcharttools::TestChartToolsData& shown);
