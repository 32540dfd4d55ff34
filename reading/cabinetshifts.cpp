#include "cabinetshifts.h"

#include "cvimages.h"
#include "readingthresholds.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace WallReading {

namespace {

/// The parts of the seen and of the expected cabinet that show the same after a move.
struct Overlap
{
    cv::Rect seen;
    cv::Rect expected;
};

Overlap overlapOf(const cv::Size& size, const cv::Point& by)
{
    const cv::Rect all({}, size);
    const cv::Rect seen = (all + by) & all;
    return {seen, seen - by};
}

double correlation(const cv::Mat& a, const cv::Mat& b)
{
    cv::Scalar meanA;
    cv::Scalar meanB;
    cv::Scalar spreadA;
    cv::Scalar spreadB;
    cv::meanStdDev(a, meanA, spreadA);
    cv::meanStdDev(b, meanB, spreadB);
    if (spreadA[0] < 0.7 || spreadB[0] < 0.7)
        return 0;
    const double product = a.dot(b) / double(a.total()) - meanA[0] * meanB[0];
    return product / (spreadA[0] * spreadB[0]);
}

struct Shifted
{
    cv::Point by;
    double alike = 0;
};

Shifted bestShift(const cv::Mat& seen, const cv::Mat& expected, const cv::Rect& moves,
                  double* second = nullptr)
{
    std::vector<Shifted> all;
    for (int y = moves.y; y < moves.y + moves.height; ++y) {
        for (int x = moves.x; x < moves.x + moves.width; ++x) {
            const Overlap overlap = overlapOf(seen.size(), {x, y});
            all.push_back({{x, y}, correlation(seen(overlap.seen), expected(overlap.expected))});
        }
    }
    Shifted best;
    for (const Shifted& shifted : all) {
        if (shifted.alike > best.alike)
            best = shifted;
    }
    if (second) {
        *second = 0;
        for (const Shifted& shifted : all) {
            if (std::max(std::abs(shifted.by.x - best.by.x), std::abs(shifted.by.y - best.by.y)) > 3)
                *second = std::max(*second, shifted.alike);
        }
    }
    return best;
}

/// What is seen where the picture has left, if that is dark: the chart may show no black to know it by.
cv::Scalar blackBehind(const Evidence& evidence, const cv::Mat& seen, const cv::Rect& moved)
{
    cv::Mat left(seen.size(), CV_8U, cv::Scalar(255));
    left(moved) = 0;
    cv::Scalar black = evidence.light.black;
    if (cv::countNonZero(left) == 0)
        return black;
    const cv::Scalar mean = cv::mean(seen, left);
    for (int c = 0; c < 3; ++c) {
        if (mean[c] > std::max(black[c] + 8, double(Thresholds::mostDark * evidence.light.white[c])))
            return black;
    }
    return mean;
}

/// Blurs what is near the edge of `part` as the camera does.
void softenEdge(cv::Mat& patch, const cv::Rect& part, int reach)
{
    cv::Mat edge(patch.size(), CV_8U, cv::Scalar(0));
    const cv::Point far(reach, reach);
    edge(cv::Rect(part.tl() - far, part.br() + far) & cv::Rect({}, patch.size())) = 255;
    const cv::Rect inner(part.tl() + far, part.br() - far);
    if (!inner.empty())
        edge(inner) = 0;
    cv::Mat soft;
    cv::GaussianBlur(patch, soft, {}, std::max(0.6, (reach - 1) / 1.5));
    soft.copyTo(patch, edge);
}

/// The cabinet's picture moved, with the wall's black where it has left.
cv::Mat movedOnBlack(const Evidence& evidence, std::size_t cabinet, const cv::Point& by)
{
    const cv::Mat expected = evidence.expectedAt(cabinet);
    const Overlap overlap = overlapOf(expected.size(), by);
    cv::Mat moved(expected.size(), CV_32FC3, blackBehind(evidence, evidence.seenAt(cabinet), overlap.seen));
    expected(overlap.expected).copyTo(moved(overlap.seen));
    softenEdge(moved, overlap.seen, evidence.margin);
    return moved;
}

/// Whether black over what has not moved explains about as much: it is somebody before the wall then.
bool isRatherCovered(const Evidence& evidence, std::size_t cabinet, const Explanation& shift)
{
    const cv::Mat expected = evidence.expectedAt(cabinet);
    const cv::Rect free = overlapOf(expected.size(), {cvRound(shift.shift.x), cvRound(shift.shift.y)}).seen;
    cv::Mat covered(expected.size(), CV_32FC3, blackBehind(evidence, evidence.seenAt(cabinet), free));
    expected(free).copyTo(covered(free));
    softenEdge(covered, free, evidence.margin);
    const double cost = costOf(evidence, evidence.rects[cabinet], covered);
    return shift.cost > Thresholds::mostOfCovered * cost;
}

/// By the black that a shift leaves behind: a picture with little in it shows little else. The moves within
/// `reach` of the best so far, `step` apart.
void improveOnBlack(const Evidence& evidence, std::size_t cabinet, int reach, int step, Explanation& best)
{
    const cv::Point middle(cvRound(best.shift.x), cvRound(best.shift.y));
    for (int y = -reach; y <= reach; y += step) {
        for (int x = -reach; x <= reach; x += step) {
            const cv::Point by = middle + cv::Point(x, y);
            const cv::Mat moved = movedOnBlack(evidence, cabinet, by);
            const double cost = costOf(evidence, evidence.rects[cabinet], moved);
            if (cost < best.cost) {
                best.cost = cost;
                best.shift = by;
                best.expected = moved;
            }
        }
    }
}

} // namespace

std::optional<Explanation> shiftOnBlack(const Evidence& evidence, std::size_t cabinet)
{
    const cv::Size size = evidence.rects[cabinet].size();
    const int reach = int(Thresholds::mostShift * std::min(size.width, size.height));
    Explanation best;
    best.kind = Kind::Shifted;
    for (int step = std::max(1, reach / 6), around = reach; step >= 1; around = step, step /= 2)
        improveOnBlack(evidence, cabinet, around, step, best);
    // At the end of what was tried a shift is no better than one beyond it, which nobody tried.
    if (std::max(std::abs(best.shift.x), std::abs(best.shift.y)) >= reach ||
        isRatherCovered(evidence, cabinet, best))
        return std::nullopt;
    best.shift *= 1 / evidence.scale;
    return cv::norm(best.shift) < Thresholds::leastShift ? std::nullopt : std::optional<Explanation>(best);
}

std::optional<Explanation> shiftOf(const Evidence& evidence, std::size_t cabinet)
{
    const cv::Mat seen = evidence.seenAt(cabinet);
    const cv::Mat expected = evidence.expectedAt(cabinet);
    const cv::Mat seenGrey = greyOf(seen);
    const cv::Mat expectedGrey = greyOf(expected);
    const int smaller = std::min(seen.cols, seen.rows);
    const double factor = std::min(1.0, 44.0 / smaller);
    cv::Mat coarseSeen;
    cv::Mat coarseExpected;
    cv::resize(seenGrey, coarseSeen, {}, factor, factor, cv::INTER_AREA);
    cv::resize(expectedGrey, coarseExpected, {}, factor, factor, cv::INTER_AREA);
    const int reach = int(Thresholds::mostShift * smaller * factor);
    double second = 0;
    const Shifted coarse =
        bestShift(coarseSeen, coarseExpected, {-reach, -reach, 2 * reach + 1, 2 * reach + 1}, &second);
    if (coarse.alike < Thresholds::shiftedAlike - 0.1 || second > coarse.alike - 0.05)
        return std::nullopt;
    const cv::Point at(cvRound(coarse.by.x / factor), cvRound(coarse.by.y / factor));
    const int near = int(std::ceil(1 / factor)) + 1;
    const Shifted fine =
        bestShift(seenGrey, expectedGrey, {at.x - near, at.y - near, 2 * near + 1, 2 * near + 1});
    const Overlap overlap = overlapOf(seen.size(), fine.by);
    Explanation result;
    result.kind = Kind::Shifted;
    result.shift = cv::Point2d(fine.by) / evidence.scale;
    if (fine.alike < Thresholds::shiftedAlike || cv::norm(result.shift) < Thresholds::leastShift)
        return std::nullopt;
    result.part = overlap.seen;
    result.expected = expected(overlap.expected);
    result.cost = costOf(evidence, overlap.seen + evidence.rects[cabinet].tl(), result.expected);
    return result;
}

} // namespace WallReading
