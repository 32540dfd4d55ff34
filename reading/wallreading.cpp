#include "wallreading.h"

#include "cabinetjudge.h"
#include "chartmarkers.h"
#include "cvimages.h"
#include "placesearch.h"

#include <algorithm>
#include <cmath>

namespace WallReading {

namespace {

/// Chart pixels: a place is known to about one.
constexpr double leastLoss = 1.6;

std::array<QPointF, 4> cornersOf(const Lens& lens, const QSize& chart)
{
    const std::array<cv::Point2d, 4> corners = {cv::Point2d(0, 0), cv::Point2d(chart.width(), 0),
                                                cv::Point2d(chart.width(), chart.height()),
                                                cv::Point2d(0, chart.height())};
    std::array<QPointF, 4> result;
    for (std::size_t i = 0; i < 4; ++i) {
        const cv::Point2d at = lens(corners[i]);
        result[i] = {at.x, at.y};
    }
    return result;
}

/// The chart's direction to the right in the picture, in quarters of a turn.
int quarterTurns(const std::array<QPointF, 4>& corners, bool isMirrored)
{
    const QPointF right = (corners[1] - corners[0] + corners[2] - corners[3]) * (isMirrored ? -1 : 1);
    const double angle = std::atan2(right.y(), right.x());
    return (int(std::lround(angle / (CV_PI / 2))) + 4) % 4;
}

/// A camera is never as straight as a capture: the chart's sides are the picture's.
bool isStraight(const Lens& lens, const std::array<QPointF, 4>& corners)
{
    const double most = 0.002 * lens.reach;
    return std::abs(lens.radial) < 0.003 && std::abs(corners[0].x() - corners[3].x()) < most &&
           std::abs(corners[1].x() - corners[2].x()) < most &&
           std::abs(corners[0].y() - corners[1].y()) < most &&
           std::abs(corners[2].y() - corners[3].y()) < most && corners[1].x() > corners[0].x() &&
           corners[3].y() > corners[0].y();
}

/// What a capture leaves out of the chart.
std::vector<EdgeLoss> lossesOf(const std::array<QPointF, 4>& corners, const QSize& picture,
                               const QSize& chart)
{
    const double across = (corners[1].x() - corners[0].x()) / chart.width();
    const double down = (corners[3].y() - corners[0].y()) / chart.height();
    const std::array<double, 4> lost = {-corners[0].x() / across, -corners[0].y() / down,
                                        (corners[2].x() - picture.width()) / across,
                                        (corners[2].y() - picture.height()) / down};
    std::vector<EdgeLoss> losses;
    for (std::size_t edge = 0; edge < lost.size(); ++edge) {
        if (lost[edge] > leastLoss)
            losses.push_back({Edge(edge), int(std::lround(lost[edge]))});
    }
    return losses;
}

void lookAtWhole(Reading& reading, const FoundPlace& place, const QSize& picture, const QSize& chart)
{
    WholeFinding finding;
    if (place.isMirrored) {
        finding.kind = Whole::Mirrored;
        reading.whole.push_back(finding);
    }
    finding.turn = 90 * quarterTurns(reading.corners, place.isMirrored);
    if (finding.turn != 0) {
        finding.kind = Whole::Turned;
        reading.whole.push_back(finding);
    }
    if (isStraight(place.lens, reading.corners))
        reading.edges = lossesOf(reading.corners, picture, chart);
}

} // namespace

Reading read(const QImage& picture, const Chart& chart, const std::atomic<bool>* canceled)
{
    return read(picture, chart, {}, canceled);
}

Reading read(const QImage& picture, const Chart& chart, const std::vector<Marker>& markers,
             const std::atomic<bool>* canceled)
{
    const Deadline deadline(canceled);
    Reading reading;
    if (picture.isNull() || chart.picture.isNull() || chart.cabinets.cabinets.empty()) {
        reading.doubt = Doubt::NoPicture;
        return reading;
    }
    const cv::Mat seen = toMat(picture);
    const cv::Mat expected = toMat(chart.picture);
    const std::vector<SeenMarker> marked =
        markers.empty() ? std::vector<SeenMarker>() : markersIn(greyOf(seen));
    const FoundPlace place = placeOf(expected, chart.cabinets, seen, deadline,
                                     placedByMarkers(marked, chart, markers, seen.size()));
    if (deadline.isCanceled()) {
        reading.doubt = Doubt::OutOfTime;
        return reading;
    }
    reading.isLocated = place.isFound;
    reading.doubt = place.doubt;
    reading.alike = place.alike;
    reading.score = place.score;
    if (place.isFound) {
        reading.corners = cornersOf(place.lens, chart.picture.size());
        lookAtWhole(reading, place, picture.size(), chart.picture.size());
        judgeCabinets(reading, expected, chart.cabinets, seen, place,
                      contentsByMarkers(marked, chart, markers, place.lens));
    }
    reading.seconds = deadline.seconds();
    return reading;
}

namespace {

const Finding* findingAt(const Reading& reading, const Place& place)
{
    for (const Finding& finding : reading.findings) {
        if (finding.cabinet.row == place.row && finding.cabinet.column == place.column)
            return &finding;
    }
    return nullptr;
}

bool saySame(const Finding& a, const Finding& b)
{
    const auto showsSame = [&] {
        return !a.shows || !b.shows || (a.shows->row == b.shows->row && a.shows->column == b.shows->column);
    };
    return a.kind == b.kind && a.turn == b.turn && showsSame();
}

/// What all located readings say of one cabinet; nothing where it is right.
std::optional<Finding> together(const std::vector<const Reading*>& located, const Place& place)
{
    std::optional<Finding> accusation;
    std::optional<Finding> unseen;
    bool isRight = false;
    bool isContradicted = false;
    for (const Reading* reading : located) {
        const Finding* finding = findingAt(*reading, place);
        if (!finding) {
            isRight = true;
        } else if (!isAccusation(finding->kind)) {
            unseen = *finding;
        } else if (!accusation || saySame(*accusation, *finding)) {
            accusation = accusation && accusation->confidence > finding->confidence ? accusation : *finding;
        } else {
            isContradicted = true;
        }
    }
    if (accusation && (isRight || isContradicted)) {
        accusation->kind = Kind::Unsure;
        accusation->shows.reset();
        accusation->turn = 0;
    }
    return accusation ? accusation : isRight ? std::nullopt : unseen;
}

} // namespace

Reading combined(const std::vector<Reading>& readings, const Chart& chart)
{
    std::vector<const Reading*> located;
    for (const Reading& reading : readings) {
        if (reading.isLocated)
            located.push_back(&reading);
    }
    if (located.empty())
        return readings.empty() ? Reading() : readings.front();
    if (located.size() == 1)
        return *located.front();
    Reading result = *located.front();
    result.findings.clear();
    for (std::size_t i = 0; i < chart.cabinets.cabinets.size(); ++i) {
        if (const auto finding = together(located, {chart.cabinets.rowOf(i), chart.cabinets.columnOf(i)}))
            result.findings.push_back(*finding);
    }
    std::stable_sort(result.findings.begin(), result.findings.end(), [](const Finding& a, const Finding& b) {
        return isAccusation(a.kind) && !isAccusation(b.kind);
    });
    return result;
}

} // namespace WallReading
