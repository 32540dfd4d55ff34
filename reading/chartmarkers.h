#pragma once

#include "lens.h"
#include "wallreading.h"

#include <array>
#include <optional>
#include <vector>

namespace WallReading {

/// A coded marker in the picture.
struct SeenMarker
{
    int code = 0;
    std::array<cv::Point2d, 4>
        corners; ///< picture pixels, of its black square, from its own top left clockwise

    cv::Point2d middle() const { return (corners[0] + corners[1] + corners[2] + corners[3]) / 4; }
};

/// Those that are seen in `grey`; none where this was built without a detector.
std::vector<SeenMarker> markersIn(const cv::Mat& grey);

/// Where most of the markers say that the chart is; nothing where they are too few. What some cabinets show
/// in another one's place does no harm. Of cabinets with one code the neighbours tell which it is.
std::optional<Lens> placedByMarkers(const std::vector<SeenMarker>& seen, const Chart& chart,
                                    const std::vector<Marker>& markers, const cv::Size& picture);

/// What a cabinet shows, by the marker that is seen in it.
struct MarkedContent
{
    std::vector<std::size_t> cabinets; ///< those with that marker; the cabinet itself alone if it is one
    int turn = 0;                      ///< degrees to the right
};

/// For each cabinet of the chart, nothing where no marker is seen in it, or more than one.
using MarkedContents = std::vector<std::optional<MarkedContent>>;
MarkedContents contentsByMarkers(const std::vector<SeenMarker>& seen, const Chart& chart,
                                 const std::vector<Marker>& markers, const Lens& lens);

} // namespace WallReading
