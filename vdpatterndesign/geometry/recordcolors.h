#pragma once

#include "testcharttoolsdata.h"

#include <QString>

namespace vardeno::testcharttools {

/// What colours of a record come to on the chart, before the brightness veil.

/// The base pattern in the middle of a cabinet.
QColor cabinetColor(const TestChartToolsData& record, int row, int column);

/// Whether the chessboard's two colours are one.
bool hasPlainChess(const BasicChartData& data);

/// How many cabinets have a label that can hardly be told from the cabinet, and the first of them.
struct HiddenLabels
{
    int count = 0;
    QString first;
};
HiddenLabels hiddenLabels(const TestChartToolsData& record);

} // namespace vardeno::testcharttools
