#pragma once

namespace vardeno::testcharttools {

/// What a chart's document says of the coded markers by which photographs of the wall are read: the group
/// "markerData". It goes beside the record, whose members hosts take apart.
struct MarkerData
{
    bool showMarkers = false; ///< a coded marker in every cabinet
};

inline bool operator==(const MarkerData& a, const MarkerData& b)
{
    return a.showMarkers == b.showMarkers;
}

inline bool operator!=(const MarkerData& a, const MarkerData& b)
{
    return !(a == b);
}

} // namespace vardeno::testcharttools
