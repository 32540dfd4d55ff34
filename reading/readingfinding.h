#pragma once

#include "vdreading_export.h"

#include <QPointF>
#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <vector>

/// What a photograph or a capture of the wall says, as values. `sentence` puts it into words.
namespace WallReading {

enum class Kind
{
    Swapped,    ///< shows what belongs to another cabinet
    Turned,     ///< by 90, 180 or 270 degrees
    Mirrored,   ///< left to right, and turned besides where `turn` says so
    Dark,       ///< shows nothing
    Flat,       ///< one colour
    Other,      ///< shows something else
    Shifted,    ///< by `shift`
    Brightness, ///< too dark or too bright, by `factor`
    Color,      ///< a colour is missing or exchanged
    Hidden,     ///< something is before it, or it is not in the picture
    Unsure      ///< it differs, but nothing explains it well enough
};

/// A cabinet of the chart, both from 0, from the top left.
struct Place
{
    int row = 0;
    int column = 0;
};

struct Finding
{
    Kind kind = Kind::Unsure;
    Place cabinet;
    QString label;              ///< of the cabinet
    std::optional<Place> shows; ///< the cabinet whose content it shows
    QString showsLabel;
    int turn = 0;          ///< degrees to the right
    QPointF shift;         ///< chart pixels, to the right and down
    double factor = 1;     ///< of the brightness, in values of the picture
    double confidence = 0; ///< 0 to 1
};

/// Accusations say that a cabinet is wrong; the rest says what could not be seen.
inline bool isAccusation(Kind kind)
{
    return kind != Kind::Hidden && kind != Kind::Unsure;
}

enum class Edge
{
    Left,
    Top,
    Right,
    Bottom
};

/// So much of the chart is missing at an edge.
struct EdgeLoss
{
    Edge edge = Edge::Left;
    int pixels = 0; ///< chart pixels
};

/// What holds for the picture as a whole.
enum class Whole
{
    Mirrored, ///< left to right
    Turned    ///< by `turn`
};

struct WholeFinding
{
    Whole kind = Whole::Mirrored;
    int turn = 0; ///< degrees to the right
};

/// Why a chart was not found, or not surely.
enum class Doubt
{
    None,
    NoPicture,
    NotFound,
    AlikeWhenMoved, ///< `alike` says by how many cabinets
    OutOfTime
};

/// Gives the texts of the sentences in a language, from the English ones. Places for values stay: "%1".
using Phrases = std::function<QString(const char* english)>;

VDREADING_EXPORT QString inEnglish(const char* english);

VDREADING_EXPORT QString sentence(const Finding& finding, const Phrases& say = inEnglish);
VDREADING_EXPORT QString sentence(const EdgeLoss& edge, const Phrases& say = inEnglish);
VDREADING_EXPORT QString sentence(const WholeFinding& finding, const Phrases& say = inEnglish);

/// "swapped", as programs are told.
VDREADING_EXPORT QString kindName(Kind kind);
VDREADING_EXPORT QString edgeName(Edge edge);

} // namespace WallReading
