#pragma once

#include "markerdata.h"
#include "testcharttoolsdata.h"

namespace vardeno::testcharttools::recordfields {

struct Range
{
    int least;
    int most;
};

/// In UTF-16 units, which is what entries count in.
struct Length
{
    int most;
};

/// Walls are what charts are for, of many pictures beside and above one another. The editor takes smaller
/// ones.
constexpr Range sidePixels = {16, 32768};
constexpr Range cabinetCount = {1, 1000};

/// One for each column of the widest chart that the editor takes.
constexpr int mostColors = 4320;
constexpr Length logoTextLength = {32767}; // a text entry's own limit
constexpr Length selfTextLength = {50};
constexpr Length pathLength = {4095};

/// The one table of the record's groups and fields, in the order of the documents, with the range of every
/// number, the length of every text and what it means. `visitor.group` gets name, meaning and a function that
/// visits the group's fields; `visitor.field` gets name, value, limits where there are some, and meaning.
template <typename Visitor, typename Data>
void visit(Visitor& visitor, Data& record)
{
    visitor.group("basicData", "the base pattern", [&, &data = record.basicData] {
        visitor.field("colorStripeColors", data.colorStripeColors, "the stripes, from left to right");
        visitor.field("gradientColors", data.gradientColors,
                      "the colors of the gradient list, which no pattern shows");
        visitor.field("oddColor", data.oddColor, "the chessboard's cabinet at the top left");
        visitor.field("evenColor", data.evenColor, "the chessboard's cabinet beside it");
        visitor.field("chessChecked", data.chessChecked, "the chessboard");
        visitor.field("colorBarChecked", data.colorBarChecked, "the stripes or the gradient between them");
        visitor.field("gradientChecked", data.gradientChecked, "with the color bar: the gradient");
    });
    visitor.group("publicData", "what applies to the whole chart", [&, &data = record.publicData] {
        visitor.field("brightness", data.brightness, Range{0, 100}, "percent");
        visitor.field("resolutionWidth", data.resolutionWidth, sidePixels, "pixels");
        visitor.field("resolutionHeight", data.resolutionHeight, sidePixels, "pixels");
        visitor.field("boxRow", data.boxRow, cabinetCount, "rows of cabinets");
        visitor.field("boxCol", data.boxCol, cabinetCount, "columns of cabinets");
        visitor.field("showOutBorder", data.showOutBorder, "the frame around the chart");
        visitor.field("outBorderWidth", data.outBorderWidth, Range{1, 100}, "pixels");
        visitor.field("outBorderColor", data.outBorderColor, "the frame");
    });
    visitor.group("inLineData", "circles, diagonals and labels", [&, &data = record.inLineData] {
        visitor.field("showCircle", data.showCircle, "the circles");
        visitor.field("circleSize", data.circleSize, Range{1, 16384},
                      "radius in pixels, less where the chart is smaller");
        visitor.field("circleWidth", data.circleWidth, Range{1, 100}, "pixels");
        visitor.field("circleColor", data.circleColor, "the circles");
        visitor.field("showDiagonal", data.showDiagonal, "the diagonals");
        visitor.field("diagonalWidth", data.diagonalWidth, Range{1, 100}, "pixels");
        visitor.field("diagonalColor", data.diagonalColor, "the diagonals");
        visitor.field("showSerialNumber", data.showSerialNumber, "a label in every cabinet");
        visitor.field("serialSize", data.serialSize, Range{1, 100},
                      "font pixels, fewer where cabinets are small");
        visitor.field("serialColor", data.serialColor, "the labels");
        visitor.field("letterMode", data.letterMode, "labels of letters");
        visitor.field("numMode", data.numMode, "labels of numbers");
        visitor.field("combinationMode", data.combinationMode, "labels of a letter and a number");
        visitor.field("serialPosition", data.serialPosition, Range{0, 2},
                      "0 center, 1 left up and right down, 2 left down and right up");
        visitor.field("serialSort", data.serialSort, Range{0, 3},
                      "counted 0 down and rightwards, 1 down and leftwards, 2 up and rightwards, 3 up and "
                      "leftwards");
    });
    visitor.group("logoData", "the logo, a picture or a text", [&, &data = record.logoData] {
        visitor.field("showLogo", data.showLogo, "the logo");
        visitor.field("pictureLogo", data.pictureLogo, "a picture");
        visitor.field("textLogo", data.textLogo, "a text");
        visitor.field("logoText", data.logoText, logoTextLength, "the text");
        visitor.field("textSize", data.textSize, Range{0, 100}, "font pixels");
        visitor.field("textColor", data.textColor, "the text");
        visitor.field("scale", data.scale, Range{0, 200}, "percent of the picture's size");
        visitor.field("picturePath", data.picturePath, pathLength,
                      "the picture's file, relative to the record's folder; empty for the built-in picture");
        visitor.field("displayPosition", data.displayPosition, Range{0, 4},
                      "0 center, 1 left up, 2 left down, 3 right up, 4 right down");
        visitor.field("offsetX", data.offsetX, Range{0, 16384}, "pixels");
        visitor.field("offsetY", data.offsetY, Range{0, 16384}, "pixels");
        visitor.field("opacity", data.opacity, Range{0, 100}, "percent");
    });
    visitor.group(
        "selfData", "the custom text and the line with the resolution", [&, &data = record.selfData] {
            visitor.field("showSelfText", data.showSelfText, "the custom text");
            visitor.field("selfText", data.selfText, selfTextLength, "the custom text");
            visitor.field("selfTextSize", data.selfTextSize, Range{1, 200}, "font pixels");
            visitor.field("selfTextColor", data.selfTextColor, "the custom text");
            visitor.field("showResolution", data.showResolution, "the resolution");
            visitor.field("resolutionTextSize", data.resolutionTextSize, Range{1, 200}, "font pixels");
            visitor.field("resolutionTextColor", data.resolutionTextColor, "the resolution");
        });
}

/// The same of what documents hold beside the record. A document without it is one without markers.
template <typename Visitor, typename Data>
void visitMarkers(Visitor& visitor, Data& data)
{
    visitor.group("markerData", "what photographs of the wall are read by",
                  [&] { visitor.field("showMarkers", data.showMarkers, "a coded marker in every cabinet"); });
}

} // namespace vardeno::testcharttools::recordfields
