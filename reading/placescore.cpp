#include "placescore.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace WallReading {

namespace {

/// Steps of 255: a window of the chart that varies less shows nothing to compare.
constexpr float leastDeviation = 4;

/// The same of the picture, which may be dark: less is noise.
constexpr float leastSeenDeviation = 1.5F;

struct Statistics
{
    cv::Mat mean;
    cv::Mat deviation;
};

cv::Mat boxed(const cv::Mat& image, int side)
{
    cv::Mat mean;
    cv::boxFilter(image, mean, CV_32F, {side, side}, {-1, -1}, true, cv::BORDER_REFLECT);
    return mean;
}

Statistics statisticsOf(const cv::Mat& grey, int side)
{
    Statistics result;
    result.mean = boxed(grey, side);
    cv::Mat variance = boxed(grey.mul(grey), side) - result.mean.mul(result.mean);
    cv::max(variance, 0, variance);
    cv::sqrt(variance, result.deviation);
    return result;
}

cv::Mat asFloat(const cv::Mat& grey)
{
    cv::Mat result;
    grey.convertTo(result, CV_32F);
    return result;
}

} // namespace

PlaceScorer::PlaceScorer(const ChartView& view, int windowSide)
    : m_view(view)
    , m_side(std::max(5, windowSide))
{
    cv::GaussianBlur(asFloat(view.grey), m_view.grey, {}, 0.8);
    const Statistics statistics = statisticsOf(m_view.grey, m_side);
    m_mean = statistics.mean;
    m_deviation = statistics.deviation;
}

PlaceScore PlaceScorer::score(const cv::Mat& picture, const Lens& lens) const
{
    cv::Mat inside;
    cv::Mat seen = asFloat(rectified(picture, lens, cv::Size2d(m_view.chart), m_view.size(), &inside));
    const Statistics statistics = statisticsOf(seen, m_side);
    const cv::Mat covariance = boxed(seen.mul(m_view.grey), m_side) - statistics.mean.mul(m_mean);
    PlaceScore result;
    const int step = std::max(2, m_side / 2);
    int count = 0;
    double sum = 0;
    for (int y = m_side / 2; y < seen.rows; y += step) {
        for (int x = m_side / 2; x < seen.cols; x += step) {
            const float own = m_deviation.at<float>(y, x);
            if (own < leastDeviation)
                continue;
            ++count;
            const bool isInside = inside.at<uchar>(y, x) != 0;
            result.seen += isInside ? 1 : 0;
            const float other = std::max(leastSeenDeviation, statistics.deviation.at<float>(y, x));
            result.windows.push_back(isInside ? covariance.at<float>(y, x) / (own * other) : 0);
            sum += result.windows.back();
        }
    }
    result.mean = sum / std::max(count, 1);
    result.seen /= std::max(count, 1);
    return result;
}

double betterBy(const PlaceScore& a, const PlaceScore& b)
{
    const std::size_t count = std::min(a.windows.size(), b.windows.size());
    double sum = 0;
    double squares = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const double difference = a.windows[i] - b.windows[i];
        sum += difference;
        squares += difference * difference;
    }
    return sum / std::sqrt(squares + 1e-6);
}

} // namespace WallReading
