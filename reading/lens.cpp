#include "lens.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace WallReading {

namespace {

constexpr int lensParameters = 9; ///< of the homography all but the last, and the radial term
constexpr std::size_t matchesForRadial = 40;

using Parameters = cv::Matx<double, lensParameters, 1>;

Parameters parametersOf(const Lens& lens)
{
    Parameters all;
    for (int i = 0; i < 8; ++i)
        all(i) = lens.homography.val[i] / lens.homography.val[8];
    all(8) = lens.radial;
    return all;
}

Lens withParameters(Lens lens, const Parameters& all)
{
    for (int i = 0; i < 8; ++i)
        lens.homography.val[i] = all(i);
    lens.homography.val[8] = 1;
    lens.radial = all(8);
    return lens;
}

/// Steps that move a point by about the same each, for a chart about the size of `matches`.
Parameters stepsOf(const std::vector<Match>& matches)
{
    double largest = 1;
    double seen = 1;
    for (const Match& match : matches) {
        largest = std::max({largest, std::abs(match.chart.x), std::abs(match.chart.y)});
        seen = std::max({seen, std::abs(match.picture.x), std::abs(match.picture.y)});
    }
    const double pixel = 0.01;
    const double slope = pixel / largest;
    return {slope, slope, pixel, slope, slope, pixel, slope / seen, slope / seen, pixel / seen};
}

/// Tukey's weight: nothing for what is far off.
double weightOf(double error, double tolerance)
{
    const double ratio = error / (3 * tolerance);
    return ratio >= 1 ? 0 : (1 - ratio * ratio) * (1 - ratio * ratio);
}

/// One step of Gauss and Newton.
Parameters improved(const Lens& lens, const std::vector<Match>& matches, const Parameters& steps, int count,
                    double tolerance)
{
    cv::Matx<double, lensParameters, lensParameters> normal = decltype(normal)::zeros();
    Parameters right = Parameters::zeros();
    const Parameters all = parametersOf(lens);
    std::array<Lens, lensParameters> changed;
    for (int i = 0; i < count; ++i) {
        Parameters other = all;
        other(i) += steps(i);
        changed[std::size_t(i)] = withParameters(lens, other);
    }
    for (const Match& match : matches) {
        const cv::Point2d at = lens(match.chart);
        const cv::Point2d off = match.picture - at;
        const double weight = weightOf(std::hypot(off.x, off.y), tolerance);
        if (weight <= 0)
            continue;
        std::array<cv::Point2d, lensParameters> slopes;
        for (int i = 0; i < count; ++i)
            slopes[std::size_t(i)] = changed[std::size_t(i)](match.chart) - at;
        for (int i = 0; i < count; ++i) {
            right(i) += weight * slopes[std::size_t(i)].dot(off);
            for (int j = 0; j < count; ++j)
                normal(i, j) += weight * slopes[std::size_t(i)].dot(slopes[std::size_t(j)]);
        }
    }
    for (int i = 0; i < lensParameters; ++i)
        normal(i, i) += i < count ? 1e-12 : 1;
    const Parameters solution = normal.solve(right, cv::DECOMP_SVD);
    Parameters next = all;
    for (int i = 0; i < count; ++i)
        next(i) += solution(i) * steps(i);
    return next;
}

} // namespace

cv::Point2d Lens::operator()(const cv::Point2d& chart) const
{
    const cv::Vec3d on = homography * cv::Vec3d(chart.x, chart.y, 1);
    const cv::Point2d from = cv::Point2d(on[0] / on[2], on[1] / on[2]) - middle;
    return middle + from * (1 + radial * from.dot(from) / (reach * reach));
}

Lens lensOf(const cv::Matx33d& homography, const cv::Size& picture)
{
    Lens lens;
    lens.homography = homography * (1 / homography(2, 2));
    lens.middle = {picture.width / 2.0, picture.height / 2.0};
    lens.reach = std::hypot(lens.middle.x, lens.middle.y);
    return lens;
}

Lens after(const Lens& lens, const cv::Matx33d& change)
{
    Lens result = lens;
    result.homography = lens.homography * change;
    result.homography *= 1 / result.homography(2, 2);
    return result;
}

Lens fitted(const Lens& start, const std::vector<Match>& matches, double tolerance)
{
    Lens lens = start;
    if (matches.size() < 8)
        return lens;
    const Parameters steps = stepsOf(matches);
    const int count = matches.size() < matchesForRadial ? 8 : lensParameters;
    for (int i = 0; i < 12; ++i)
        lens = withParameters(lens, improved(lens, matches, steps, count, tolerance * (i < 4 ? 3 : 1)));
    lens.radial = std::clamp(lens.radial, -0.3, 0.3);
    return lens;
}

double scaleAt(const Lens& lens, const cv::Point2d& chart)
{
    const cv::Point2d across = lens(chart + cv::Point2d(1, 0)) - lens(chart);
    const cv::Point2d down = lens(chart + cv::Point2d(0, 1)) - lens(chart);
    return std::sqrt(std::abs(across.cross(down)));
}

bool isSensible(const Lens& lens, const cv::Size& chart)
{
    const std::array<cv::Point2d, 4> corners = {cv::Point2d(0, 0), cv::Point2d(chart.width, 0),
                                                cv::Point2d(chart.width, chart.height),
                                                cv::Point2d(0, chart.height)};
    double least = 1e9;
    double most = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        const cv::Vec3d on = lens.homography * cv::Vec3d(corners[i].x, corners[i].y, 1);
        if (on[2] <= 0.05)
            return false;
        const cv::Point2d at = lens(corners[i]);
        const cv::Point2d next = lens(corners[(i + 1) % 4]) - at;
        const cv::Point2d last = lens(corners[(i + 3) % 4]) - at;
        const double turn = next.cross(last) / (double(chart.width) * chart.height);
        if (std::abs(at.x) > 50 * lens.reach || std::abs(at.y) > 50 * lens.reach)
            return false;
        least = std::min(least, turn);
        most = std::max(most, turn);
    }
    return least > 0.005 && most < 12 * least;
}

cv::Mat rectified(const cv::Mat& picture, const Lens& lens, const cv::Size2d& chart, const cv::Size& size,
                  cv::Mat* inside)
{
    cv::Mat places(size, CV_32FC2);
    const cv::Point2d step(chart.width / size.width, chart.height / size.height);
    cv::parallel_for_({0, size.height}, [&](const cv::Range& rows) {
        for (int y = rows.start; y < rows.end; ++y) {
            auto* line = places.ptr<cv::Vec2f>(y);
            for (int x = 0; x < size.width; ++x) {
                const cv::Point2d at = lens({(x + 0.5) * step.x, (y + 0.5) * step.y});
                line[x] = {float(at.x - 0.5), float(at.y - 0.5)};
            }
        }
    });
    cv::Mat result;
    cv::remap(picture, result, places, {}, cv::INTER_LINEAR, cv::BORDER_CONSTANT);
    if (inside) {
        const float right = float(picture.cols) - 0.5F;
        const float bottom = float(picture.rows) - 0.5F;
        cv::inRange(places, cv::Scalar(-0.5, -0.5), cv::Scalar(right, bottom), *inside);
    }
    return result;
}

} // namespace WallReading
