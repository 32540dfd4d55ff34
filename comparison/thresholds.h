#pragma once

#include <cstddef>

/// Every number that decides what the comparison says, with its reason. They were chosen so that each fault
/// of the tests is told by its name, and nothing that is no fault is told as one.
namespace ChartComparison::Thresholds {

// What explains a picture

/// Of the pixels compared: with less in its place, what is left over is more than what was explained.
constexpr double leastExplained = 0.5;

/// Of the pixels: with so much of it in its place a chart is not in another scale and has no other colours.
constexpr double surelyInPlace = 0.98;

/// Of the pixels: with so much in other colours, no scaling has to be looked for.
constexpr double surelyRecolored = 0.9;

/// Pixels without a reason in single cabinets, a spot or two: with more the whole picture is looked at.
constexpr long long mostSpotPixels = 100;

/// One in so many cabinets may differ for the faults to be those of single cabinets.
constexpr std::size_t cabinetsForOneFault = 4;

/// Findings of one kind, and cabinets in a sentence, that are listed: about what fits a screen.
constexpr int mostListed = 8;

// Places (`imageplacement`, `placevotes`)

/// Side of the squares that vote, in pixels: large enough to show an edge, small enough to fit between
/// faults.
constexpr int mostVotingSide = 16;

/// A square's part of the smaller side, so that small charts have several.
constexpr int votingSides = 4;

/// Squares that vote: many more than the places that a chart's repetitions suggest.
constexpr int votingSquares = 2048;

/// A square that is found more often says nothing about the place by itself.
constexpr std::size_t mostVotesOfASquare = 64;

/// Places that are looked at, by votes for the whole move, and for each direction by itself.
constexpr std::size_t mostVotedPlaces = 12;
constexpr int mostVotedMoves = 3;

/// Pixels that are sampled per place: the share is then known to about two percent.
constexpr int placementSamples = 2000;

/// Of the samples: a place with fewer is none. Beneath it are faults in up to a quarter of the cabinets.
constexpr double leastPlaced = 0.75;

/// Of the part that the chart has left, where there are faults: what wraps around shows most of the rest
/// there.
constexpr double leastWrapped = 0.6;

/// One part in so many of the smaller picture has to overlap: less shows the same by chance.
constexpr int overlapParts = 4;

/// Places that are compared pixel by pixel; the first is nearly always the one.
constexpr std::size_t mostPlaces = 4;

// Tolerance (`tolerance`)

/// Of the chart: each new colour of the picture is compared with all of them, and texts on two colours have
/// far fewer.
constexpr int mostTolerantColors = 1024;

// Scaling (`imagescaling`, `zoomsearch`)

/// Of the mean difference that the nearest other explanation leaves: programs mix colours differently, but
/// nothing else comes as near.
constexpr double mostErrorOfUnderscan = 0.5;

/// Side of the squares whose mean colours are compared: programs mix colours differently over a pixel or two.
constexpr int scalingBlockSide = 8;

/// Steps of 255 by which a mean may be off: more than filters do, less than a missing line of two pixels.
constexpr float scalingBlockTolerance = 16;

/// Of the picture: with less it is another one.
constexpr double leastScaled = 0.9;

/// Zooms that are tried, and by how much each is larger than the one before: half a coarse pixel.
constexpr double leastZoom = 1.02;
constexpr double mostZoom = 8;
constexpr double zoomStep = 1.02;

/// The longer side of the coarse picture in pixels: a search in milliseconds that still sees the cabinets.
constexpr int coarseSide = 96;

/// Pixels by which a coarse match is refined.
constexpr int zoomSamples = 6000;

/// Of 255: a coarse match that is further off is not worth refining.
constexpr double mostCoarseError = 40;

/// Coarse matches that are refined.
constexpr int refinedMatches = 4;

/// The search ends with steps of this many pixels: what is shown is then right to the pixel.
constexpr double finestStep = 0.25;

/// Whole pixels are told unless they are worse by this factor.
constexpr double wholePixelsError = 1.1;

// Colours (`colorchange`, `namedcolorchange`)

/// Pixels whose colours are counted for a guess, and for a first look whether there is anything to find.
constexpr int colorSamples = 65536;
constexpr int firstColorSamples = 4096;

/// Of the pixels: a guess may be wrong for so many, which are then the faults.
constexpr double toleratedInGuess = 0.25;

/// Of the pixels that are near what was calculated: with so many exactly so, rounding needs no learning.
constexpr double surelyExact = 0.99;

/// Of the pixels that no change would leave over: a change that leaves more over explains little.
constexpr double mostLeftOfChange = 0.5;

/// Steps by which a colour may be off to count as rounded: brightness and colour differences are rounded
/// before colours are.
constexpr int roundingSteps = 3;

/// Pixels for each colour: with fewer, an exchange of colours fits any two pictures.
constexpr long long pixelsPerColor = 4;

/// Exchanged colours that a sentence names.
constexpr int mostColorsNamed = 3;

/// Less is rounding.
constexpr double leastFactorChange = 0.005;
constexpr double leastGammaChange = 0.02;

/// Gamma is measured between these values, where it shows most and rounding least.
constexpr int leastMiddleTone = 32;
constexpr int mostMiddleTone = 224;
constexpr int leastShownTone = 4;
constexpr int mostShownTone = 251;

// Lossy compression (`lossycompression`)

/// Compression halves the colours' resolution, in squares of 8.
constexpr int lossyBlockSide = 16;

/// Steps of 255 by which the mean of such a square, and of all pixels, may be off.
constexpr float lossyBlockTolerance = 16;
constexpr double mostLossyMean = 8;

/// Of 255: faults differ by more.
constexpr int hardlySeen = 24;

/// One pixel in so many has to differ, for compression spares few.
constexpr long long pixelsForOneLossy = 50;

/// Of ten cabinets that show anything: compression spares none, but may hit flat ones without a trace.
constexpr std::size_t lossyCabinetsInTen = 9;

} // namespace ChartComparison::Thresholds
