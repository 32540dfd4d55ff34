#pragma once

#include "turn.h"
#include "vdcomparison_export.h"

#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QString>

#include <array>
#include <variant>
#include <vector>

/// What is wrong with a picture, as values: which cabinets, and by how much. `sentence` puts it into words.
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

/// A cabinet of the chart.
struct CabinetPlace
{
    int row = 0;    ///< from 0, at the top
    int column = 0; ///< from 0, at the left
    QString label;
    bool isUnique = true; ///< no other cabinet has the label
};

/// A size in chart pixels where another was expected.
struct SizeChange
{
    QSize actual;
    QSize expected;
};

/// All pixels of the picture are this colour.
struct SingleColor
{
    QRgb color = 0;
    SizeChange sizes;
};

/// `part` of the chart is shown in `content` of the picture.
struct ScaleChange
{
    QRectF part;         ///< in chart pixels
    QRect content;       ///< in pixels of the picture
    bool smooth = false; ///< mixed from neighbouring pixels, not taken from the nearest one
    SizeChange sizes;

    double horizontalFactor() const { return content.width() / part.width(); }
    double verticalFactor() const { return content.height() / part.height(); }
};

/// What was cut off, or put around.
struct EdgeChange
{
    QMargins margins;
    SizeChange sizes;
    bool isAmbiguous = false; ///< other places fit as well
};

struct Shift
{
    QPoint by;                ///< to the right and down
    bool wraps = false;       ///< what leaves on one side comes back on the other
    bool isAmbiguous = false; ///< other places fit as well
};

/// A colour of the chart, what is shown instead, and in how many pixels.
struct ColorPair
{
    QRgb from;
    QRgb to;
    qint64 pixels;
};

struct ColorEffect
{
    enum class Type
    {
        ChannelsExchanged, ///< `sources`
        ChannelsMissing,   ///< those with a factor of 0
        Grey,
        Inverted,
        LimitedRange,   ///< 0..255 shows as 16..235, darker by `factors` before
        Stretched,      ///< 16..235 shows as 0..255
        Brightness,     ///< by one factor
        ChannelFactors, ///< by one factor for each channel
        Gamma,
        Decoded709,     ///< encoded by BT.601
        Decoded601,     ///< encoded by BT.709
        ColorsExchanged ///< `pairs`, whatever they are
    };

    Type type = Type::ColorsExchanged;
    std::array<int, 3> sources = {0, 1, 2};    ///< which channel red, green and blue are taken from
    std::array<double, 3> factors = {1, 1, 1}; ///< of red, green and blue
    double gamma = 1;                          ///< above 1: middle tones are darker
    std::vector<ColorPair> pairs;              ///< of colours that differ, the most frequent first
};

/// The first pixel that differs, row by row.
struct DifferingPixel
{
    QPoint at; ///< in chart pixels
    QRgb actual = 0;
    QRgb expected = 0;
};

struct PixelDifference
{
    qint64 differing = 0;
    qint64 all = 0;
    DifferingPixel first;
    std::vector<CabinetPlace> lookalike; ///< one of the cabinets that the differing one looks like, or none
    int moreLookalikes = 0;
};

/// How far colours are off in the whole picture, of 255.
struct Deviation
{
    int greatest = 0;
    double mean = 0;
    double differingShare = 0; ///< of the pixels, 0 to 1
};

/// A finding that stands for all further ones of its kind, with their cabinets.
struct Further
{
    int count = 0;
};

/// A cabinet shows what belongs to another one.
struct Swap
{
    bool isMutual = false; ///< and that one what belongs to the first
};

/// Cabinets show nothing but one colour.
struct Missing
{
    QRgb color = 0;
};

/// Cabinets that differ besides, in a picture that was scaled.
struct DiffersBesides
{
};

/// By kind: `SingleColor` for `OneColor`, `SizeChange` for `OtherSize`, `ScaleChange` for `Scaled`,
/// `EdgeChange` for `Cropped` and `Padded`, `Shift`, `Turn` for `Turned` and `CabinetTurned`, `ColorEffect`,
/// `Swap`, `Missing`, `PixelDifference` for `OutsideCabinets` and `CabinetDiffers`, or `DiffersBesides` for
/// the latter, `Deviation` for `Lossy`. `NotThisChart` has a `Deviation` for a picture of the chart's size, a
/// `SizeChange` for another one, and nothing where there is no picture. Findings of cabinets may be
/// `Further`.
using Details = std::variant<std::monostate, SingleColor, SizeChange, ScaleChange, EdgeChange, Shift, Turn,
                             ColorEffect, Swap, Missing, PixelDifference, Deviation, Further, DiffersBesides>;

struct Finding
{
    Kind kind;
    Details details;
    /// The cabinets that it is about. Of a swap the one that shows something else and the one that belongs
    /// there; of a turn the second, where there is one, is the one that belongs there.
    std::vector<CabinetPlace> cabinets;
    std::vector<Finding> alternatives; ///< that explain the whole picture as well
};

/// A finding as an English sentence, without a full stop.
VDCOMPARISON_EXPORT QString sentence(const Finding& finding);

/// "#ff8000".
VDCOMPARISON_EXPORT QString colorName(QRgb color);

/// "mirrored left to right".
QString turnText(Turn turn);

} // namespace ChartComparison
