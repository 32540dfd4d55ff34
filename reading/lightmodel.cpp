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
/// Medians of what is off: what is off by more is taken for a fault. At first few, for the median itself is
/// large while people before the wall are taken for its light.
constexpr std::array<double, 9> looseness = {3, 3, 3, 3, 3, 3, 3, 4, 4};

/// So that people before the wall are known before its gain is looked for: they would make a slope of it.
constexpr int roundsWithoutGain = 2;

/// A channel that is so bright in the picture may be brighter on the wall.
constexpr double clipped = 0.97;

/// Holds a curve to a straight line where the chart has few colours: of what the chart varies by.
constexpr double stiffness = 0.02;

/// What a channel adds that the chart does not vary in is light of the wall, not of the room.
constexpr double pedestalStiffness = 1e-3;

/// Of a channel of 1: a chart that varies less has one colour.
constexpr double leastVariance = 1e-4;

/// The same for what a channel takes from the other two: a chart of few colours leaves that open, and what is
/// rare in it would look wrong. At first next to nothing, so that it is not taken for faults.
constexpr double firstCrossStiffness = 20;
constexpr double crossStiffness = 1;

/// The same for the gain.
constexpr double gainStiffness = 0.01;

/// By so much, in logarithms, a right pixel's brightness is off; what is off by more counts less and less.
constexpr double gainScatter = 0.08;
constexpr int gainRounds = 2;

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
    const int step = std::max(1, int(std::sqrt(double(chart.total()) / 8000)));
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

/// The gain is the wall's: what shines in from elsewhere, the first term, it does not change.
Tone gained(const Tone& tone, double gain)
{
    Tone result = tone * gain;
    result[0] = tone[0];
    return result;
}

cv::Vec3d pedestalOf(const Tones& tones)
{
    return {std::max(0.0, tones[0][0]), std::max(0.0, tones[1][0]), std::max(0.0, tones[2][0])};
}

template <typename Row, int count>
struct Equation
{
    cv::Vec<double, count> row;
    double value;
    double weight;
};

/// How much a channel of the chart varies, as weighted: what is less than this holds a slope, whatever the
/// chart.
cv::Vec3d variancesOf(const std::vector<Sample>& samples)
{
    double weights = 1e-9;
    cv::Vec3d sum;
    cv::Vec3d squares;
    for (const Sample& sample : samples) {
        const cv::Vec3d color(sample.tone[1], sample.tone[2], sample.tone[3]);
        weights += sample.weight;
        sum += sample.weight * color;
        squares += sample.weight * color.mul(color);
    }
    const cv::Vec3d mean = sum / weights;
    return squares / weights - mean.mul(mean);
}

Tones tonesOf(const std::vector<Sample>& samples, double crossStiffness)
{
    // A first slope: what is bright in the picture over what is bright in the chart.
    Tones tones;
    const cv::Vec3d variances = variancesOf(samples);
    const double most = std::max({variances[0], variances[1], variances[2], leastVariance});
    for (int channel = 0; channel < 3; ++channel) {
        double seen = 0;
        double shown = 0;
        for (const Sample& sample : samples) {
            seen += sample.weight * sample.seen[channel];
            shown += sample.weight * sample.gain * sample.tone[1 + channel];
        }
        Tone expected = Tone::all(0);
        expected[1 + channel] = seen / std::max(shown, 1e-3);
        const double cross = crossStiffness * most;
        Tone stiff = {pedestalStiffness, cross, cross, cross, 3 * cross, 3 * cross, 3 * cross};
        stiff[1 + channel] = stiffness * std::max(variances[channel], leastVariance);
        stiff[4 + channel] = 3 * stiff[1 + channel];
        tones[std::size_t(channel)] = solved<terms>(samples, expected, stiff, [channel](const Sample& s) {
            return Equation<Sample, terms>{gained(s.tone, s.gain), s.seen[channel],
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

/// How much brighter a pixel is than expected: the logarithm, and how much that says.
struct Brightness
{
    double ratio = 0;
    double weight = 0;
};

/// Only channels that the camera can tell: in an overexposed picture others say that all of it is equally
/// bright.
Brightness brightnessOf(const Sample& sample, const cv::Vec3d& expected, const cv::Vec3d& pedestal)
{
    double should = 0;
    double is = 0;
    for (int channel = 0; channel < 3; ++channel) {
        if (sample.seen[channel] > clipped)
            continue;
        should += expected[channel] - pedestal[channel];
        is += sample.seen[channel] - pedestal[channel];
    }
    if (should < 0.08 || is < 0.02)
        return {};
    return {std::log(is / should), sample.weight * should};
}

/// Robust by itself, for what covers a part of the wall is darker than any gain.
GainTerms gainOf(const std::vector<Sample>& samples, const Tones& tones, GainTerms gain)
{
    // Its mean is the tone curves' matter: left to both it would drift.
    const GainTerms stiff = {10, gainStiffness, gainStiffness, gainStiffness, gainStiffness, gainStiffness};
    const cv::Vec3d pedestal = pedestalOf(tones);
    for (int round = 0; round < gainRounds; ++round) {
        gain = solved<gainTerms>(samples, {}, stiff, [&](const Sample& s) {
            const Brightness brightness = brightnessOf(s, toned(tones, s.tone), pedestal);
            const double off = (brightness.ratio - gain.dot(s.place)) / gainScatter;
            return Equation<Sample, gainTerms>{s.place, brightness.ratio,
                                               brightness.weight / (1 + off * off)};
        });
    }
    return gain;
}

/// Sets the weights by what is off, and returns the median of that.
double reweigh(std::vector<Sample>& samples, const Tones& tones, const GainTerms& gain, double mostMedians)
{
    std::vector<double> errors;
    const cv::Vec3d pedestal = pedestalOf(tones);
    for (Sample& sample : samples) {
        sample.gain = std::exp(std::clamp(gain.dot(sample.place), -1.5, 1.5));
        cv::Vec3d off = sample.seen - pedestal - (toned(tones, sample.tone) - pedestal) * sample.gain;
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
        const double ratio = errors[i] / (mostMedians * median);
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
    Tones tones = tonesOf(samples, firstCrossStiffness);
    GainTerms gain = GainTerms::all(0);
    double median = 0;
    for (int round = 0; round < int(looseness.size()); ++round) {
        median = reweigh(samples, tones, gain, looseness[std::size_t(round)]);
        if (round >= roundsWithoutGain)
            gain = gainOf(samples, tones, gain);
        reweigh(samples, tones, gain, looseness[std::size_t(round)]);
        tones = tonesOf(samples, round < 5 ? firstCrossStiffness : crossStiffness);
    }
    light.noise = 255 * median;
    light.pedestal = pedestalOf(tones) * 255;
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
