#pragma once

#include "chartinput.h"
#include "pulledcables.h"

#include <wallreading.h>

/// The cabinets of a chart as a reading looks at them: all places of a wall, with the names of the cabinets
/// that they belong to.
class ReadingGrid
{
public:
    /// Of a record or a wall.
    explicit ReadingGrid(const ChartInput& chart);

    const ChartComparison::CabinetGrid& cabinets() const { return m_grid; }
    const std::vector<WallReading::Marker>& markers() const { return m_markers; }

    /// Leaves out of a reading by these cabinets what it says of holes, and all but the worst of what it says
    /// of one cabinet; notes which cables look pulled.
    void take(WallReading::Reading& reading);
    const std::vector<PulledCable>& pulled() const { return m_pulled; }

private:
    void addPlaces();
    void addMarkers(const ChartInput& chart);

    ChartComparison::CabinetGrid m_grid;
    std::vector<WallReading::Marker> m_markers;
    std::optional<SeenWall> m_wall; ///< none for a record
    std::vector<PulledCable> m_pulled;
};
