#pragma once

#include "painters/layerstack.h"

#include <map>

namespace vardeno::testcharttools {

/// Which layers of a chart have painted since it was last changed.
class PaintStatus
{
public:
    /// None has. `layers` outlives this.
    explicit PaintStatus(const std::vector<Layer>& layers = chartLayers());

    /// Forgets what has been noted.
    void clear();
    /// A layer has painted: returns the text that is logged for it, null for a name that is no layer's.
    const char* note(const QString& memberName);
    /// Whether all that are awaited have painted.
    bool isDone() const;

private:
    const std::vector<Layer>& m_layers;
    std::map<int, bool> m_painted; ///< by number
};

} // namespace vardeno::testcharttools
