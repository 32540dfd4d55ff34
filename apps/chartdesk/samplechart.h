#pragma once

#include <testcharttoolsdata.h>

#include <QImage>

#include <functional>

/// A small picture of a chart of any size, drawn from its record: of the rows that become one a few are
/// looked at, so that neither memory nor time grows with the chart. `size` is that of the picture, no larger
/// than the chart. For any thread.
QImage sampledChart(const vardeno::testcharttools::TestChartToolsData& record, const QSize& size);

/// The same of another picture, whose size is `whole`, by its rows.
QImage sampledRows(const QSize& whole, const QSize& size,
                   const std::function<QImage(int top, int count)>& rows);
