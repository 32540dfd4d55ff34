#include "chartmarkers.h"

#include <opencv2/calib3d.hpp>
#include <opencv2/imgproc.hpp>
#ifdef VD_HAS_ARUCO
#include <opencv2/aruco.hpp>
#endif

#include <algorithm>
#include <cmath>
#include <map>

namespace WallReading {

namespace {

/// So many have to agree: two swapped ones do, by chance, with a third at most.
constexpr std::size_t leastMarkers = 4;

/// Parts of a cabinet by which a marker may be off: what is swapped is off by a whole one, and a lens bends
/// by less.
constexpr double mostOff = 0.25;

constexpr std::size_t neighboursAsked = 6;

std::array<cv::Point2d, 4> cornersOf(const QRect& rect)
{
    const double right = rect.x() + rect.width();
    const double bottom = rect.y() + rect.height();
    return {cv::Point2d(rect.x(), rect.y()), cv::Point2d(right, rect.y()), cv::Point2d(right, bottom),
            cv::Point2d(rect.x(), bottom)};
}

cv::Point2d middleOf(const QRect& rect)
{
    return {rect.x() + rect.width() / 2.0, rect.y() + rect.height() / 2.0};
}

std::vector<cv::Point2f> asFloats(const std::array<cv::Point2d, 4>& corners)
{
    return {corners.begin(), corners.end()};
}

double sideOf(const Chart& chart)
{
    const QSize size = chart.cabinets.cabinets.front().rect.size();
    return std::min(size.width(), size.height());
}

/// The chart's markers of each code.
using ByCode = std::map<int, std::vector<const Marker*>>;

ByCode byCode(const std::vector<Marker>& markers)
{
    ByCode all;
    for (const Marker& marker : markers)
        all[marker.code].push_back(&marker);
    return all;
}

/// Tells markers with one code apart by their neighbours.
class Assignment
{
public:
    Assignment(const std::vector<SeenMarker>& seen, const ByCode& markers, double side)
        : m_seen(seen)
        , m_markers(markers)
        , m_side(side)
    {
    }

    /// Nothing where the chart has none, or several with nobody to tell which.
    const Marker* markerOf(const SeenMarker& seen) const
    {
        const auto found = m_markers.find(seen.code);
        if (found == m_markers.end())
            return nullptr;
        const std::vector<const Marker*>& candidates = found->second;
        if (candidates.size() == 1)
            return candidates.front();
        const Marker* best = nullptr;
        int most = 0;
        for (const Marker* candidate : candidates) {
            const int votes = votesFor(seen, *candidate);
            if (votes > most)
                best = candidate;
            most = std::max(most, votes);
        }
        return best;
    }

private:
    /// The neighbours that are where they would have to be if it were this one.
    int votesFor(const SeenMarker& seen, const Marker& candidate) const
    {
        const cv::Mat toChart =
            cv::getPerspectiveTransform(asFloats(seen.corners), asFloats(cornersOf(candidate.square)));
        int votes = 0;
        for (const SeenMarker* neighbour : nearest(seen)) {
            std::vector<cv::Point2d> at = {neighbour->middle()};
            cv::perspectiveTransform(at, at, toChart);
            const auto others = m_markers.find(neighbour->code);
            if (others != m_markers.end() &&
                std::any_of(others->second.begin(), others->second.end(), [&](const Marker* other) {
                    return cv::norm(middleOf(other->square) - at.front()) < m_side / 2;
                }))
                ++votes;
        }
        return votes;
    }

    std::vector<const SeenMarker*> nearest(const SeenMarker& seen) const
    {
        std::vector<const SeenMarker*> others;
        for (const SeenMarker& other : m_seen) {
            if (&other != &seen)
                others.push_back(&other);
        }
        const std::size_t count = std::min(neighboursAsked, others.size());
        std::partial_sort(others.begin(), others.begin() + std::ptrdiff_t(count), others.end(),
                          [&](const SeenMarker* a, const SeenMarker* b) {
                              return cv::norm(a->middle() - seen.middle()) <
                                     cv::norm(b->middle() - seen.middle());
                          });
        others.resize(count);
        return others;
    }

    const std::vector<SeenMarker>& m_seen;
    const ByCode& m_markers;
    const double m_side;
};

/// Four for each marker.
std::vector<Match> matchesOf(const std::vector<SeenMarker>& seen, const ByCode& markers, double side)
{
    const Assignment assignment(seen, markers, side);
    std::vector<Match> matches;
    for (const SeenMarker& one : seen) {
        const Marker* marker = assignment.markerOf(one);
        for (std::size_t i = 0; marker && i < one.corners.size(); ++i)
            matches.push_back({cornersOf(marker->square)[i], one.corners[i]});
    }
    return matches;
}

bool holds(const QRect& cabinet, const Lens& lens, const cv::Point2d& at)
{
    std::vector<cv::Point2f> outline;
    for (const cv::Point2d& corner : cornersOf(cabinet))
        outline.emplace_back(lens(corner));
    return cv::pointPolygonTest(outline, at, false) > 0;
}

/// The marker's direction to the right against the chart's, in degrees.
int turnOf(const SeenMarker& marker, const QRect& cabinet, const Lens& lens)
{
    const auto corners = cornersOf(cabinet);
    const cv::Point2d should = lens(corners[1]) - lens(corners[0]);
    const cv::Point2d is = marker.corners[1] - marker.corners[0];
    const double angle = std::atan2(should.cross(is), should.dot(is));
    return (int(std::lround(angle / (CV_PI / 2))) + 4) % 4 * 90;
}

MarkedContent contentOf(const SeenMarker& seen, std::size_t cabinet, const ByCode& markers, const QRect& rect,
                        const Lens& lens)
{
    MarkedContent content;
    content.turn = turnOf(seen, rect, lens);
    for (const Marker* marker : markers.at(seen.code))
        content.cabinets.push_back(marker->cabinet);
    if (std::count(content.cabinets.begin(), content.cabinets.end(), cabinet) > 0)
        content.cabinets = {cabinet};
    return content;
}

} // namespace

#ifdef VD_HAS_ARUCO
std::vector<SeenMarker> markersIn(const cv::Mat& grey)
{
    const auto parameters = cv::aruco::DetectorParameters::create();
    parameters->minMarkerPerimeterRate = 0.01; // of the picture's longer side: 10 pixels for a side of 4000
    parameters->polygonalApproxAccuracyRate = 0.05;
    parameters->minMarkerDistanceRate =
        0.03; // the white around a marker would pass for it, on a dark cabinet
    parameters->cornerRefinementMethod = cv::aruco::CORNER_REFINE_SUBPIX;
    cv::Mat calm; // without the lines between LEDs
    cv::GaussianBlur(grey, calm, {}, 0.5);
    std::vector<std::vector<cv::Point2f>> corners;
    std::vector<int> codes;
    cv::aruco::detectMarkers(calm, cv::aruco::getPredefinedDictionary(cv::aruco::DICT_APRILTAG_36h11),
                             corners, codes, parameters);
    std::vector<SeenMarker> seen(codes.size());
    for (std::size_t i = 0; i < codes.size(); ++i) {
        seen[i].code = codes[i];
        for (std::size_t k = 0; k < 4; ++k)
            seen[i].corners[k] = cv::Point2d(corners[i][k]) + cv::Point2d(0.5, 0.5);
    }
    return seen;
}
#else
std::vector<SeenMarker> markersIn(const cv::Mat&)
{
    return {};
}
#endif

std::optional<Lens> placedByMarkers(const std::vector<SeenMarker>& seen, const Chart& chart,
                                    const std::vector<Marker>& markers, const cv::Size& picture)
{
    const double side = sideOf(chart);
    const std::vector<Match> matches = matchesOf(seen, byCode(markers), side);
    if (matches.size() < 4 * leastMarkers)
        return std::nullopt;
    std::vector<cv::Point2d> from;
    std::vector<cv::Point2d> to;
    for (const Match& match : matches) {
        from.push_back(match.picture);
        to.push_back(match.chart);
    }
    std::vector<uchar> agrees;
    const cv::Mat toChart = cv::findHomography(from, to, cv::RANSAC, mostOff * side, agrees, 4000);
    std::vector<Match> agreeing;
    for (std::size_t i = 0; i < agrees.size(); ++i) {
        if (agrees[i])
            agreeing.push_back(matches[i]);
    }
    if (toChart.empty() || agreeing.size() < 4 * leastMarkers)
        return std::nullopt;
    const Lens start = lensOf(cv::Matx33d(toChart).inv(), picture);
    const Lens lens = fitted(start, agreeing,
                             std::max(1.0, cv::norm(seen.front().corners[0] - seen.front().corners[1]) / 20));
    return isSensible(lens, cv::Size(chart.picture.width(), chart.picture.height())) ? std::optional(lens)
                                                                                     : std::nullopt;
}

MarkedContents contentsByMarkers(const std::vector<SeenMarker>& seen, const Chart& chart,
                                 const std::vector<Marker>& markers, const Lens& lens)
{
    const ByCode known = byCode(markers);
    const auto& cabinets = chart.cabinets.cabinets;
    MarkedContents contents(cabinets.size());
    std::vector<int> counts(cabinets.size());
    for (const SeenMarker& one : seen) {
        for (std::size_t i = 0; known.count(one.code) > 0 && i < cabinets.size(); ++i) {
            if (!holds(cabinets[i].rect, lens, one.middle()))
                continue;
            ++counts[i];
            contents[i] = contentOf(one, i, known, cabinets[i].rect, lens);
        }
    }
    for (std::size_t i = 0; i < counts.size(); ++i) {
        if (counts[i] > 1)
            contents[i].reset();
    }
    return contents;
}

} // namespace WallReading
