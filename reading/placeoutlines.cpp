#include "placeoutlines.h"

#include "cvimages.h"

#include <opencv2/calib3d.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace WallReading {

namespace {

constexpr int outlineSide = 800;   ///< of the picture that outlines are looked for in
constexpr double leastArea = 0.03; ///< of the picture
constexpr std::size_t proposals = 4;

using Contour = std::vector<cv::Point>;

struct Quad
{
    std::vector<cv::Point2f> corners;
    double area = 0;
};

/// The hull's four corners; none where it has not four.
Quad quadOf(const Contour& contour)
{
    Contour hull;
    cv::convexHull(contour, hull);
    const double length = cv::arcLength(hull, true);
    for (double part = 0.01; part < 0.08; part += 0.005) {
        Contour corners;
        cv::approxPolyDP(hull, corners, part * length, true);
        if (corners.size() == 4) {
            const double area = cv::contourArea(corners);
            if (area > 1.15 * cv::contourArea(hull) || area < 0.85 * cv::contourArea(hull))
                return {};
            return {{corners.begin(), corners.end()}, area};
        }
    }
    return {};
}

/// From the corner that is the most to the top left, clockwise.
void order(std::vector<cv::Point2f>& corners)
{
    if ((corners[1] - corners[0]).cross(corners[2] - corners[1]) < 0)
        std::reverse(corners.begin(), corners.end());
    const auto first =
        std::min_element(corners.begin(), corners.end(),
                         [](const cv::Point2f& a, const cv::Point2f& b) { return a.x + a.y < b.x + b.y; });
    std::rotate(corners.begin(), first, corners.end());
}

void addQuads(std::vector<Quad>& quads, const cv::Mat& bright)
{
    std::vector<Contour> contours;
    cv::findContours(bright, contours, cv::RETR_EXTERNAL, cv::CHAIN_APPROX_SIMPLE);
    for (const Contour& contour : contours) {
        if (cv::contourArea(contour) < leastArea * double(bright.total()))
            continue;
        const Quad quad = quadOf(contour);
        if (quad.area > 0)
            quads.push_back(quad);
    }
}

bool isNear(const Quad& a, const Quad& b)
{
    double furthest = 0;
    for (std::size_t i = 0; i < 4; ++i)
        furthest = std::max(furthest, cv::norm(a.corners[i] - b.corners[i]));
    return furthest < 12;
}

} // namespace

std::vector<Lens> proposedByOutlines(const cv::Mat& grey, const cv::Size& chartSize)
{
    const double scale = std::min(1.0, double(outlineSide) / std::max(grey.cols, grey.rows));
    cv::Mat small = reduced(grey, scale);
    std::vector<Quad> quads;
    cv::Mat bright;
    const double otsu = cv::threshold(small, bright, 0, 255, cv::THRESH_BINARY | cv::THRESH_OTSU);
    for (const double level : {otsu, otsu * 0.7, otsu * 0.5, otsu * 0.35, otsu * 1.3}) {
        for (const int side : {5, 15}) {
            cv::threshold(small, bright, level, 255, cv::THRESH_BINARY);
            cv::morphologyEx(bright, bright, cv::MORPH_CLOSE,
                             cv::getStructuringElement(cv::MORPH_RECT, {side, side}));
            cv::morphologyEx(bright, bright, cv::MORPH_OPEN,
                             cv::getStructuringElement(cv::MORPH_RECT, {5, 5}));
            addQuads(quads, bright);
        }
    }
    for (Quad& quad : quads)
        order(quad.corners);
    std::stable_sort(quads.begin(), quads.end(),
                     [](const Quad& a, const Quad& b) { return a.area > b.area; });
    const auto width = float(chartSize.width);
    const auto height = float(chartSize.height);
    const std::vector<cv::Point2f> from = {{0, 0}, {width, 0}, {width, height}, {0, height}};
    std::vector<Lens> lenses;
    std::vector<Quad> taken;
    for (const Quad& quad : quads) {
        const bool isKnown =
            std::any_of(taken.begin(), taken.end(), [&quad](const Quad& q) { return isNear(q, quad); });
        if (isKnown || lenses.size() >= proposals)
            continue;
        taken.push_back(quad);
        std::vector<cv::Point2f> to;
        for (const cv::Point2f& corner : quad.corners)
            to.push_back((corner + cv::Point2f(0.5F, 0.5F)) * float(1 / scale));
        const Lens lens = lensOf(cv::Matx33d(cv::Mat(cv::getPerspectiveTransform(from, to))), grey.size());
        if (isSensible(lens, chartSize))
            lenses.push_back(lens);
    }
    return lenses;
}

Lens filling(const cv::Size& picture, const cv::Size& chart)
{
    return lensOf(cv::Matx33d(double(picture.width) / chart.width, 0, 0, 0,
                              double(picture.height) / chart.height, 0, 0, 0, 1),
                  picture);
}

} // namespace WallReading
