#pragma once

#include "chartapplication.h"

#include <vtestcharttools.h>

#include <QImage>

/// Makes the picture of a record, as the chart editor does. One at a time in a process, in its main thread.
class ChartRenderer
{
public:
    /// `language`: of the resolution line.
    explicit ChartRenderer(const QString& language);

    /// The chart in its resolution. Throws Failure where the picture of its logo cannot be drawn: without it,
    /// it would be another chart.
    QImage render(const vardeno::testcharttools::TestChartToolsData& record);

private:
    ChartApplication m_application;
    vardeno::testcharttools::VTestChartTools m_editor;
};
