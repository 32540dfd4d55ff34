#pragma once

#include "chartapplication.h"
#include <picturerows.h>

#include <chartpicture.h>

#include <QImage>

namespace vardeno::testcharttools {
struct TestChartToolsData;
}

struct ChartInput;
struct ShowInput;

/// Makes the pictures of records, as the chart editor does. One at a time in a process, made in its main
/// thread.
class ChartRenderer
{
public:
    /// `language`: of the resolution line.
    explicit ChartRenderer(const QString& language);

    /// A record, a wall or an output of a show in its resolution, drawn strip by strip when its rows are
    /// asked for. Throws Failure where the picture of its logo cannot be drawn: without it, it would be
    /// another chart. For any thread.
    vardeno::testcharttools::PictureRows rows(const ChartInput& chart) const;
    /// The same as one image. Throws `std::bad_alloc`.
    QImage render(const ChartInput& chart) const;

private:
    vardeno::testcharttools::PictureRows rows(const ShowInput& show, int output) const;

    ChartApplication m_application;
    vardeno::testcharttools::ChartCaptions m_captions;
};
