#pragma once

/// Every number that decides what is said of a cabinet, with its reason. They were chosen on simulated
/// photographs, never on those that the table of `docs/reading.md` is made from.
namespace WallReading::Thresholds {

// How much a pixel may be off

/// Pixels of the view by which a place may be off: an edge then is wrong by this part of its slope.
constexpr float placeError = 0.2F;

/// Of what a pixel shows: tone curves and gain are known to about this.
constexpr float lightError = 0.04F;

/// Of white, in linear light: what shines in from beside.
constexpr float strayLight = 0.008F;

/// What the light of one cabinet may be off: its gain, and each channel in parts of white.
constexpr double cabinetGain = 0.07;
constexpr double cabinetOffset = 0.03;

/// What is usual costs this at least: a model that fits better than that is not to be relied on.
constexpr double leastUsualCost = 0.4;

/// Up to this, in usual costs, a cabinet is held only against others' contents.
constexpr double clearlyRightCost = 1.3;

/// Squares of the expected error at which a pixel is wrong, however wrong it is.
constexpr float mostPixelCost = 25;

/// Neighbouring pixels err together, by blur and compression: so many count as one.
constexpr double pixelsPerVote = 12;

// What explains a cabinet

/// Of the median cost of all cabinets: what costs less is explained.
constexpr double explainedCost = 2.2;

/// What costs more is certainly not what was expected.
constexpr double surelyWrongCost = 3.0;

/// The logarithm of the likelihood by which an explanation has to beat the cabinet's own picture, and by
/// which the next one of another kind: e^12 is one in 160 000, and a wall has up to 10 000 cabinets.
constexpr double leadOverOwn = 14;
constexpr double leadOverNext = 9;

/// How far on the way from the cabinet's own picture to the other one it has to be: whatever a model misses
/// leads half way at most.
constexpr double leastLeaning = 0.7;

/// Where the two differ, the other one has to leave less than this part of the error.
constexpr double mostRest = 0.4;

/// The same for another brightness: of what is dimmed it leaves a hundredth; of what the light model misses,
/// or somebody covers for the most part, six hundredths and more.
constexpr double mostRestDimmed = 0.04;

/// Of white: a cabinet that is brighter in any channel is not dark.
constexpr float mostDark = 0.34F;

/// What costs less than this is right, whatever else fits still better.
constexpr double surelyRightCost = 0.5;

/// A cabinet shows something else only where one colour or another brightness cost more: what comes near to
/// them is a lamp, somebody before the wall, or a flat cabinet with a reflection.
constexpr double nearlyPlainCost = 10;

/// What a shift leaves of the cost of the cabinet's own picture, and of that of what else explains it best:
/// little labels on black cost little wherever they are.
constexpr double mostOfOwnShifted = 0.45;
constexpr double mostOfNextShifted = 0.6;

/// The same of the cost of its own picture in its place with black where the moved one leaves it.
constexpr double mostOfCovered = 0.6;

/// What one colour leaves of the cost of the cabinet's own picture where the chart looks the same moved: a
/// label that is elsewhere is no dark cabinet.
constexpr double mostOfOwnPlain = 0.4;

/// Channels of a dimmed cabinet lose about as much as one another.
constexpr double mostUneven = 1.5;

/// So many others that have moved alike are a place that is off.
constexpr int mostMovedAlike = 1;

/// Where the chart looks the same moved, a cabinet that has moved costs more in its place, and more of its
/// blocks are wrong.
constexpr double leastMovedCost = 5;
constexpr double leastMovedBlocks = 0.2;

/// Where one colour fits, a brightness from here on that fits as well is told: it is the smaller fault.
constexpr double leastBrightness = 0.3;

/// Brightness in values of the picture: less than this change is the camera's.
constexpr double leastDimming = 0.18;

/// A channel that has less of what it should have is missing; of white, it should have this much.
constexpr double mostMissing = 0.55;
constexpr double leastOfChannel = 0.12;

/// Chart pixels: less is the lens.
constexpr double leastShift = 3;

/// Of the cabinet's smaller side: further, too little is left to compare.
constexpr double mostShift = 0.34;

/// Correlation of what is left of a shifted cabinet.
constexpr double shiftedAlike = 0.8;

// What is before the wall

/// Blocks each way of a cabinet that are right or wrong by themselves.
constexpr int blocks = 6;

/// Cost from which a block is wrong.
constexpr double wrongBlock = 5;

/// Part of the blocks: with fewer wrong ones a cabinet is right but for a speck, with more it is wrong all
/// over.
constexpr double fewBlocks = 0.1;
constexpr double nearlyAllBlocks = 0.85;

/// Noises by which two colours can be told apart, and the part of a strip beside a plain cabinet that may
/// have its colour: noise and blur make some of it.
constexpr double noisesApart = 4;
constexpr double mostAlikeBeside = 0.12;

/// Part of a cabinet that has to be in the picture.
constexpr double leastInside = 0.97;

} // namespace WallReading::Thresholds
