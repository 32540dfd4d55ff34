#include "cabinetcandidates.h"

#include "products.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace WallReading {

namespace {

/// Side of the patches that are compared with all others: the letters of a label are still seen.
constexpr int mostSide = 40;
constexpr int leastSide = 12;

/// Multiplications that the comparison of all with all may take: about a second.
constexpr double mostProducts = 2.5e9;

/// The brightness that a cabinet may have by itself.
constexpr float leastGain = 0.85F;
constexpr float mostGain = 1.18F;

int sideFor(std::size_t seen, std::size_t contents)
{
    const double values = mostProducts / (double(seen) * double(contents));
    return std::clamp(int(std::sqrt(values / 3)), leastSide, mostSide);
}

void setRow(cv::Mat& rows, int row, const cv::Mat& patch, int side)
{
    cv::Mat small;
    cv::resize(patch, small, {side, side}, 0, 0, cv::INTER_AREA);
    small.reshape(1, 1).copyTo(rows.row(row));
}

} // namespace

std::vector<Orientation> orientationsFor(const cv::Size& cabinet)
{
    const bool isSquare = std::abs(cabinet.width - cabinet.height) <= 1;
    std::vector<Orientation> all;
    for (const bool isMirrored : {false, true}) {
        for (int turn = 0; turn < 360; turn += isSquare ? 90 : 180)
            all.push_back({isMirrored, turn});
    }
    return all;
}

cv::Mat laid(const cv::Mat& patch, const Orientation& orientation)
{
    cv::Mat result = patch.clone();
    if (orientation.isMirrored)
        cv::flip(patch, result, 1);
    if (orientation.turn != 0) {
        cv::Mat turned;
        cv::rotate(result, turned, orientation.turn / 90 - 1);
        result = turned;
    }
    return result;
}

std::vector<std::vector<Content>> nearestContents(const std::vector<cv::Mat>& seen,
                                                  const std::vector<cv::Mat>& chart, int most)
{
    if (seen.empty() || chart.empty())
        return {};
    const std::vector<Orientation> orientations = orientationsFor(chart.front().size());
    const int contents = int(chart.size() * orientations.size());
    const int side = sideFor(seen.size(), std::size_t(contents));
    cv::Mat shown(contents, side * side * 3, CV_32F);
    for (int i = 0; i < contents; ++i)
        setRow(shown, i,
               laid(chart[std::size_t(i) / orientations.size()],
                    orientations[std::size_t(i) % orientations.size()]),
               side);
    cv::Mat rows(int(seen.size()), shown.cols, CV_32F);
    for (int i = 0; i < rows.rows; ++i)
        setRow(rows, i, seen[std::size_t(i)], side);
    const cv::Mat products = productsOf(rows, shown);

    std::vector<double> squares;
    for (int i = 0; i < contents; ++i)
        squares.push_back(shown.row(i).dot(shown.row(i)));
    std::vector<std::vector<Content>> result;
    for (int row = 0; row < rows.rows; ++row) {
        const double own = rows.row(row).dot(rows.row(row));
        std::vector<Content> all;
        for (int i = 0; i < contents; ++i) {
            const double product = double(products.at<float>(row, i));
            const double square = squares[std::size_t(i)];
            const double gain =
                std::clamp(product / std::max(square, 1e-6), double(leastGain), double(mostGain));
            all.push_back({i / int(orientations.size()), orientations[std::size_t(i) % orientations.size()],
                           (own - 2 * gain * product + gain * gain * square) / rows.cols});
        }
        const auto count = std::ptrdiff_t(std::min(std::size_t(most), all.size()));
        std::partial_sort(all.begin(), all.begin() + count, all.end(),
                          [](const Content& a, const Content& b) { return a.distance < b.distance; });
        result.emplace_back(all.begin(), all.begin() + count);
    }
    return result;
}

} // namespace WallReading
