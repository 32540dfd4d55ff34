#include "placerefinement.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace WallReading {

namespace {

constexpr int mostBlocks = 350;

/// The half side of a block, in pixels of the view.
constexpr int blockReach = 14;

/// Correlation of a block that is taken for found.
constexpr float leastFound = 0.6F;

std::vector<cv::Point2f> blocksOf(const ChartView& view, int margin)
{
    std::vector<cv::Point2f> points;
    cv::Mat mask(view.size(), CV_8U, cv::Scalar(0));
    const cv::Rect room(margin, margin, view.size().width - 2 * margin, view.size().height - 2 * margin);
    if (room.width <= 0 || room.height <= 0)
        return points;
    mask(room) = 255;
    const double apart = std::max(5.0, std::sqrt(double(room.area()) / mostBlocks) * 0.6);
    cv::goodFeaturesToTrack(view.grey, points, mostBlocks, 0.005, apart, mask, 7);
    return points;
}

/// The highest point of the parabola through three values, from the middle one.
double peak(double before, double at, double behind)
{
    const double bend = before - 2 * at + behind;
    return bend < -1e-9 ? std::clamp(0.5 * (before - behind) / bend, -0.5, 0.5) : 0;
}

struct Found
{
    cv::Point2d by; ///< pixels of the view
    bool isGood = false;
};

Found find(const cv::Mat& chart, const cv::Mat& seen, const cv::Point& middle, int search)
{
    const cv::Rect block(middle.x - blockReach, middle.y - blockReach, 2 * blockReach + 1,
                         2 * blockReach + 1);
    const cv::Rect room(block.x - search, block.y - search, block.width + 2 * search,
                        block.height + 2 * search);
    cv::Mat match;
    cv::matchTemplate(seen(room), chart(block), match, cv::TM_CCOEFF_NORMED);
    double best = 0;
    cv::Point at;
    cv::minMaxLoc(match, nullptr, &best, nullptr, &at);
    if (best < leastFound || at.x == 0 || at.y == 0 || at.x == match.cols - 1 || at.y == match.rows - 1)
        return {};
    const double x = peak(match.at<float>(at.y, at.x - 1), best, match.at<float>(at.y, at.x + 1));
    const double y = peak(match.at<float>(at.y - 1, at.x), best, match.at<float>(at.y + 1, at.x));
    return {cv::Point2d(at.x + x - search, at.y + y - search), true};
}

double medianError(const Lens& lens, const std::vector<Match>& matches)
{
    if (matches.empty())
        return 99;
    std::vector<double> errors;
    for (const Match& match : matches)
        errors.push_back(cv::norm(lens(match.chart) - match.picture) /
                         std::max(1e-3, scaleAt(lens, match.chart)));
    std::nth_element(errors.begin(), errors.begin() + std::ptrdiff_t(errors.size() / 2), errors.end());
    return errors[errors.size() / 2];
}

} // namespace

Refinement refined(const ChartView& view, const cv::Mat& picture, const Lens& start, int search, int rounds)
{
    Refinement result;
    result.lens = start;
    const std::vector<cv::Point2f> blocks = blocksOf(view, blockReach + std::max(2, search) + 1);
    for (int round = 0; round < rounds; ++round) {
        const int reach = std::max(2, search >> round);
        cv::Mat inside;
        const cv::Mat seen = rectified(picture, result.lens, cv::Size2d(view.chart), view.size(), &inside);
        std::vector<Match> matches;
        result.tried = 0;
        for (const cv::Point2f& block : blocks) {
            const cv::Point middle(cvRound(block.x), cvRound(block.y));
            if (inside.at<uchar>(middle) == 0)
                continue;
            ++result.tried;
            const Found found = find(view.grey, seen, middle, reach);
            if (!found.isGood)
                continue;
            const cv::Point2d on(middle.x + 0.5, middle.y + 0.5);
            matches.push_back({on / view.scale, result.lens((on + found.by) / view.scale)});
        }
        result.blocks = int(matches.size());
        const double scale =
            scaleAt(result.lens, cv::Point2d(view.chart.width / 2.0, view.chart.height / 2.0));
        result.lens =
            fitted(result.lens, matches, std::max(0.4, std::min(1.0, reach * 0.3) * scale / view.scale));
        result.error = medianError(result.lens, matches);
    }
    return result;
}

} // namespace WallReading
