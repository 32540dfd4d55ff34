#include "cabinetevidence.h"

#include "cvimages.h"
#include "readingthresholds.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace WallReading {

namespace {

/// The most pixels of the longer side: more than labels need.
constexpr int mostSide = 2400;

/// Taken off the noise and the lines between LEDs, in pixels of the view.
constexpr double calming = 0.7;

/// In pixels of the view, on top of 0.6 that the chart has already.
constexpr std::array<double, 6> blurs = {0.3, 0.7, 1.1, 1.6, 2.2, 3.0};

/// Two blurs that differ by less can be mixed.
constexpr double blurStep = 0.25;

constexpr double displayGamma = 2.2;

cv::Mat asFloats(const cv::Mat& rgb)
{
    cv::Mat result;
    rgb.convertTo(result, CV_32FC3);
    return result;
}

cv::Mat blurred(const cv::Mat& image, double sigma)
{
    cv::Mat result;
    cv::GaussianBlur(image, result, {}, sigma);
    return result;
}

cv::Mat lightOfValues(const cv::Mat& rgb)
{
    cv::Mat table(1, 256, CV_32F);
    for (int i = 0; i < 256; ++i)
        table.at<float>(i) = float(std::pow(i / 255.0, displayGamma));
    cv::Mat light;
    cv::LUT(rgb, table, light);
    return light;
}

/// The chart's values as a camera sees them that is not sharp: it is the light that mixes.
cv::Mat blurredValues(const cv::Mat& light, double sigma)
{
    cv::Mat result = blurred(light, sigma);
    cv::pow(result, 1 / displayGamma, result);
    return result * 255;
}

double viewScale(const cv::Mat& chart, const Lens& lens)
{
    const double seen = scaleAt(lens, {chart.cols / 2.0, chart.rows / 2.0});
    return std::min({1.0, seen * 1.1, double(mostSide) / std::max(chart.cols, chart.rows)});
}

/// The lens for the picture made smaller.
Lens reducedBy(const Lens& lens, double factor)
{
    Lens result = lens;
    result.homography = cv::Matx33d(factor, 0, 0, 0, factor, 0, 0, 0, 1) * lens.homography;
    result.middle = lens.middle * factor;
    result.reach = lens.reach * factor;
    return result;
}

/// Blurred by `sigma` times what `blurOf` says of each pixel: further away, a pixel of the picture is more of
/// the wall.
cv::Mat blurredByPlace(const cv::Mat& light, double sigma, const cv::Mat& relative)
{
    double least = 0;
    double most = 0;
    cv::minMaxLoc(relative, &least, &most);
    const int levels = std::clamp(2 + int((most - least) / blurStep), 2, 5);
    const double step = std::max(1e-3, (most - least) / (levels - 1));
    cv::Mat result;
    for (int level = 0; level < levels; ++level) {
        const double at = least + level * step;
        const cv::Mat weight = cv::max(0, 1 - cv::abs(relative - at) / step);
        cv::Mat weights;
        cv::merge(std::vector<cv::Mat>(3, weight), weights);
        const cv::Mat part = blurred(light, sigma * at).mul(weights);
        result = result.empty() ? part : cv::Mat(result + part);
    }
    cv::pow(cv::max(result, 0), 1 / displayGamma, result);
    return result * 255;
}

/// How much of the wall a pixel of the picture is, each way, against the middle.
cv::Mat reachOfPixels(const Lens& lens, const ChartView& view)
{
    constexpr int steps = 24;
    cv::Mat coarse(steps, steps, CV_32F);
    const double middle = scaleAt(lens, {view.chart.width / 2.0, view.chart.height / 2.0});
    for (int y = 0; y < steps; ++y) {
        for (int x = 0; x < steps; ++x)
            coarse.at<float>(y, x) =
                float(middle / std::max(1e-3, scaleAt(lens, {view.chart.width * (x + 0.5) / steps,
                                                             view.chart.height * (y + 0.5) / steps})));
    }
    cv::Mat result;
    cv::resize(coarse, result, view.size(), 0, 0, cv::INTER_LINEAR);
    return result;
}

struct Slopes
{
    cv::Mat across;
    cv::Mat down;
    double square = 0;
};

Slopes slopesOf(const cv::Mat& grey)
{
    Slopes slopes;
    cv::Sobel(grey, slopes.across, CV_32F, 1, 0);
    cv::Sobel(grey, slopes.down, CV_32F, 0, 1);
    slopes.square = slopes.across.dot(slopes.across) + slopes.down.dot(slopes.down);
    return slopes;
}

/// How alike the slopes of both are, 1 at most: the most where both are equally sharp.
double alikeSlopes(const Slopes& seen, const Slopes& shown)
{
    return (seen.across.dot(shown.across) + seen.down.dot(shown.down)) /
           std::sqrt(seen.square * shown.square + 1e-6);
}

cv::Mat withoutGain(const cv::Mat& seen, const Light& light)
{
    cv::Mat gains;
    cv::merge(std::vector<cv::Mat>(3, light.gain), gains);
    const cv::Scalar pedestal(light.pedestal);
    cv::Mat result = seen - pedestal;
    result /= gains;
    return result + pedestal;
}

/// The blur that makes the chart as sharp as the picture.
double blurOf(const cv::Mat& chartLight, const cv::Mat& seen, const cv::Mat& inside)
{
    const Light light = lightOf(blurredValues(chartLight, 0.6), seen, inside);
    if (!light.isKnown)
        return 1;
    const Slopes even = slopesOf(greyOf(seen) / light.gain);
    const cv::Mat shown = greyOf(light.toned);
    double best = 1;
    double most = -1;
    for (const double sigma : blurs) {
        const double alike = alikeSlopes(even, slopesOf(blurred(shown, sigma)));
        if (alike > most) {
            most = alike;
            best = sigma;
        }
    }
    return std::hypot(best, 0.6);
}

} // namespace

Evidence evidenceOf(const cv::Mat& chart, const ChartComparison::CabinetGrid& grid, const cv::Mat& picture,
                    const FoundPlace& place)
{
    Evidence evidence;
    evidence.chart = chart.size();
    evidence.columns = grid.columns;
    const double wanted = viewScale(chart, place.lens);
    const ChartView view =
        viewOf(chart, std::max(16, int(std::lround(wanted * std::max(chart.cols, chart.rows)))));
    evidence.scale = view.scale;
    for (std::size_t i = 0; i < grid.cabinets.size(); ++i)
        evidence.rects.push_back(cabinetIn(view, grid, i));

    const double seenScale = scaleAt(place.lens, {chart.cols / 2.0, chart.rows / 2.0});
    const cv::Mat small = reduced(picture, std::min(1.0, 1.4 * view.scale / seenScale));
    const Lens lens = reducedBy(place.lens, double(small.cols) / picture.cols);
    cv::Mat seen = asFloats(rectified(small, lens, cv::Size2d(chart.size()), view.size(), &evidence.inside));
    seen = blurred(seen, calming);
    const cv::Mat shown = lightOfValues(view.rgb);
    const double blur = blurOf(shown, seen, evidence.inside);
    evidence.margin = std::max(2, int(std::lround(1 + 1.5 * blur)));
    evidence.light =
        lightOf(blurredByPlace(shown, blur, reachOfPixels(place.lens, view)), seen, evidence.inside);
    if (!evidence.light.isKnown)
        return evidence;
    const double pedestal = double(cv::sum(evidence.light.pedestal)[0]) / 3;
    evidence.ceiling = (255 - pedestal) / evidence.light.gain + pedestal;
    evidence.seen = withoutGain(seen, evidence.light);
    return evidence;
}

namespace {

/// Without the border, where the cabinet is large enough.
cv::Rect inner(const cv::Size& size, int margin)
{
    const int across = size.width > 6 * margin ? margin : 0;
    const int down = size.height > 6 * margin ? margin : 0;
    return {across, down, size.width - 2 * across, size.height - 2 * down};
}

/// What a camera's black is off by a little light from beside: much where the tone curve is steep.
float strayError(float value)
{
    static const std::array<float, 256> errors = [] {
        std::array<float, 256> all = {};
        for (std::size_t i = 0; i < all.size(); ++i)
            all[i] = Thresholds::strayLight * 116 * std::pow(std::max(float(i) / 255, 0.08F), -1.2F);
        return all;
    }();
    return errors[std::size_t(std::clamp(value, 0.0F, 255.0F))];
}

struct Correction
{
    float gain = 1;
    cv::Vec3f offset;
};

/// Takes out what the light model may miss in one cabinet.
Correction correctionFor(const Evidence& evidence, const cv::Mat& seen, const cv::Mat& expected)
{
    Correction correction;
    correction.gain = float(std::clamp(seen.dot(expected) / std::max(1.0, expected.dot(expected)),
                                       1 - Thresholds::cabinetGain, 1 + Thresholds::cabinetGain));
    const cv::Scalar off = cv::mean(seen) - double(correction.gain) * cv::mean(expected);
    for (int c = 0; c < 3; ++c) {
        const double most = Thresholds::cabinetOffset * double(evidence.light.white[c]) + 2;
        correction.offset[c] = float(std::clamp(off[c], -most, most));
    }
    return correction;
}

struct Extremes
{
    cv::Mat high;
    cv::Mat low;
};

Extremes extremesOf(const cv::Mat& expected)
{
    Extremes result;
    const cv::Mat kernel = cv::Mat::ones(3, 3, CV_8U);
    cv::dilate(expected, result.high, kernel);
    cv::erode(expected, result.low, kernel);
    return result;
}

} // namespace

float Evidence::contrast() const
{
    float most = 1;
    for (int channel = 0; channel < 3; ++channel)
        most = std::max(most, light.white[channel] - light.black[channel]);
    return most;
}

double costOf(const Evidence& evidence, const cv::Rect& place, const cv::Mat& expected, cv::Mat* map)
{
    const cv::Mat seen = evidence.seen(place);
    const cv::Rect part = inner(place.size(), evidence.margin);
    // Where something covers a part, the rest would be corrected for it.
    const Correction correction = map ? Correction() : correctionFor(evidence, seen(part), expected(part));
    const Extremes extremes = extremesOf(expected);
    const cv::Mat ceiling = evidence.ceiling(place);
    const auto noise = float(evidence.light.noise);
    double sum = 0;
    if (map)
        *map = cv::Mat(place.size(), CV_32F, cv::Scalar(0));
    for (int y = part.y; y < part.br().y; ++y) {
        const auto* is = seen.ptr<cv::Vec3f>(y);
        const auto* should = expected.ptr<cv::Vec3f>(y);
        const auto* most = extremes.high.ptr<cv::Vec3f>(y);
        const auto* least = extremes.low.ptr<cv::Vec3f>(y);
        const auto* limit = ceiling.ptr<float>(y);
        for (int x = part.x; x < part.br().x; ++x) {
            float pixel = 0;
            for (int c = 0; c < 3; ++c) {
                const float value = std::min(limit[x], correction.gain * should[x][c] + correction.offset[c]);
                const float off = is[x][c] - value;
                const float edge = Thresholds::placeError * (most[x][c] - least[x][c]);
                const float light = Thresholds::lightError * value;
                const float stray = strayError(value);
                const float variance = noise * noise + edge * edge + light * light + stray * stray + 1;
                pixel += std::min(off * off / variance, Thresholds::mostPixelCost);
            }
            sum += double(pixel) / 3;
            if (map)
                map->at<float>(y, x) = pixel / 3;
        }
    }
    return sum / std::max(1, part.area());
}

Leaning leaningOf(const Evidence& evidence, const cv::Rect& place, const cv::Mat& from, const cv::Mat& to)
{
    const cv::Rect part = inner(place.size(), evidence.margin);
    const cv::Mat seen = evidence.seen(place)(part);
    const std::vector<cv::Mat> limits(3, evidence.ceiling(place)(part));
    cv::Mat limit;
    cv::merge(limits, limit);
    const cv::Mat start = cv::min(from(part), limit);
    const cv::Mat end = cv::min(to(part), limit);
    const cv::Mat way = end - start;
    const double length = way.dot(way);
    if (length < 1)
        return {};
    // Only where the two differ: elsewhere both miss the same.
    const cv::Mat weight = way.mul(way);
    const cv::Mat off = seen - start;
    const cv::Mat left = seen - end;
    return {off.dot(way) / length, left.mul(left).dot(weight) / std::max(1e-6, off.mul(off).dot(weight))};
}

cv::Mat fittedTo(const cv::Mat& patch, const cv::Size& size)
{
    if (patch.size() == size)
        return patch;
    cv::Mat result;
    cv::resize(patch, result, size, 0, 0, cv::INTER_LINEAR);
    return result;
}

} // namespace WallReading
