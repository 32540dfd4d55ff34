#pragma once

#include "cabinetcandidates.h"
#include "cabinetevidence.h"
#include "readingfinding.h"

namespace WallReading {

/// One way to understand what a cabinet shows.
struct Explanation
{
    bool isRight = false; ///< it shows its own picture
    Kind kind = Kind::Other;
    int cabinet = -1; ///< whose content it shows
    int turn = 0;
    cv::Point2d shift; ///< chart pixels
    double factor = 1;
    double cost = 99;
    cv::Mat expected; ///< the picture that it would be
    cv::Rect part;    ///< of the cabinet that it speaks of; empty for all of it
};

/// Each explanation that comes into question, its own picture the first. `nearest` are contents of the chart
/// that look like it; where its own picture costs less than `likelyRight` fewer of them are tried, and below
/// `clearlyRight` nothing else.
std::vector<Explanation> explanationsOf(const Evidence& evidence, std::size_t cabinet,
                                        const std::vector<Content>& nearest, double clearlyRight,
                                        double likelyRight);

/// Whether the colour of the plain cabinet `plain` goes on in its neighbour `beside`: that of a dark cabinet
/// ends with it, that of somebody before the wall does not.
bool goesOn(const Evidence& evidence, std::size_t beside, std::size_t plain);

} // namespace WallReading
