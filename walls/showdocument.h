#pragma once

#include "testcharttoolsdata.h"
#include "vdwalls_export.h"

#include <QJsonObject>
#include <QMetaType>
#include <QRect>

#include <string>
#include <vector>

namespace vardeno::walls {

/// A picture that a processor sends: walls lie on it.
struct ShowOutput
{
    std::string name;
    int width = 1920;  ///< pixels
    int height = 1080; ///< pixels
    int frameRate = 60;
    QJsonObject others; ///< members that are unknown here, which are kept; so they are below

    QSize size() const { return {width, height}; }
};

/// The colour by which a wall is told from others; where none is given, one of twelve by its number.
struct WallColor
{
    bool isGiven = false;
    testcharttools::RgbaColor value;
};

/// A wall of the show, in a file of its own.
struct ShowWall
{
    std::string name; ///< by which placements refer to it
    std::string path; ///< UTF-8, relative to the folder of the show's file
    WallColor color;
    QJsonObject others;
};

/// Pixels of a wall; empty for all of it.
struct WallPart
{
    QRect rect;
};

/// Degrees clockwise: 0, 90, 180 or 270.
struct QuarterTurn
{
    int degrees = 0;
};

/// A wall, or a part of it, on an output. It is mirrored first, left and right exchanged, then turned; `x`
/// and `y` are where its top left corner comes to lie, which may be outside.
struct WallPlacement
{
    std::string wall;   ///< the name of one
    std::string output; ///< the name of one
    int x = 0;
    int y = 0;
    WallPart part;
    QuarterTurn turned;
    bool mirrored = false;
    QJsonObject others;
};

struct ShowOutputs
{
    std::vector<ShowOutput> list;
};

struct ShowWalls
{
    std::vector<ShowWall> list;
};

struct WallPlacements
{
    std::vector<WallPlacement> list; ///< a later one lies over those before
};

/// What is drawn over the walls.
struct ShowSwitches
{
    bool wallColors = false;
    int colorPercent = 40; ///< of the wall's colour in each pixel
};

/// Several walls on the outputs of a processor. A plain value; what reads it from a file takes only what fits
/// together.
struct ShowDocument
{
    std::string name; ///< UTF-8
    ShowOutputs outputs;
    ShowWalls walls;
    WallPlacements placements;
    ShowSwitches layers;
};

/// Their number in the list, from 0; -1 where there is none of that name.
VDWALLS_EXPORT int findOutput(const ShowDocument& show, const std::string& name);
VDWALLS_EXPORT int findWall(const ShowDocument& show, const std::string& name);

/// The colour of a wall of the show.
VDWALLS_EXPORT QColor colorOf(const ShowDocument& show, int wall);

} // namespace vardeno::walls

Q_DECLARE_METATYPE(vardeno::walls::ShowDocument)
