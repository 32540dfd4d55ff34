#pragma once

#include <cabinetmarkers.h>
#include <markerdata.h>
#include <wallreading.h>

/// The markers of `record`'s chart as readings look for them; none where its document wants none.
inline std::vector<WallReading::Marker>
readingMarkers(const vardeno::testcharttools::TestChartToolsData& record,
               const vardeno::testcharttools::MarkerData& data)
{
    std::vector<WallReading::Marker> markers;
    if (!data.showMarkers)
        return markers;
    for (const auto& [marker, square] : vardeno::testcharttools::cabinetMarkers(record))
        markers.push_back({marker, markers.size(), square});
    return markers;
}
