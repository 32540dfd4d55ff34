#pragma once

#include "finding.h"

#include <QImage>

#include <vector>

namespace ChartComparison {

/// A place at which the chart and the picture show the same where they overlap.
struct Placement
{
    QPoint at;          ///< the chart's origin on the picture
    bool wraps = false; ///< what leaves on one side comes back on the other
    double share = 0;   ///< of the overlap that is the same; 1 for all of it
};

/// Whether `expected` lies in `actual`, or `actual` in `expected`, or one of them over an edge of the other:
/// the places at which most of the overlap is the same, the best first. For pictures of
/// one size it omits the zero shift, and shifts supported only by unmoved pixels.
std::vector<Placement> findPlacements(const QImage& expected, const QImage& actual);

/// A picture of where colours change: the same one for every other set of colours. `findPlacements` of two of
/// them tells where to look when the colours have changed.
QImage colorEdges(const QImage& image);

/// What the picture shows of the chart, in the chart's pixels; the rest is taken from `expected`.
QImage placedBack(const QImage& expected, const QImage& actual, const Placement& placement);

/// The chart as it would be moved, in the picture's pixels; the rest is taken from `actual`.
QImage placedThere(const QImage& expected, const QImage& actual, const Placement& placement);

/// Of a shift in one size: how much of the picture it explains, 0 to 1. What comes in where the chart has
/// left has to be one colour, or what has left.
double shiftedShare(const QImage& actual, const Placement& placement);

/// What has happened: cropped, padded, or in one size shifted. `elsewhere`: other places fit as well.
std::vector<Finding> placementFindings(const QSize& expected, const QImage& actual,
                                       const Placement& placement, bool elsewhere);

} // namespace ChartComparison
