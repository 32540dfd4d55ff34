#pragma once

#include <testcharttoolsdata.h>

#include <QSize>
#include <QString>

#include <vector>

/// A start for a new record.
struct Preset
{
    QString name;
    QString description;
    void (*apply)(vardeno::testcharttools::TestChartToolsData& record, const Preset& preset);
    QSize resolution;                                       ///< chart pixels
    QSize cabinets;                                         ///< columns x rows
    std::vector<vardeno::testcharttools::RgbaColor> colors; ///< of the base pattern
    int sort = 0;                                           ///< of the labels
};

/// All of them: walls (resolution and cabinets) first, then pictures, which leave the wall as it is.
const std::vector<Preset>& presets();

/// The preset of that name, null where there is none.
const Preset* findPreset(const QString& name);
