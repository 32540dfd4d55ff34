#pragma once

#include "records/recordfields.h"
#include "walldocument.h"

namespace vardeno::walls {

using testcharttools::recordfields::Length;
using testcharttools::recordfields::Range;

constexpr Length nameLength = {100};

/// The fields that say how a cable goes, which data and power have alike.
template <typename Visitor, typename Path>
void visitPath(Visitor& visitor, Path& path)
{
    visitor.field("corner", path.corner, "where the first run begins");
    visitor.field("direction", path.direction, "what is gone along");
    visitor.field("pattern", path.pattern, "how the rows or columns follow one another");
    visitor.field("runs", path.byHand,
                  "by hand, as [column, row] or, for a straight stretch, [column, row, "
                  "column, row]; empty for runs by the pattern");
}

/// The one table of the groups and fields of wall documents, as `recordfields::visit` is that of records.
template <typename Visitor, typename Document>
void visitWall(Visitor& visitor, Document& wall)
{
    visitor.group("wall", "what the wall is called",
                  [&] { visitor.field("name", wall.name, nameLength, "stands in messages"); });
    visitor.group("cabinets", "the grid, and cabinets that are not like the others", [&] {
        visitor.field("columnWidths", wall.columnWidths, "[columns, pixels], from the left");
        visitor.field("rowHeights", wall.rowHeights, "[rows, pixels], from the top");
        visitor.field("exceptions", wall.exceptions, "by column and row, which count from 1 at the top left");
    });
    visitor.group("physical", "a usual cabinet; 0 for what is not known", [&, &data = wall.physical] {
        visitor.field("width", data.width, Range{0, 10000}, "millimeters");
        visitor.field("height", data.height, Range{0, 10000}, "millimeters");
        visitor.field("pitch", data.pitch, Range{0, 100000}, "micrometers from pixel to pixel");
        visitor.field("grams", data.grams, Range{0, 1000000}, "weight");
        visitor.field("watts", data.watts, Range{0, 100000}, "at the most");
    });
    visitor.group("numbering", "the names of cabinets", [&, &data = wall.numbering] {
        visitor.field("style", data.style, "the labels of the chart's record, or numbers");
        visitor.field("corner", data.corner, "where numbers begin");
        visitor.field("direction", data.direction, "whether numbers follow rows or columns");
        visitor.field("backAndForth", data.backAndForth, "each other row or column the other way");
        visitor.field("start", data.start, Range{0, 1000000}, "the first number");
        visitor.field("prefix", data.prefix, Length{20}, "before each number");
        visitor.field("digits", data.digits, Range{1, 7}, "at least, with zeros before");
    });
    visitor.group("data", "data cables", [&, &data = wall.data] {
        visitPath(visitor, data.path);
        visitor.field("portPixels", data.portPixels, Range{1, 100000000}, "of a port at 8 bit and 60 Hz");
        visitor.field("bitDepth", data.bitDepth, Range{8, 16}, "bits for each color");
        visitor.field("frameRate", data.frameRate, Range{1, 1000}, "Hz");
        visitor.field("portCabinets", data.portCabinets, Range{0, 1000000},
                      "at the most on a port; 0 for what its pixels allow");
        visitor.field("backup", data.backup, "a second port at the end of each run");
    });
    visitor.group("power", "power cables", [&, &data = wall.power] {
        visitPath(visitor, data.path);
        visitor.field("voltage", data.voltage, Range{1, 1000}, "volts");
        visitor.field("circuitWatts", data.circuitWatts, Range{1, 1000000}, "of a circuit");
    });
    visitor.group("chart", "what is drawn on the wall", [&, &data = wall.chart] {
        visitor.field("path", data.path, testcharttools::recordfields::pathLength,
                      "the record's file, relative to the wall's folder; empty for none");
        visitor.field("record", data.record, "the record itself, instead of a file; empty for none");
    });
    visitor.group("layers", "what is drawn over the chart", [&, &data = wall.layers] {
        visitor.field("blackHoles", data.blackHoles, "places without a cabinet stay black");
        visitor.field("outlines", data.outlines, "a line along the edges of every cabinet");
        visitor.field("outlineWidth", data.outlineWidth, Range{1, 100}, "pixels");
        visitor.field("outlineColor", data.outlineColor, "the outlines");
        visitor.field("frames", data.frames, "the outermost pixels of every cabinet");
        visitor.field("frameColor", data.frameColor, "the frames");
        visitor.field("dataRuns", data.dataRuns, "data cables with their ports");
        visitor.field("powerRuns", data.powerRuns, "power cables with their circuits");
        visitor.field("runWidth", data.runWidth, Range{0, 100}, "pixels; 0 for what suits the cabinets");
        visitor.field("names", data.names, "the names of cabinets");
        visitor.field("nameSize", data.nameSize, Range{1, 200},
                      "font pixels, fewer where cabinets are small");
        visitor.field("nameColor", data.nameColor, "the names");
        visitor.field("coordinates", data.coordinates, "the top left pixel of every cabinet");
        visitor.field("coordinateSize", data.coordinateSize, Range{1, 100},
                      "font pixels, fewer where cabinets are small");
        visitor.field("coordinateColor", data.coordinateColor, "the coordinates");
    });
}

} // namespace vardeno::walls
