#pragma once

#include "showdocument.h"
#include "wallfields.h"

namespace vardeno::walls {

// The members of what stands in a show's lists. A visitor's `needed` has no default, its `member` has one and
// is written only where it is another.

template <typename Visitor>
void visitMembers(Visitor& visitor, ShowOutput& output)
{
    visitor.needed("name", output.name, nameLength);
    visitor.needed("width", output.width, testcharttools::recordfields::sidePixels);
    visitor.needed("height", output.height, testcharttools::recordfields::sidePixels);
    visitor.member("frameRate", output.frameRate, Range{1, 1000});
}

template <typename Visitor>
void visitMembers(Visitor& visitor, ShowWall& wall)
{
    visitor.needed("name", wall.name, nameLength);
    visitor.needed("path", wall.path, testcharttools::recordfields::pathLength);
    visitor.member("color", wall.color);
}

template <typename Visitor>
void visitMembers(Visitor& visitor, WallPlacement& placement)
{
    constexpr int most = testcharttools::recordfields::sidePixels.most;
    visitor.needed("wall", placement.wall, nameLength);
    visitor.needed("output", placement.output, nameLength);
    visitor.member("x", placement.x, Range{-most, most});
    visitor.member("y", placement.y, Range{-most, most});
    visitor.member("part", placement.part);
    visitor.member("turned", placement.turned);
    visitor.member("mirrored", placement.mirrored);
}

/// The one table of the groups and fields of show documents, as `visitWall` is that of walls.
template <typename Visitor, typename Document>
void visitShow(Visitor& visitor, Document& show)
{
    visitor.group("show", "walls on outputs", [&] {
        visitor.field("name", show.name, nameLength, "stands in messages");
        visitor.field("outputs", show.outputs,
                      "pictures that a processor sends, each with a name of its own");
        visitor.field("walls", show.walls, "the files of walls, each with a name of its own");
        visitor.field("placements", show.placements, "walls on outputs; a later one lies over those before");
    });
    visitor.group("layers", "what is drawn over the walls", [&, &data = show.layers] {
        visitor.field("wallColors", data.wallColors, "every wall in a color of its own");
        visitor.field("colorPercent", data.colorPercent, Range{1, 100}, "of that color in each pixel");
    });
}

} // namespace vardeno::walls
