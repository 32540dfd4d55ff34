#pragma once

#include "chartview.h"
#include "lightmodel.h"
#include "placesearch.h"

#include <opencv2/core.hpp>

#include <vector>

namespace WallReading {

/// What the wall shows beside what it should show, in the same light, blur and place.
struct Evidence
{
    cv::Size chart;
    double scale = 1;            ///< pixels here per chart pixel
    std::vector<cv::Rect> rects; ///< of the cabinets
    int columns = 1;
    cv::Mat inside;  ///< where the picture is
    cv::Mat seen;    ///< three floats of 255, without the gain
    cv::Mat ceiling; ///< what white comes to where the camera cannot show more, without the gain
    Light light;     ///< with what the wall should show
    int margin = 2;  ///< pixels at a cabinet's border that its neighbours shine into

    cv::Mat seenAt(std::size_t cabinet) const { return seen(rects[cabinet]); }
    cv::Mat expectedAt(std::size_t cabinet) const { return light.toned(rects[cabinet]); }

    /// The brightest of what the wall can show, over its darkest.
    float contrast() const;
};

Evidence evidenceOf(const cv::Mat& chart, const ChartComparison::CabinetGrid& grid, const cv::Mat& picture,
                    const FoundPlace& place);

/// By how much the wall misses `expected` in `place`, per value, in squares of what is to be expected of this
/// light: about 1 where it shows it. A few percent of brightness and colour do not count. With `map`, for
/// each pixel.
double costOf(const Evidence& evidence, const cv::Rect& place, const cv::Mat& expected,
              cv::Mat* map = nullptr);

/// Which of two pictures the wall rather shows. Only where they differ counts.
struct Leaning
{
    double along = 0; ///< how far it is on the way from the first to the second, 0 to 1
    double rest = 99; ///< squares that it misses the second by, of those that it misses the first by
};

Leaning leaningOf(const Evidence& evidence, const cv::Rect& place, const cv::Mat& from, const cv::Mat& to);

/// `cv::resize` where the sizes differ.
cv::Mat fittedTo(const cv::Mat& patch, const cv::Size& size);

} // namespace WallReading
