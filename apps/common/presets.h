#pragma once

#include <markerdata.h>
#include <testcharttoolsdata.h>

#include <QSize>
#include <QString>

#include <vector>

/// What a new record begins with: a wall for `newChart`, or a picture for what that gives.
struct Preset
{
    QString name;
    QString description;
    void (*apply)(vardeno::testcharttools::TestChartToolsData& record, const Preset& preset);
    QSize resolution;                                       ///< chart pixels
    QSize cabinets;                                         ///< columns x rows
    std::vector<vardeno::testcharttools::RgbaColor> colors; ///< of the base pattern
    int sort = 0;                                           ///< of the labels
    vardeno::testcharttools::MarkerData markers = {};       ///< of a picture

    bool isWall() const { return !resolution.isEmpty(); }
};

/// All of them: walls (resolution and cabinets, and nothing else) first, then pictures, which leave the wall
/// as it is.
const std::vector<Preset>& presets();

/// The preset of that name, null where there is none.
const Preset* findPreset(const QString& name);
