#include "lightmodel.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>

#include <cmath>
#include <vector>

namespace WallReading {

namespace {

constexpr int terms = 7;     ///< of a tone curve: 1, the channels, and their squares
constexpr int gainTerms = 6; ///< 1, x, y and their products
constexpr int rounds = 6;

/// A channel that is so bright in the picture may be brighter on the wall.
constexpr double clipped = 0.97;

/// Holds a curve to a straight line where the chart has few colours.
constexpr double stiffness = 0.02;

/// The same for the gain.
constexpr double gainStiffness = 0.01;

using Tone = cv::Vec<double, terms>;
using GainTerms = cv::Vec<double, gainTerms>;

Tone toneTerms(const cv::Vec3f& color)
{
    const double r = double(color[0]) / 255;
    const double g = double(color[1]) / 255;
    const double b = double(color[2]) / 255;
    return {1, r, g, b, r * r, g * g, b * b};
}

/// `x` and `y`: -1 to 1.
GainTerms placeTerms(double x, double y)
{
    return {1, x, y, x * x, x * y, y * y};
}

struct Sample
{
    Tone tone;
    GainTerms place;
    cv::Vec3d seen; ///< of 1
    double gain = 1;
    double weight = 1;
    std::array<bool, 3> isClipped = {}; ///< as it should be: the camera cannot show more
};

std::vector<Sample> samplesOf(const cv::Mat& chart, const cv::Mat& seen, const cv::Mat& inside)
{
    std::vector<Sample> samples;
    const int step = std::max(1, int(std::sqrt(double(chart.total()) / 12000)));
    for (int y = step / 2; y < chart.rows; y += step) {
        for (int x = step / 2; x < chart.cols; x += step) {
            if (inside.at<uchar>(y, x) == 0)
                continue;
            Sample sample;
            sample.tone = toneTerms(chart.at<cv::Vec3f>(y, x));
            sample.place = placeTerms(2.0 * x / chart.cols - 1, 2.0 * y / chart.rows - 1);
            sample.seen = cv::Vec3d(seen.at<cv::Vec3f>(y, x)) / 255.0;
            samples.push_back(sample);
        }
    }
    return samples;
}

/// What solves the weighted least squares, held to `expected` where nothing says otherwise.
template <int count, typename Each>
cv::Vec<double, count> solved(const std::vector<Sample>& samples, const cv::Vec<double, count>& expected,
                              const cv::Vec<double, count>& stiff, Each each)
{
    cv::Matx<double, count, count> normal = cv::Matx<double, count, count>::zeros();
    cv::Vec<double, count> right = cv::Vec<double, count>::all(0);
    double weights = 0;
    for (const Sample& sample : samples) {
        const auto [row, value, weight] = each(sample);
        weights += weight;
        for (int i = 0; i < count; ++i) {
            right[i] += weight * row[i] * value;
            for (int j = 0; j < count; ++j)
                normal(i, j) += weight * row[i] * row[j];
        }
    }
    for (int i = 0; i < count; ++i) {
        normal(i, i) += stiff[i] * weights + 1e-9;
        right[i] += stiff[i] * weights * expected[i];
    }
    return normal.solve(right, cv::DECOMP_CHOLESKY);
}

using Tones = std::array<Tone, 3>;

template <typename Row, int count>
struct Equation
{
    cv::Vec<double, count> row;
    double value;
    double weight;
};

Tones tonesOf(const std::vector<Sample>& samples)
{
    // A first slope: what is bright in the picture over what is bright in the chart.
    Tones tones;
    const Tone stiff = {1e-4, stiffness, stiffness, stiffness, 3 * stiffness, 3 * stiffness, 3 * stiffness};
    for (int channel = 0; channel < 3; ++channel) {
        double seen = 0;
        double shown = 0;
        for (const Sample& sample : samples) {
            seen += sample.weight * sample.seen[channel];
            shown += sample.weight * sample.tone[1 + channel];
        }
        Tone expected = Tone::all(0);
        expected[1 + channel] = seen / std::max(shown, 1e-3);
        tones[std::size_t(channel)] = solved<terms>(samples, expected, stiff, [channel](const Sample& s) {
            return Equation<Sample, terms>{s.tone * s.gain, s.seen[channel],
                                           s.isClipped[channel] ? 0 : s.weight};
        });
    }
    return tones;
}

cv::Vec3d toned(const Tones& tones, const Tone& color)
{
    return {std::max(0.0, tones[0].dot(color)), std::max(0.0, tones[1].dot(color)),
            std::max(0.0, tones[2].dot(color))};
}

GainTerms gainOf(const std::vector<Sample>& samples, const Tones& tones)
{
    const GainTerms stiff = {0, gainStiffness, gainStiffness, gainStiffness, gainStiffness, gainStiffness};
    return solved<gainTerms>(samples, {}, stiff, [&tones](const Sample& s) {
        const double expected = cv::sum(toned(tones, s.tone))[0];
        const double seen = cv::sum(s.seen)[0];
        const bool isDark =
            expected < 0.1 || seen < 0.05 || s.isClipped[0] || s.isClipped[1] || s.isClipped[2];
        const double ratio = isDark ? 0 : std::log(seen / expected);
        return Equation<Sample, gainTerms>{s.place, ratio, isDark ? 0 : s.weight * expected};
    });
}

/// Sets the weights by what is off, and returns the median of that.
double reweigh(std::vector<Sample>& samples, const Tones& tones, const GainTerms& gain, double looseness)
{
    std::vector<double> errors;
    for (Sample& sample : samples) {
        sample.gain = std::exp(std::clamp(gain.dot(sample.place), -1.5, 1.5));
        cv::Vec3d off = sample.seen - toned(tones, sample.tone) * sample.gain;
        for (int channel = 0; channel < 3; ++channel) {
            sample.isClipped[std::size_t(channel)] = sample.seen[channel] > clipped && off[channel] < 0;
            if (sample.isClipped[std::size_t(channel)])
                off[channel] = 0;
        }
        errors.push_back(std::sqrt(off.dot(off) / 3));
    }
    std::vector<double> sorted = errors;
    std::nth_element(sorted.begin(), sorted.begin() + std::ptrdiff_t(sorted.size() / 2), sorted.end());
    const double median = std::max(sorted[sorted.size() / 2], 0.004);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double ratio = errors[i] / (looseness * median);
        samples[i].weight = ratio >= 1 ? 1e-4 : (1 - ratio * ratio) * (1 - ratio * ratio);
    }
    return median;
}

cv::Mat gainImage(const GainTerms& gain, const cv::Size& size)
{
    cv::Mat image(size, CV_32F);
    for (int y = 0; y < size.height; ++y) {
        auto* line = image.ptr<float>(y);
        for (int x = 0; x < size.width; ++x)
            line[x] = float(std::exp(std::clamp(
                gain.dot(placeTerms(2.0 * x / size.width - 1, 2.0 * y / size.height - 1)), -1.5, 1.5)));
    }
    return image;
}

cv::Mat tonedImage(const Tones& tones, const cv::Mat& chart)
{
    cv::Mat image(chart.size(), CV_32FC3);
    for (int y = 0; y < chart.rows; ++y) {
        const auto* from = chart.ptr<cv::Vec3f>(y);
        auto* to = image.ptr<cv::Vec3f>(y);
        for (int x = 0; x < chart.cols; ++x)
            to[x] = toned(tones, toneTerms(from[x])) * 255.0;
    }
    return image;
}

void setExtremes(Light& light)
{
    for (int channel = 0; channel < 3; ++channel) {
        cv::Mat plane;
        cv::extractChannel(light.toned, plane, channel);
        double least = 0;
        double most = 0;
        cv::minMaxLoc(plane, &least, &most);
        light.black[channel] = float(least);
        light.white[channel] = float(most);
    }
}

} // namespace

Light lightOf(const cv::Mat& chart, const cv::Mat& seen, const cv::Mat& inside)
{
    Light light;
    std::vector<Sample> samples = samplesOf(chart, seen, inside);
    if (samples.size() < 200)
        return light;
    Tones tones = tonesOf(samples);
    GainTerms gain = GainTerms::all(0);
    double median = 0;
    for (int round = 0; round < rounds; ++round) {
        median = reweigh(samples, tones, gain, round < 3 ? 6 : 4);
        gain = gainOf(samples, tones);
        reweigh(samples, tones, gain, round < 3 ? 6 : 4);
        tones = tonesOf(samples);
    }
    light.noise = 255 * median;
    light.gain = gainImage(gain, chart.size());
    light.toned = tonedImage(tones, chart);
    setExtremes(light);
    for (const Tone& tone : tones) {
        light.slope +=
            (cv::sum(cv::Vec3d(tone[1] + tone[4], tone[2] + tone[5], tone[3] + tone[6]))[0] - 1) / 3;
        light.offset += 255 * tone[0] / 3;
    }
    light.isKnown = true;
    return light;
}

} // namespace WallReading
