#include "cabinetexplanation.h"

#include "readingthresholds.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace WallReading {

namespace {

/// Others' contents that a cabinet is held against although it shows its own.
constexpr std::size_t contentsOfRight = 2;
constexpr std::size_t contentsOfLikely = 5;

Explanation own(const Evidence& evidence, std::size_t cabinet)
{
    Explanation result;
    result.isRight = true;
    result.cabinet = int(cabinet);
    result.expected = evidence.expectedAt(cabinet);
    result.cost = costOf(evidence, evidence.rects[cabinet], result.expected);
    return result;
}

Explanation shows(const Evidence& evidence, std::size_t cabinet, const Content& content)
{
    Explanation result;
    const cv::Mat seen = evidence.seenAt(cabinet);
    result.expected =
        fittedTo(laid(evidence.expectedAt(std::size_t(content.cabinet)), content.orientation), seen.size());
    result.cabinet = content.cabinet;
    // Mirrored top to bottom is mirrored left to right and turned by half.
    result.turn = content.orientation.turn;
    result.kind = content.cabinet != int(cabinet)  ? Kind::Swapped
                  : content.orientation.isMirrored ? Kind::Mirrored
                                                   : Kind::Turned;
    result.cost = costOf(evidence, evidence.rects[cabinet], result.expected);
    return result;
}

/// The middle value of each channel.
cv::Vec3f medianOf(const cv::Mat& seen)
{
    std::vector<cv::Mat> planes;
    cv::split(seen, planes);
    cv::Vec3f middle;
    for (int c = 0; c < 3; ++c) {
        std::vector<float> values = planes[std::size_t(c)].reshape(1, 1).clone();
        std::nth_element(values.begin(), values.begin() + std::ptrdiff_t(values.size() / 2), values.end());
        middle[c] = values[values.size() / 2];
    }
    return middle;
}

/// The strip of `beside` along its border with `other`, without what that shines into.
cv::Rect stripBeside(const cv::Rect& beside, const cv::Rect& other, int margin)
{
    const int wide = std::max(3, beside.width / 8);
    const int high = std::max(3, beside.height / 8);
    if (other.x >= beside.br().x)
        return {beside.br().x - margin - wide, beside.y, wide, beside.height};
    if (other.br().x <= beside.x)
        return {beside.x + margin, beside.y, wide, beside.height};
    if (other.y >= beside.br().y)
        return {beside.x, beside.br().y - margin - high, beside.width, high};
    return {beside.x, beside.y + margin, beside.width, high};
}

/// One colour all over; dark where it is about the darkest that the wall can show.
Explanation oneColor(const Evidence& evidence, std::size_t cabinet)
{
    Explanation result;
    const cv::Mat seen = evidence.seenAt(cabinet);
    const cv::Vec3f middle = medianOf(seen);
    bool isDark = true;
    for (int c = 0; c < 3; ++c)
        isDark = isDark && middle[c] < std::max(evidence.light.black[c] + 8,
                                                Thresholds::mostDark * evidence.light.white[c]);
    result.kind = isDark ? Kind::Dark : Kind::Flat;
    result.expected = cv::Mat(seen.size(), CV_32FC3, cv::Scalar(middle[0], middle[1], middle[2]));
    result.cost = costOf(evidence, evidence.rects[cabinet], result.expected);
    return result;
}

/// Its own picture, brighter or darker by one factor.
Explanation dimmed(const Evidence& evidence, std::size_t cabinet)
{
    Explanation result;
    const cv::Mat seen = evidence.seenAt(cabinet);
    const cv::Mat expected = evidence.expectedAt(cabinet);
    result.kind = Kind::Brightness;
    // A part of what it shows may be the room's light.
    const cv::Scalar meanSeen = cv::mean(seen);
    const cv::Scalar meanExpected = cv::mean(expected);
    const cv::Mat flatExpected = expected - meanExpected;
    const double spread = flatExpected.dot(flatExpected);
    const double through = seen.dot(expected) / std::max(1.0, expected.dot(expected));
    const double slope = spread > 1 ? (seen - meanSeen).dot(flatExpected) / spread : through;
    result.factor = std::clamp(slope, 0.2, 3.0);
    const double ambient = cv::sum(cv::Scalar(evidence.light.black))[0] / 3;
    const double most = 5 + 1.5 * ambient * std::max(0.0, 1 - result.factor);
    const double rest = std::clamp(cv::sum(meanSeen - meanExpected * result.factor)[0] / 3, -5.0, most);
    result.expected = expected * result.factor + cv::Scalar::all(rest);
    result.cost = costOf(evidence, evidence.rects[cabinet], result.expected);
    return result;
}

/// Its own picture, darker by about as much in each channel: where the camera shows no more of one, that one
/// loses less, and where little else is on the cabinet than its colour, no slope tells.
std::optional<Explanation> evenlyDimmed(const Evidence& evidence, std::size_t cabinet)
{
    const cv::Mat expected = evidence.expectedAt(cabinet);
    const cv::Scalar pedestal(evidence.light.pedestal);
    const cv::Scalar is = cv::mean(evidence.seenAt(cabinet)) - pedestal;
    const cv::Scalar should = cv::mean(expected) - pedestal;
    double least = 99;
    double most = 0;
    bool isBright = false; // of one that is not little would be left but dark
    cv::Scalar factors = cv::Scalar::all(-1);
    for (int c = 0; c < 3; ++c) {
        if (should[c] < Thresholds::leastOfChannel * double(evidence.light.white[c]))
            continue;
        isBright = isBright || should[c] > double(Thresholds::mostDark * evidence.light.white[c]);
        factors[c] = is[c] / should[c];
        least = std::min(least, factors[c]);
        most = std::max(most, factors[c]);
    }
    if (!isBright || least < Thresholds::leastBrightness || most > 1 || most > Thresholds::mostUneven * least)
        return std::nullopt;
    for (int c = 0; c < 3; ++c)
        factors[c] = factors[c] < 0 ? least : factors[c];
    Explanation result;
    result.kind = Kind::Brightness;
    result.factor = least;
    result.expected = expected - pedestal;
    cv::multiply(result.expected, factors, result.expected);
    result.expected += pedestal;
    result.cost = costOf(evidence, evidence.rects[cabinet], result.expected);
    return result;
}

/// Its own picture with a channel missing, or with two exchanged.
std::vector<Explanation> recolored(const Evidence& evidence, std::size_t cabinet)
{
    const cv::Mat seen = evidence.seenAt(cabinet);
    const cv::Mat expected = evidence.expectedAt(cabinet);
    const cv::Scalar meanSeen = cv::mean(seen);
    const cv::Scalar meanExpected = cv::mean(expected);
    std::vector<Explanation> all;
    for (int missing = 0; missing < 3; ++missing) {
        std::vector<cv::Mat> planes;
        cv::split(expected, planes);
        const double black = double(evidence.light.pedestal[missing]);
        const double should = meanExpected[missing] - black;
        if (should < Thresholds::leastOfChannel * double(evidence.light.white[missing]) ||
            meanSeen[missing] - black > Thresholds::mostMissing * should)
            continue;
        planes[std::size_t(missing)].setTo(meanSeen[missing]);
        Explanation result;
        result.kind = Kind::Color;
        cv::merge(planes, result.expected);
        result.cost = costOf(evidence, evidence.rects[cabinet], result.expected);
        all.push_back(result);
    }
    const std::vector<std::array<int, 3>> orders = {{0, 2, 1}, {1, 0, 2}, {2, 1, 0}, {1, 2, 0}, {2, 0, 1}};
    for (const auto& order : orders) {
        std::vector<cv::Mat> planes;
        cv::split(expected, planes);
        Explanation result;
        result.kind = Kind::Color;
        cv::merge(std::vector<cv::Mat>{planes[std::size_t(order[0])], planes[std::size_t(order[1])],
                                       planes[std::size_t(order[2])]},
                  result.expected);
        result.cost = costOf(evidence, evidence.rects[cabinet], result.expected);
        all.push_back(result);
    }
    return all;
}

} // namespace

std::vector<Explanation> explanationsOf(const Evidence& evidence, std::size_t cabinet,
                                        const std::vector<Content>& nearest, double clearlyRight,
                                        double likelyRight)
{
    std::vector<Explanation> all = {own(evidence, cabinet)};
    const bool isClear = all.front().cost < clearlyRight;
    std::size_t left = isClear                          ? contentsOfRight
                       : all.front().cost < likelyRight ? contentsOfLikely
                                                        : nearest.size();
    for (const Content& content : nearest) {
        if (content.cabinet == int(cabinet))
            continue;
        if (left-- == 0)
            break;
        all.push_back(shows(evidence, cabinet, content));
    }
    for (const Orientation& orientation : orientationsFor(evidence.rects[cabinet].size())) {
        if (!orientation.isStraight())
            all.push_back(shows(evidence, cabinet, {int(cabinet), orientation}));
    }
    if (isClear)
        return all;
    all.push_back(oneColor(evidence, cabinet));
    all.push_back(dimmed(evidence, cabinet));
    if (const auto even = evenlyDimmed(evidence, cabinet))
        all.push_back(*even);
    const std::vector<Explanation> colors = recolored(evidence, cabinet);
    all.insert(all.end(), colors.begin(), colors.end());
    return all;
}

bool goesOn(const Evidence& evidence, std::size_t beside, std::size_t plain)
{
    const cv::Rect strip = stripBeside(evidence.rects[beside], evidence.rects[plain], evidence.margin) &
                           cv::Rect({}, evidence.seen.size());
    const cv::Vec3f color = medianOf(evidence.seenAt(plain));
    const cv::Mat seen = evidence.seen(strip);
    const cv::Mat expected = evidence.light.toned(strip);
    const double apart = 4 + Thresholds::noisesApart * evidence.light.noise;
    int compared = 0;
    int alike = 0;
    for (int y = 0; y < strip.height; ++y) {
        for (int x = 0; x < strip.width; ++x) {
            const cv::Vec3f should = expected.at<cv::Vec3f>(y, x);
            if (cv::norm(should - color) < apart)
                continue;
            ++compared;
            const cv::Vec3f is = seen.at<cv::Vec3f>(y, x);
            alike += cv::norm(is - color) < cv::norm(is - should) ? 1 : 0;
        }
    }
    return compared > 0.2 * strip.area() && alike > Thresholds::mostAlikeBeside * compared;
}

} // namespace WallReading
