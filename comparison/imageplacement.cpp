#include "imageplacement.h"

#include "imagepixels.h"
#include "placevotes.h"
#include "thresholds.h"

#include <QPainter>
#include <QRegion>

#include <algorithm>

namespace ChartComparison {

namespace {

QRect overlapOnChart(const QImage& expected, const QImage& actual, const QPoint& at)
{
    return expected.rect() & QRect(-at, actual.size());
}

double sampledShare(const QImage& expected, const QImage& actual, const QPoint& at)
{
    const std::vector<QPoint> points =
        samplePoints(overlapOnChart(expected, actual, at), Thresholds::placementSamples);
    const auto equal = std::count_if(points.begin(), points.end(), [&](const QPoint& point) {
        return pixelRow(expected, point.y())[point.x()] ==
               pixelRow(actual, point.y() + at.y())[point.x() + at.x()];
    });
    return points.empty() ? 0.0 : double(equal) / double(points.size());
}

double equalShareAt(const QImage& expected, const QImage& actual, const QPoint& at)
{
    const QRect overlap = overlapOnChart(expected, actual, at);
    const qint64 equal = equalPixels(expected, overlap, actual, overlap.topLeft() + at);
    return double(equal) / double(pixelCount(overlap.size()));
}

/// A small overlap shows the same by chance.
bool isLarge(const QImage& expected, const QImage& actual, const QRect& overlap)
{
    const qint64 smaller = std::min(pixelCount(expected.size()), pixelCount(actual.size()));
    const bool inside = overlap.size() == expected.size() || overlap.size() == actual.size();
    return !overlap.isEmpty() && (inside || pixelCount(overlap.size()) * Thresholds::overlapParts >= smaller);
}

/// Whether something has moved that would not look the same where it was.
bool hasMoved(const QImage& expected, const QImage& actual, const QPoint& at)
{
    const QRect shown = overlapOnChart(expected, actual, at).translated(at);
    return !sameAt(actual, shown, expected, shown.topLeft());
}

/// Whether what the chart has left shows what has left it, as far as the rest shows the chart.
bool wraps(const QImage& expected, const QImage& actual, const Placement& placement)
{
    const int w = expected.width();
    const int h = expected.height();
    const int dx = (placement.at.x() % w + w) % w;
    const int dy = (placement.at.y() % h + h) % h;
    qint64 equal = 0;
    for (const QPoint& part :
         {QPoint(dx, dy), QPoint(dx - w, dy), QPoint(dx, dy - h), QPoint(dx - w, dy - h)}) {
        const QRect overlap = overlapOnChart(expected, actual, part);
        if (!overlap.isEmpty())
            equal += equalPixels(expected, overlap, actual, overlap.topLeft() + part);
    }
    const QRect kept = overlapOnChart(expected, actual, placement.at);
    const qint64 vacated = pixelCount(expected.size()) - pixelCount(kept.size());
    const double wrapped = double(equal) - placement.share * double(pixelCount(kept.size()));
    return wrapped >= double(vacated) * (placement.share < 1 ? Thresholds::leastWrapped : 1.0);
}

std::vector<QPoint> candidatePlaces(const QImage& expected, const QImage& actual)
{
    std::vector<QPoint> places = votedPlaces(expected, actual);
    // What looks the same along one direction votes for any move along it; none at all is then the move.
    for (std::size_t i = 0, voted = places.size(); i < voted; ++i) {
        places.emplace_back(places[i].x(), 0);
        places.emplace_back(0, places[i].y());
    }
    if (expected.size() == actual.size()) {
        // What wraps around is told by its shorter way.
        const std::vector<QPoint> voted = places;
        for (const QPoint& at : voted) {
            const auto shorter = [](int move, int side) {
                return 2 * move > side ? move - side : 2 * move < -side ? move + side : move;
            };
            places.emplace_back(shorter(at.x(), expected.width()), shorter(at.y(), expected.height()));
        }
        places.erase(std::remove(places.begin(), places.end(), QPoint()), places.end());
    } else { // the usual places, for what has no marks of its own
        const QSize room = actual.size() - expected.size();
        for (const int x : {0, room.width() / 2, room.width()}) {
            for (const int y : {0, room.height() / 2, room.height()})
                places.emplace_back(x, y);
        }
    }
    const auto before = [](const QPoint& a, const QPoint& b) {
        return a.y() != b.y() ? a.y() < b.y() : a.x() < b.x();
    };
    std::sort(places.begin(), places.end(), before);
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

/// By samples.
std::vector<Placement> likelyPlacements(const QImage& expected, const QImage& actual)
{
    std::vector<Placement> found;
    for (const QPoint& at : candidatePlaces(expected, actual)) {
        if (!isLarge(expected, actual, overlapOnChart(expected, actual, at)))
            continue;
        const double sampled = sampledShare(expected, actual, at);
        if (sampled >= Thresholds::leastPlaced)
            found.push_back({at, false, sampled});
    }
    std::stable_sort(found.begin(), found.end(), [](const Placement& a, const Placement& b) {
        return a.share != b.share ? a.share > b.share : a.at.manhattanLength() < b.at.manhattanLength();
    });
    if (found.size() > Thresholds::mostPlaces)
        found.resize(Thresholds::mostPlaces);
    return found;
}

/// What lies between two rectangles.
QMargins marginsBetween(const QRect& outer, const QRect& inner)
{
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
}

} // namespace

std::vector<Placement> findPlacements(const QImage& expected, const QImage& actual)
{
    const bool sameSize = expected.size() == actual.size();
    std::vector<Placement> found = likelyPlacements(expected, actual);
    for (Placement& placement : found)
        placement.share = equalShareAt(expected, actual, placement.at);
    const auto area = [&](const Placement& p) {
        return pixelCount(overlapOnChart(expected, actual, p.at).size());
    };
    std::stable_sort(found.begin(), found.end(), [&](const Placement& a, const Placement& b) {
        return a.share != b.share ? a.share > b.share : area(a) > area(b);
    });
    if (sameSize)
        found.erase(std::remove_if(found.begin(), found.end(),
                                   [&](const Placement& p) { return !hasMoved(expected, actual, p.at); }),
                    found.end());
    for (Placement& placement : found)
        placement.wraps = sameSize && wraps(expected, actual, placement);
    if (!found.empty() && found.front().wraps) { // the longer ways around are the same
        const auto sameWay = [&](const Placement& p) {
            const QPoint further = p.at - found.front().at;
            return further.x() % expected.width() == 0 && further.y() % expected.height() == 0;
        };
        found.erase(std::remove_if(found.begin() + 1, found.end(), sameWay), found.end());
    }
    return found;
}

QImage colorEdges(const QImage& image)
{
    QImage edges(image.size(), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* const row = pixelRow(image, y);
        const QRgb* const above = y > 0 ? pixelRow(image, y - 1) : row;
        QRgb* const edge = pixelRow(edges, y);
        for (int x = 0; x < image.width(); ++x)
            edge[x] =
                0xff000000U | (x > 0 && row[x] != row[x - 1] ? 1U : 0U) | (row[x] != above[x] ? 2U : 0U);
    }
    return edges;
}

QImage placedBack(const QImage& expected, const QImage& actual, const Placement& placement)
{
    QImage back = expected;
    QPainter painter(&back);
    painter.drawImage(-placement.at, actual);
    return back;
}

QImage placedThere(const QImage& expected, const QImage& actual, const Placement& placement)
{
    QImage there = actual;
    QPainter painter(&there);
    const int w = expected.width();
    const int h = expected.height();
    for (const QPoint& turn : {QPoint(0, 0), QPoint(w, 0), QPoint(-w, 0), QPoint(0, h), QPoint(0, -h),
                               QPoint(w, h), QPoint(-w, -h), QPoint(w, -h), QPoint(-w, h)}) {
        if (turn.isNull() || placement.wraps)
            painter.drawImage(placement.at + turn, expected);
    }
    return there;
}

double shiftedShare(const QImage& actual, const Placement& placement)
{
    const QRect kept = actual.rect() & QRect(placement.at, actual.size());
    const QRegion vacated = QRegion(actual.rect()) - kept;
    const QRgb color =
        vacated.isEmpty() ? 0 : pixelRow(actual, vacated.begin()->top())[vacated.begin()->left()];
    const bool plain = std::all_of(vacated.begin(), vacated.end(), [&](const QRect& part) {
        return pixelRow(actual, part.top())[part.left()] == color && isOneColor(actual, part);
    });
    const double keptShare = double(pixelCount(kept.size())) / double(pixelCount(actual.size()));
    return placement.wraps || plain ? placement.share : placement.share * keptShare;
}

std::vector<Finding> placementFindings(const QSize& expected, const QImage& actual,
                                       const Placement& placement, bool elsewhere)
{
    if (expected == actual.size())
        return {{Kind::Shifted, Shift{placement.at, placement.wraps, elsewhere}, {}, {}}};
    const QRect chart(QPoint(), expected);
    const QRect shown(-placement.at, actual.size());
    const QRect both = chart & shown;
    std::vector<Finding> findings;
    if (both != chart)
        findings.push_back({Kind::Cropped,
                            EdgeChange{marginsBetween(chart, both), {both.size(), chart.size()}, elsewhere},
                            {},
                            {}});
    if (both != shown)
        findings.push_back({Kind::Padded,
                            EdgeChange{marginsBetween(shown, both), {shown.size(), both.size()}, elsewhere},
                            {},
                            {}});
    return findings;
}

} // namespace ChartComparison
