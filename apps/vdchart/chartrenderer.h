#pragma once

#include "chartapplication.h"

#include <chartpicture.h>

#include <QImage>

namespace vardeno::testcharttools {
struct TestChartToolsData;
}

/// Makes the pictures of records, as the chart editor does. One at a time in a process, made in its main
/// thread.
class ChartRenderer
{
public:
    /// `language`: of the resolution line.
    explicit ChartRenderer(const QString& language);

    /// The chart in its resolution. Throws Failure where the picture of its logo cannot be drawn: without it,
    /// it would be another chart. For any thread.
    QImage render(const vardeno::testcharttools::TestChartToolsData& record) const;

private:
    ChartApplication m_application;
    vardeno::testcharttools::ChartCaptions m_captions;
};
