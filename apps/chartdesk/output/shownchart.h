#pragma once

#include <chartpicture.h>
#include <testcharttoolsdata.h>

#include <QDateTime>
#include <QImage>
#include <QString>

#include <optional>

/// A chart as the output shows it. A plain value.
struct ShownChart
{
    QImage picture;  ///< null where there is a problem
    QString problem; ///< empty where there is not enough memory
    /// What the chart was made from; none for a picture without a record, or with that of another size.
    std::optional<vardeno::testcharttools::TestChartToolsData> record;
    QDateTime modified;                               ///< the file, when it was read
    vardeno::testcharttools::MarkerData markers = {}; ///< that the record's document wants

    /// Reads a picture, with the record beside it, or draws the record that `path` is. For any thread.
    static ShownChart read(const QString& path, const vardeno::testcharttools::ChartCaptions& captions);
};
