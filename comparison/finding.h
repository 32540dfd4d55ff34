#pragma once

#include <QString>

namespace ChartComparison {

enum class Kind
{
    OneColor,       ///< the picture is one colour, the chart is not
    OtherSize,      ///< both are the same one colour
    Scaled,         ///< to another size, zoomed in, or made smaller between bars
    Cropped,        ///< it is a part of the chart
    Padded,         ///< the chart is a part of it
    Shifted,        ///< moved in the same size
    Turned,         ///< turned or mirrored
    ColorsChanged,  ///< one colour for another, everywhere
    CabinetSwapped, ///< shows what belongs to another cabinet
    CabinetMissing, ///< is one colour
    CabinetTurned,
    CabinetDiffers,
    OutsideCabinets, ///< pixels that belong to no cabinet
    Lossy,           ///< a little everywhere
    NotThisChart
};

/// What is wrong with a picture, and a sentence that tells it.
struct Finding
{
    Kind kind;
    QString text;
};

} // namespace ChartComparison
