#pragma once

#include "readingfinding.h"

#include <cabinetcomparison.h>

#include <QImage>
#include <QStringList>

#include <atomic>
#include <vector>

/// Reads a wall from photographs, captures and video frames. Functions of values, for any thread; nothing is
/// thrown but std::bad_alloc.
namespace WallReading {

/// What the wall is to show.
struct Chart
{
    QImage picture;
    ChartComparison::CabinetGrid cabinets; ///< row by row, in chart pixels
};

/// A coded marker (AprilTag 36h11) that the chart has in one of its cabinets.
struct Marker
{
    int code = 0;            ///< its number in the family; other cabinets may have the same
    std::size_t cabinet = 0; ///< in the chart's grid
    QRect square;            ///< its black one, in chart pixels
};

struct Reading
{
    bool isLocated = false;
    Doubt doubt = Doubt::None;
    Place alike;                    ///< where the chart looks the same moved: by so many rows and columns
    std::array<QPointF, 4> corners; ///< picture pixels, from the chart's top left clockwise
    std::vector<Finding> findings;  ///< worst first
    std::vector<EdgeLoss> edges;
    std::vector<WholeFinding> whole;
    QImage rectified;   ///< what the wall shows, as large as the chart or smaller
    double score = 0;   ///< how well the place shows the chart, 1 at most
    double seconds = 0; ///< that the reading took

    /// Says that nothing is wrong with what was seen.
    VDREADING_EXPORT bool isGood() const;
    VDREADING_EXPORT QStringList sentences(const Phrases& say = inEnglish) const;
};

/// Looks for the chart in `picture`, and at each of its cabinets. It ends soon, as if out of time, once
/// `canceled` is true.
VDREADING_EXPORT Reading read(const QImage& picture, const Chart& chart,
                              const std::atomic<bool>* canceled = nullptr);

/// The same with a chart that has markers: any part of the wall is enough then, and what is swapped or turned
/// is told exactly where its marker is seen.
VDREADING_EXPORT Reading read(const QImage& picture, const Chart& chart, const std::vector<Marker>& markers,
                              const std::atomic<bool>* canceled = nullptr);

/// What several pictures of one wall say together: what one of them does not show, or shows not well enough,
/// another one may. Where they contradict one another nobody is accused. Place and straightened picture are
/// the first located one's.
VDREADING_EXPORT Reading combined(const std::vector<Reading>& readings, const Chart& chart);

} // namespace WallReading
