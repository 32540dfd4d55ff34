#pragma once

#include "testcharttoolsdata.h"
#include "vdwalls_export.h"

#include <QJsonObject>
#include <QMetaType>

#include <string>
#include <vector>

namespace vardeno::walls {

/// A place in the grid of cabinets: 0-based column and row from the top left. Documents count from 1.
struct Place
{
    int column = 0;
    int row = 0;
};

inline bool operator==(Place a, Place b)
{
    return a.column == b.column && a.row == b.row;
}

/// The widths of all columns, or the heights of all rows, in pixels.
struct VDWALLS_EXPORT CabinetSizes
{
    std::vector<int> pixels;

    int count() const { return int(pixels.size()); }
    int total() const; ///< pixels
};

/// A cabinet that is not like the others.
struct CabinetException
{
    Place at; ///< its top left place in the grid
    bool missing = false;
    int turned = 0;  ///< degrees clockwise: 0, 90, 180 or 270
    int columns = 1; ///< that it spans
    int rows = 1;
    std::string name;   ///< UTF-8; empty for what the numbering gives
    QJsonObject others; ///< members that are unknown here, which are kept
};

struct CabinetExceptions
{
    std::vector<CabinetException> list;
};

enum class Corner
{
    TopLeft,
    TopRight,
    BottomLeft,
    BottomRight
};

/// Whether the rows or the columns are gone along.
enum class Direction
{
    Rows,
    Columns
};

/// How the rows or columns follow one another.
enum class Pattern
{
    BackAndForth, ///< each other one is gone along the other way
    OneWay,       ///< all are gone along the same way
    EachLine      ///< likewise, and each of them by itself
};

enum class NameStyle
{
    Record, ///< as the chart's record labels its cabinets
    Numbers
};

struct CabinetNumbering
{
    NameStyle style = NameStyle::Record;
    Corner corner = Corner::TopLeft;
    Direction direction = Direction::Rows;
    bool backAndForth = false;
    int start = 1;
    std::string prefix; ///< UTF-8
    int digits = 1;     ///< at least so many, with zeros before
};

/// Runs by hand: each a list of places, from where it is fed on.
struct CableLists
{
    std::vector<std::vector<Place>> runs;
};

/// How a cable goes from cabinet to cabinet.
struct CablePath
{
    Corner corner = Corner::TopLeft;
    Direction direction = Direction::Rows;
    Pattern pattern = Pattern::BackAndForth;
    CableLists byHand; ///< where there are some, these are the runs
};

struct DataCabling
{
    CablePath path;
    int portPixels = 655360; ///< that a port feeds at 8 bit and 60 Hz
    int bitDepth = 8;
    int frameRate = 60;   ///< Hz
    int portCabinets = 0; ///< at the most on a port; 0 for as many as its pixels allow
    bool backup = false;  ///< a second port feeds each run from its end
};

struct PowerCabling
{
    CablePath path;
    int voltage = 230;
    int circuitWatts = 3000;
};

/// Of a usual cabinet: one whose width and height most columns and rows have. Others count by their pixels.
struct PhysicalCabinet
{
    int width = 0;  ///< millimetres; 0 for unknown, as everything here
    int height = 0; ///< millimetres
    int pitch = 0;  ///< micrometres from pixel to pixel
    int grams = 0;  ///< weight
    int watts = 0;  ///< at the most
};

/// A record's document as it stands in the wall's; empty for none.
struct InlineRecord
{
    QJsonObject document;
};

/// What is drawn on the wall: a record of its own, or one in a file.
struct WallChart
{
    std::string path; ///< UTF-8, relative to the folder of the wall's file
    InlineRecord record;
};

/// Layers over the record's, each switched by itself. Sizes are chart pixels.
struct WallSwitches
{
    bool blackHoles = true;
    bool outlines = false;
    int outlineWidth = 2;
    testcharttools::RgbaColor outlineColor = {255, 255, 255, 255};
    bool frames = false;
    testcharttools::RgbaColor frameColor = {255, 255, 255, 255};
    bool dataRuns = false;
    bool powerRuns = false;
    int runWidth = 0; ///< 0 for a width that suits the cabinets
    bool names = false;
    int nameSize = 32; ///< font pixels, fewer where cabinets are small
    testcharttools::RgbaColor nameColor = {255, 255, 255, 255};
    bool coordinates = false;
    int coordinateSize = 14; ///< font pixels, fewer where cabinets are small
    testcharttools::RgbaColor coordinateColor = {255, 255, 255, 255};
};

/// A wall of cabinets: what a technician builds, wires and looks at. A plain value; what reads it from a file
/// takes only what fits together.
struct VDWALLS_EXPORT WallDocument
{
    WallDocument();

    std::string name; ///< UTF-8
    CabinetSizes columnWidths;
    CabinetSizes rowHeights;
    CabinetExceptions exceptions;
    PhysicalCabinet physical;
    CabinetNumbering numbering;
    DataCabling data;
    PowerCabling power;
    WallChart chart;
    WallSwitches layers;
};

/// Whether all that a document says of them is the same.
VDWALLS_EXPORT bool operator==(const WallDocument& a, const WallDocument& b);

inline bool operator!=(const WallDocument& a, const WallDocument& b)
{
    return !(a == b);
}

} // namespace vardeno::walls

Q_DECLARE_METATYPE(vardeno::walls::WallDocument)
