#include "zoomsearch.h"

#include "imagepixels.h"
#include "thresholds.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <vector>

namespace ChartComparison {

namespace {

/// Brightnesses, row by row.
struct Plane
{
    int width = 0;
    int height = 0;
    std::vector<int> values;

    const int* row(int y) const { return values.data() + std::ptrdiff_t(y) * width; }

    explicit Plane(const QImage& image)
        : width(image.width())
        , height(image.height())
    {
        for (int y = 0; y < height; ++y) {
            const QRgb* const row = pixelRow(image, y);
            std::transform(row, row + width, std::back_inserter(values),
                           [](QRgb pixel) { return qGray(pixel); });
        }
    }
};

QImage reduced(const QImage& image, const QSize& size)
{
    return plainColors(image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

qint64 differenceAt(const Plane& whole, const Plane& part, int left, int top, qint64 limit)
{
    qint64 sum = 0;
    for (int y = 0; y < part.height && sum < limit; ++y) {
        const int* const a = whole.row(top + y) + left;
        const int* const b = part.row(y);
        for (int x = 0; x < part.width; ++x)
            sum += std::abs(a[x] - b[x]);
    }
    return sum;
}

/// A part of the chart, and the mean difference to what is shown.
struct Match
{
    QRectF part;
    double error = std::numeric_limits<double>::max();
};

void slide(const Plane& whole, const Plane& part, double scale, Match& best)
{
    const double pixels = double(part.width) * part.height;
    for (int top = 0; top + part.height <= whole.height; ++top) {
        for (int left = 0; left + part.width <= whole.width; ++left) {
            const auto limit = qint64(std::min(best.error, 1e6) * pixels) + 1;
            const double error = double(differenceAt(whole, part, left, top, limit)) / pixels;
            if (error < best.error)
                best = {{left * scale, top * scale, part.width * scale, part.height * scale}, error};
        }
    }
}

/// The best places at each of a number of zooms.
std::vector<Match> coarseMatches(const QImage& expected, const QImage& actual)
{
    const double scale =
        std::max(1.0, std::max(expected.width(), expected.height()) / double(Thresholds::coarseSide));
    const Plane whole(reduced(expected, (QSizeF(expected.size()) / scale).toSize()));
    const QSizeF largest = QSizeF(actual.size()).scaled(expected.size(), Qt::KeepAspectRatio);
    const QImage shown = reduced(actual, (largest / scale * 2).toSize());
    std::vector<Match> matches;
    for (double zoom = Thresholds::leastZoom; zoom <= Thresholds::mostZoom; zoom *= Thresholds::zoomStep) {
        const QSize size = (largest / zoom / scale).toSize();
        if (size.width() < 6 || size.height() < 4)
            break;
        Match best;
        slide(whole, Plane(reduced(shown, size)), scale, best);
        matches.push_back(best);
    }
    std::sort(matches.begin(), matches.end(),
              [](const Match& a, const Match& b) { return a.error < b.error; });
    return matches;
}

/// Measures how far parts of the chart are off, at samples of the picture.
class FineError
{
public:
    FineError(const QImage& expected, const QImage& actual)
        : m_expected(expected)
        , m_actual(actual)
        , m_points(samplePoints(actual.rect(), Thresholds::zoomSamples))
    {
    }

    double operator()(const QRectF& part) const
    {
        const double fx = part.width() / m_actual.width();
        const double fy = part.height() / m_actual.height();
        qint64 sum = 0;
        for (const QPoint& at : m_points) {
            const int x = std::clamp(int(part.left() + (at.x() + 0.5) * fx), 0, m_expected.width() - 1);
            const int y = std::clamp(int(part.top() + (at.y() + 0.5) * fy), 0, m_expected.height() - 1);
            sum += difference(pixelRow(m_expected, y)[x], pixelRow(m_actual, at.y())[at.x()]);
        }
        return double(sum) / (3.0 * double(m_points.size()));
    }

private:
    static int difference(QRgb a, QRgb b)
    {
        return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
    }

    const QImage& m_expected;
    const QImage& m_actual;
    std::vector<QPoint> m_points;
};

/// Pattern search: moves and resizes the part, by less and less, as long as that brings it nearer.
Match refined(const FineError& error, Match match, double step)
{
    match.error = error(match.part);
    for (; step >= Thresholds::finestStep; step /= 2) {
        bool better = true;
        while (better) {
            better = false;
            const QRectF p = match.part;
            const double wider = step * p.width() / std::max(p.width(), p.height());
            const double higher = step * p.height() / std::max(p.width(), p.height());
            for (const QRectF& next :
                 {p.translated(step, 0), p.translated(-step, 0), p.translated(0, step),
                  p.translated(0, -step), p.adjusted(-wider, -higher, wider, higher),
                  p.adjusted(wider, higher, -wider, -higher), p.adjusted(-step, 0, 0, 0),
                  p.adjusted(step, 0, 0, 0), p.adjusted(0, -step, 0, 0), p.adjusted(0, step, 0, 0),
                  p.adjusted(0, 0, step, 0), p.adjusted(0, 0, -step, 0), p.adjusted(0, 0, 0, step),
                  p.adjusted(0, 0, 0, -step)}) {
                const double nextError = next.width() < 2 || next.height() < 2 ? match.error : error(next);
                if (nextError < match.error) {
                    match = {next, nextError};
                    better = true;
                }
            }
        }
    }
    return match;
}

} // namespace

std::optional<QRectF> findZoomedPart(const QImage& expected, const QImage& actual)
{
    const double coarse =
        std::max(1.0, std::max(expected.width(), expected.height()) / double(Thresholds::coarseSide));
    const FineError error(expected, actual);
    Match best;
    int tried = 0;
    for (const Match& match : coarseMatches(expected, actual)) {
        if (match.error > Thresholds::mostCoarseError || ++tried > Thresholds::refinedMatches)
            break;
        const Match fine = refined(error, match, coarse);
        if (fine.error < best.error)
            best = fine;
    }
    const double zoom = expected.width() / best.part.width();
    if (tried == 0 ||
        (zoom < Thresholds::leastZoom && expected.height() / best.part.height() < Thresholds::leastZoom))
        return std::nullopt;
    const QRectF rounded(best.part.toRect());
    return error(rounded) <= best.error * Thresholds::wholePixelsError ? rounded : best.part;
}

QImage zoomedPart(const QImage& expected, const QRectF& part, const QSize& size)
{
    QImage shown(size, QImage::Format_RGB32);
    shown.fill(Qt::black);
    QPainter painter(&shown);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(QPointF(), size), expected, part);
    painter.end();
    return plainColors(shown);
}

} // namespace ChartComparison
