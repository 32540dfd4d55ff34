#include "placesearch.h"

#include "cvimages.h"
#include "placefeatures.h"
#include "placeoutlines.h"
#include "placerefinement.h"
#include "placescore.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace WallReading {

namespace {

/// How large chart and picture are when features are looked for, and how many of these are taken.
struct FeatureSizes
{
    int chart;
    int picture;
    int most;
};
constexpr FeatureSizes quick = {1000, 1200, 2500};
constexpr FeatureSizes thorough = {1400, 1800, 4000};

/// The mean correlation of a place that is surely the chart's, so that no other is looked for.
constexpr double surelyThere = 0.6;

/// The least that is taken at all: noise and other pictures come to 0.1 at most.
constexpr double leastThere = 0.3;

/// Standard errors by which a place has to beat the same place moved or turned.
constexpr double leastLead = 4;

/// Pixels of a cabinet in the coarse view: labels can be told apart there.
constexpr int coarseCabinet = 44;

struct Candidate
{
    Lens lens;
    PlaceScore score;
    bool isMirrored = false;
    bool isCapture = false;
};

class Search
{
public:
    Search(const cv::Mat& chart, const ChartComparison::CabinetGrid& grid, const cv::Mat& picture,
           const Deadline& deadline)
        : m_chart(chart)
        , m_grid(grid)
        , m_picture(greyOf(picture))
        , m_deadline(deadline)
        , m_coarse(viewOf(chart, coarseSide()))
        , m_scorer(m_coarse, int(0.45 * cabinetSide(grid) * m_coarse.scale))
    {
    }

    FoundPlace run(const std::optional<Lens>& marked)
    {
        if (marked)
            propose(*marked, 4);
        const bool isThere = m_best.score.seen > 0 && ofSeen(m_best.score) >= leastThere;
        return isThere ? markedResult() : search();
    }

private:
    /// What is outside of the picture says nothing against a place that markers tell.
    static double ofSeen(const PlaceScore& score) { return score.mean / score.seen; }

    FoundPlace search()
    {
        proposeCaptures();
        if (!isSure())
            proposeFeatures(quick, false);
        if (!isSure() && !m_deadline.isOver())
            proposeFeatures(thorough, false);
        if (!isSure() && !m_deadline.isOver())
            proposeOutlines();
        if (!isSure() && !m_deadline.isOver())
            proposeFeatures(thorough, true);
        return result();
    }

    int coarseSide() const
    {
        const double scale = double(coarseCabinet) / cabinetSide(m_grid);
        return std::clamp(int(scale * std::max(m_chart.cols, m_chart.rows)), 480, 1280);
    }

    bool isSure() const { return m_best.score.mean > surelyThere; }

    /// The picture, reduced so that the view takes about each of its pixels.
    const cv::Mat& pictureFor(const ChartView& view, Lens& lens)
    {
        const cv::Point2d middle(view.chart.width / 2.0, view.chart.height / 2.0);
        const double factor = std::min(1.0, 1.4 * view.scale / std::max(1e-3, scaleAt(lens, middle)));
        if (std::abs(factor - m_reducedBy) > 0.05 * factor) {
            m_reduced = reduced(m_picture, factor);
            m_reducedBy = double(m_reduced.cols) / m_picture.cols;
        }
        lens = scaled(lens, m_reduced.size());
        return m_reduced;
    }

    static Lens scaled(const Lens& lens, const cv::Size& to)
    {
        const double factor = to.width / (2 * lens.middle.x);
        Lens result = after(lens, cv::Matx33d::eye());
        result.homography = cv::Matx33d(factor, 0, 0, 0, factor, 0, 0, 0, 1) * lens.homography;
        result.middle = {to.width / 2.0, to.height / 2.0};
        result.reach = std::hypot(result.middle.x, result.middle.y);
        return result;
    }

    Lens refine(const ChartView& view, Lens lens, int search, int rounds)
    {
        const cv::Mat& picture = pictureFor(view, lens);
        const Refinement better = refined(view, picture, lens, search, rounds);
        return scaled(better.lens, m_picture.size());
    }

    PlaceScore score(Lens lens)
    {
        const cv::Mat& picture = pictureFor(m_coarse, lens);
        return m_scorer.score(picture, lens);
    }

    void propose(const Lens& start, int search, bool isCapture = false)
    {
        Candidate candidate;
        candidate.lens = refine(m_coarse, start, search, 3);
        if (!isSensible(candidate.lens, m_chart.size()))
            candidate.lens = start;
        candidate.score = score(candidate.lens);
        candidate.isCapture = isCapture;
        take(candidate);
    }

    void take(const Candidate& candidate)
    {
        if (candidate.score.mean > m_best.score.mean)
            m_best = candidate;
    }

    void proposeCaptures()
    {
        const double shape = double(m_picture.cols) / m_picture.rows * m_chart.rows / m_chart.cols;
        if (shape < 0.8 || shape > 1.25)
            return;
        const Lens straight = filling(m_picture.size(), m_chart.size());
        propose(straight, 10, true);
        if (!isSure())
            propose(after(straight, halfTurn()), 10, true);
        for (const Lens& lens : {straight, after(straight, halfTurn())}) {
            if (!isSure())
                proposeMirrored(lens);
        }
    }

    void proposeFeatures(const FeatureSizes& sizes, bool isMirrored)
    {
        const double chartScale = std::min(1.0, double(sizes.chart) / std::max(m_chart.cols, m_chart.rows));
        cv::Mat chart = reduced(greyOf(m_chart), chartScale);
        if (isMirrored)
            cv::flip(chart, chart, 1);
        const double pictureScale =
            std::min(1.0, double(sizes.picture) / std::max(m_picture.cols, m_picture.rows));
        if (m_featureSide != sizes.picture)
            m_pictureFeatures = featuresOf(reduced(m_picture, pictureScale), sizes.most);
        m_featureSide = sizes.picture;
        const Features features = featuresOf(chart, sizes.most);
        const std::vector<Lens> lenses = proposedByFeatures(features, m_pictureFeatures, chartScale,
                                                            pictureScale, m_chart.size(), m_picture.size());
        for (const Lens& lens : lenses) {
            if (isMirrored)
                proposeMirrored(lens);
            else
                propose(lens, 6);
            if (isSure())
                break;
        }
        if (!isMirrored && !isSure())
            climb();
    }

    /// Scores the lens with the mirrored chart, as it was found.
    void proposeMirrored(const Lens& lens)
    {
        Candidate candidate;
        candidate.lens = after(lens, mirroring());
        candidate.lens = refine(m_coarse, candidate.lens, 6, 3);
        candidate.score = score(candidate.lens);
        candidate.isMirrored = true;
        take(candidate);
    }

    void proposeOutlines()
    {
        for (const Lens& lens : proposedByOutlines(m_picture, m_chart.size())) {
            for (int turn = 0; turn < 4; turn += 2) {
                propose(turn == 0 ? lens : after(lens, halfTurn()), 12);
                if (isSure() || m_deadline.isOver())
                    return;
            }
        }
        climb();
    }

    cv::Matx33d mirroring() const { return {-1, 0, double(m_chart.cols), 0, 1, 0, 0, 0, 1}; }

    cv::Matx33d halfTurn() const
    {
        return {-1, 0, double(m_chart.cols), 0, -1, double(m_chart.rows), 0, 0, 1};
    }

    cv::Matx33d movedBy(int rows, int columns) const
    {
        const double width = double(m_chart.cols) / m_grid.columns;
        const double height = double(m_chart.rows) / (double(m_grid.cabinets.size()) / m_grid.columns);
        return {1, 0, columns * width, 0, 1, rows * height, 0, 0, 1};
    }

    /// A place that is easily taken for another one.
    struct Alternative
    {
        Candidate candidate;
        Place by; ///< 0 where it is turned or mirrored
    };

    /// The place moved by whole cabinets, turned by half, and mirrored.
    std::vector<Alternative> alternativesTo(const Candidate& place)
    {
        std::vector<Alternative> all;
        const auto add = [&](const cv::Matx33d& change, const Place& by, bool isMirrored) {
            Alternative other{place, by};
            other.candidate.lens = after(place.lens, change);
            other.candidate.isMirrored = place.isMirrored != isMirrored;
            other.candidate.score = score(other.candidate.lens);
            all.push_back(other);
        };
        for (int rows = -2; rows <= 2; ++rows) {
            for (int columns = -2; columns <= 2; ++columns) {
                if (rows != 0 || columns != 0)
                    add(movedBy(rows, columns), {rows, columns}, false);
            }
        }
        add(halfTurn(), {}, false);
        add(mirroring(), {}, true);
        add(mirroring() * halfTurn(), {}, true);
        return all;
    }

    /// Takes the best of the place's alternatives as long as one is better, and returns those to the last
    /// one.
    std::vector<Alternative> climb()
    {
        std::vector<Alternative> all;
        for (int round = 0; round < 4 && m_best.score.mean > 0.1; ++round) {
            const double before = m_best.score.mean;
            all = alternativesTo(m_best);
            for (const Alternative& other : all) {
                // Mirrored only where labels say so, not where noise does.
                const bool isLikely = other.candidate.isMirrored == m_best.isMirrored;
                if (isLikely || betterBy(other.candidate.score, m_best.score) > leastLead)
                    take(other.candidate);
            }
            if (m_best.score.mean <= before)
                break;
            m_best.lens = refine(m_coarse, m_best.lens, 4, 2);
            m_best.score = score(m_best.lens);
        }
        return all;
    }

    FoundPlace markedResult()
    {
        m_best.lens = refine(viewOf(m_chart, 1920), m_best.lens, 4, 3);
        FoundPlace found;
        found.isFound = true;
        found.lens = m_best.lens;
        found.score = ofSeen(m_best.score);
        found.doubt = Doubt::None;
        return found;
    }

    FoundPlace result()
    {
        FoundPlace found;
        if (m_best.score.mean < leastThere)
            return found;
        const std::vector<Alternative> alternatives = climb();
        m_best.lens = refine(viewOf(m_chart, 1920), m_best.lens, 4, 3);
        m_best.score = score(m_best.lens);
        found.lens = m_best.lens;
        found.score = m_best.score.mean;
        found.isMirrored = m_best.isMirrored;
        found.isCapture = m_best.isCapture;
        found.doubt = Doubt::None;
        found.isFound = m_best.score.mean >= leastThere;
        if (!found.isFound)
            found.doubt = Doubt::NotFound;
        else
            compareWith(alternatives, found);
        return found;
    }

    void compareWith(const std::vector<Alternative>& alternatives, FoundPlace& found) const
    {
        for (const Alternative& other : alternatives) {
            const bool isLikely = other.candidate.isMirrored == m_best.isMirrored;
            if (isLikely && betterBy(m_best.score, other.candidate.score) < leastLead) {
                found.doubt = Doubt::AlikeWhenMoved;
                found.alike = other.by;
                return;
            }
        }
    }

    const cv::Mat& m_chart;
    const ChartComparison::CabinetGrid& m_grid;
    cv::Mat m_picture;
    const Deadline& m_deadline;
    ChartView m_coarse;
    PlaceScorer m_scorer;
    cv::Mat m_reduced;
    double m_reducedBy = 0;
    Features m_pictureFeatures;
    int m_featureSide = 0; ///< of the picture that they are of
    Candidate m_best;
};

} // namespace

double Deadline::seconds() const
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
}

FoundPlace placeOf(const cv::Mat& chart, const ChartComparison::CabinetGrid& grid, const cv::Mat& picture,
                   const Deadline& deadline, const std::optional<Lens>& marked)
{
    return Search(chart, grid, picture, deadline).run(marked);
}

} // namespace WallReading
