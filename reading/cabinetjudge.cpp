#include "cabinetjudge.h"

#include "cabinetblocks.h"
#include "cabinetexplanation.h"
#include "cabinetshifts.h"
#include "cvimages.h"
#include "readingthresholds.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <tuple>

namespace WallReading {

namespace {

using namespace Thresholds;

constexpr int contentsLookedAt = 12;

class Judge
{
public:
    Judge(Reading& reading, const Evidence& evidence, const ChartComparison::CabinetGrid& grid,
          const MarkedContents& marked)
        : m_marked(marked)
        , m_reading(reading)
        , m_evidence(evidence)
        , m_grid(grid)
    {
    }

    void run()
    {
        lookAtOwn();
        explainAll();
        findShifts();
        findCovered();
        for (std::size_t i = 0; i < m_grid.cabinets.size(); ++i)
            say(i);
        std::stable_sort(m_reading.findings.begin(), m_reading.findings.end(),
                         [](const Finding& a, const Finding& b) {
                             return std::make_tuple(!isAccusation(a.kind), -a.confidence) <
                                    std::make_tuple(!isAccusation(b.kind), -b.confidence);
                         });
    }

private:
    bool isInside(std::size_t cabinet) const
    {
        const cv::Mat inside = m_evidence.inside(m_evidence.rects[cabinet]);
        return cv::countNonZero(inside) >= leastInside * double(inside.total());
    }

    /// The cost of each cabinet's own picture, in all and block by block.
    void lookAtOwn()
    {
        const int rows = int(m_grid.cabinets.size()) / m_grid.columns;
        m_blocks.columns = m_grid.columns;
        m_blocks.wrong = cv::Mat(rows * blocks, m_grid.columns * blocks, CV_8U, cv::Scalar(0));
        std::vector<cv::Mat> maps(m_grid.cabinets.size());
        std::vector<double> costs;
        for (std::size_t i = 0; i < maps.size(); ++i) {
            const double cost = costOf(m_evidence, m_evidence.rects[i], m_evidence.expectedAt(i), &maps[i]);
            if (isInside(i))
                costs.push_back(cost);
        }
        if (costs.empty())
            return;
        std::nth_element(costs.begin(), costs.begin() + std::ptrdiff_t(costs.size() / 2), costs.end());
        m_usual = std::max(leastUsualCost, costs[costs.size() / 2]);
        for (std::size_t i = 0; i < maps.size(); ++i) {
            cv::Mat means;
            cv::resize(maps[i], means, {blocks, blocks}, 0, 0, cv::INTER_AREA);
            cv::Mat wrong = m_blocks.of(i);
            cv::compare(means, wrongBlock * m_usual, wrong, cv::CMP_GT);
        }
    }

    void explainAll()
    {
        std::vector<cv::Mat> seen;
        std::vector<cv::Mat> expected;
        for (std::size_t i = 0; i < m_grid.cabinets.size(); ++i) {
            seen.push_back(m_evidence.seenAt(i));
            expected.push_back(m_evidence.expectedAt(i));
        }
        const auto nearest = nearestContents(seen, expected, contentsLookedAt);
        m_explanations.resize(seen.size());
        cv::parallel_for_({0, int(seen.size())}, [&](const cv::Range& range) {
            for (auto i = std::size_t(range.start); i < std::size_t(range.end); ++i) {
                if (isInside(i))
                    m_explanations[i] = explanationsOf(m_evidence, i, nearest[i], clearlyRightCost * m_usual,
                                                       explainedCost * m_usual);
            }
        });
    }

    /// Only of cabinets that do not show their own picture: it takes long.
    void findShifts()
    {
        m_shifts.resize(m_explanations.size());
        cv::parallel_for_({0, int(m_shifts.size())}, [&](const cv::Range& range) {
            for (auto i = std::size_t(range.start); i < std::size_t(range.end); ++i) {
                if (m_explanations[i].empty() || usual(m_explanations[i].front().cost) <= explainedCost)
                    continue;
                m_shifts[i] = explainedOnly(shiftOf(m_evidence, i));
                if (!m_shifts[i] && !isExplained(i) && m_blocks.share(i) > leastMovedBlocks)
                    m_shifts[i] = explainedOnly(shiftOnBlack(m_evidence, i));
            }
        });
    }

    double usual(double cost) const { return cost / m_usual; }

    std::optional<Explanation> explainedOnly(const std::optional<Explanation>& explanation) const
    {
        return explanation && usual(explanation->cost) < explainedCost ? explanation : std::nullopt;
    }

    /// The logarithm of how much likelier `a` is than `b`, both of the same cabinet.
    double lead(std::size_t cabinet, const Explanation& a, const Explanation& b) const
    {
        const cv::Mat seen = m_evidence.seenAt(cabinet);
        const double votes = double(seen.total()) * 3 / pixelsPerVote;
        return (b.cost - a.cost) / m_usual * votes / 2;
    }

    Finding findingAt(std::size_t cabinet, Kind kind, double confidence) const
    {
        Finding finding;
        finding.kind = kind;
        finding.cabinet = placeOf(cabinet);
        finding.label = m_grid.cabinets[cabinet].name;
        finding.confidence = confidence;
        return finding;
    }

    Place placeOf(std::size_t cabinet) const { return {m_grid.rowOf(cabinet), m_grid.columnOf(cabinet)}; }

    void add(const Finding& finding) { m_reading.findings.push_back(finding); }

    void say(std::size_t cabinet)
    {
        if (sayMarked(cabinet))
            return;
        const std::vector<Explanation>& all = m_explanations[cabinet];
        if (all.empty()) {
            add(findingAt(cabinet, Kind::Hidden, 0.9));
            return;
        }
        const Explanation& own = all.front();
        const Explanation& best = mildest(cabinet);
        if (isSurelyShifted(cabinet)) {
            accuse(cabinet, *m_shifts[cabinet]);
            return;
        }
        if (!showsOwnMarker(cabinet, best.kind) && !best.isRight && usual(best.cost) < explainedCost &&
            usual(own.cost) > surelyRightCost && isCertain(cabinet, best) && !m_covered[cabinet])
            accuse(cabinet, best);
        else if (usual(own.cost) > explainedCost)
            sayUnexplained(cabinet);
    }

    /// Whether its marker tells what is wrong with it, and the picture does not contradict.
    bool sayMarked(std::size_t cabinet)
    {
        if (!m_marked[cabinet])
            return false;
        const int turn = m_marked[cabinet]->turn;
        const std::size_t shown = likeliest(cabinet, *m_marked[cabinet]);
        if (shown == cabinet && turn == 0)
            return false;
        if (isInside(cabinet) && costAs(cabinet, shown, turn) > costAs(cabinet, cabinet, 0))
            return false;
        Finding finding = findingAt(cabinet, shown == cabinet ? Kind::Turned : Kind::Swapped, 0.99);
        finding.turn = turn;
        if (shown != cabinet) {
            finding.shows = placeOf(shown);
            finding.showsLabel = m_grid.cabinets[shown].name;
        }
        add(finding);
        return true;
    }

    /// What it costs to take what the cabinet shows for what another one should.
    double costAs(std::size_t cabinet, std::size_t other, int turn) const
    {
        const cv::Rect& rect = m_evidence.rects[cabinet];
        const cv::Mat content = laid(m_evidence.expectedAt(other), {false, turn});
        return costOf(m_evidence, rect, fittedTo(content, rect.size()));
    }

    /// Of cabinets with one marker the one whose picture it is.
    std::size_t likeliest(std::size_t cabinet, const MarkedContent& content) const
    {
        if (content.cabinets.size() == 1)
            return content.cabinets.front();
        return *std::min_element(
            content.cabinets.begin(), content.cabinets.end(), [&](std::size_t a, std::size_t b) {
                return costAs(cabinet, a, content.turn) < costAs(cabinet, b, content.turn);
            });
    }

    /// Whether the cabinet's own marker is seen upright in it, which contradicts what is said of it.
    bool showsOwnMarker(std::size_t cabinet, Kind said) const
    {
        const auto& marked = m_marked[cabinet];
        return marked && marked->cabinets.front() == cabinet && marked->turn == 0 && said != Kind::Shifted &&
               said != Kind::Brightness && said != Kind::Color;
    }

    /// Whether a shift explains it far better than all else, in a place that is known.
    bool isSurelyShifted(std::size_t cabinet) const
    {
        if (!m_shifts[cabinet] || m_reading.doubt != Doubt::None)
            return false;
        const Explanation& shift = *m_shifts[cabinet];
        const auto movedAlike = std::count_if(m_shifts.begin(), m_shifts.end(), [&](const auto& other) {
            return other && cv::norm(other->shift - shift.shift) < leastShift;
        });
        return shift.cost < mostOfOwnShifted * m_explanations[cabinet].front().cost &&
               shift.cost < mostOfNextShifted * bestOf(cabinet).cost && movedAlike - 1 <= mostMovedAlike;
    }

    /// What costs least; of a cabinet that has become one colour a lesser brightness, if that fits as well:
    /// of a picture that is nearly one colour little else tells them apart.
    const Explanation& mildest(std::size_t cabinet) const
    {
        const Explanation& best = bestOf(cabinet);
        if (best.kind != Kind::Flat && best.kind != Kind::Dark)
            return best;
        for (const Explanation& other : m_explanations[cabinet]) {
            if (isDimmed(other) && usual(other.cost) < explainedCost)
                return other;
        }
        return best;
    }

    bool isDimmed(const Explanation& explanation) const
    {
        return explanation.kind == Kind::Brightness && explanation.factor > leastBrightness &&
               !isWithinUsual(explanation);
    }

    /// Whether it beats the cabinet's own picture and all else that says something different.
    bool isCertain(std::size_t cabinet, const Explanation& best) const
    {
        const std::vector<Explanation>& all = m_explanations[cabinet];
        if (lead(cabinet, best, all.front()) < leadOverOwn || isWithinUsual(best))
            return false;
        const bool isPlain = best.kind == Kind::Dark || best.kind == Kind::Flat;
        if (isPlain && m_reading.doubt != Doubt::None && best.cost > mostOfOwnPlain * all.front().cost)
            return false;
        const Leaning leaning =
            leaningOf(m_evidence, m_evidence.rects[cabinet], all.front().expected, best.expected);
        if (leaning.along < leastLeaning || leaning.rest > mostRestFor(best.kind))
            return false;
        return std::all_of(all.begin(), all.end(), [&](const Explanation& other) {
            const bool isMilder = isDimmed(best) && (other.kind == Kind::Flat || other.kind == Kind::Dark);
            return isSame(best, other) || isMilder || lead(cabinet, best, other) > leadOverNext;
        });
    }

    static double mostRestFor(Kind kind) { return kind == Kind::Brightness ? mostRestDimmed : mostRest; }

    static bool isSame(const Explanation& a, const Explanation& b)
    {
        return a.kind == b.kind && a.cabinet == b.cabinet && a.turn == b.turn && a.isRight == b.isRight;
    }

    bool isWithinUsual(const Explanation& best) const
    {
        return best.kind == Kind::Brightness && std::abs(best.factor - 1) < leastDimming;
    }

    /// Whether one colour explains it, too.
    bool isOneColor(std::size_t cabinet) const
    {
        const std::vector<Explanation>& all = m_explanations[cabinet];
        return std::any_of(all.begin(), all.end(), [this](const Explanation& explanation) {
            return (explanation.kind == Kind::Dark || explanation.kind == Kind::Flat) &&
                   usual(explanation.cost) < explainedCost;
        });
    }

    /// Of all explanations the one that costs least.
    const Explanation& bestOf(std::size_t cabinet) const
    {
        const std::vector<Explanation>& all = m_explanations[cabinet];
        return *std::min_element(all.begin(), all.end(),
                                 [](const Explanation& a, const Explanation& b) { return a.cost < b.cost; });
    }

    bool isExplained(std::size_t cabinet) const
    {
        return !m_explanations[cabinet].empty() && usual(bestOf(cabinet).cost) < explainedCost;
    }

    /// What is before the wall covers some cabinets in part, and what is dark or strange beside these, it may
    /// cover whole.
    void findCovered()
    {
        m_covered.assign(m_grid.cabinets.size(), false);
        std::vector<std::size_t> open;
        for (std::size_t i = 0; i < m_covered.size(); ++i) {
            const double share = m_blocks.share(i);
            m_covered[i] = !isExplained(i) && share > 0 && share < nearlyAllBlocks && !m_shifts[i];
            for (const std::size_t next : neighboursOf(i))
                m_covered[i] = m_covered[i] || (isPlain(i) && !isPlain(next) && goesOn(m_evidence, next, i));
            if (m_covered[i])
                open.push_back(i);
        }
        while (!open.empty()) {
            const std::size_t from = open.back();
            open.pop_back();
            for (const std::size_t next : neighboursOf(from)) {
                if (m_covered[next] || !mayBeCovered(next) ||
                    !(touches(from, next) ||
                      (isPlain(next) && (isPlain(from) || goesOn(m_evidence, from, next)))))
                    continue;
                m_covered[next] = true;
                open.push_back(next);
            }
        }
    }

    /// One colour all over, as what is before the wall often is.
    bool isPlain(std::size_t cabinet) const
    {
        if (m_explanations[cabinet].empty())
            return false;
        const Explanation& best = bestOf(cabinet);
        return !best.isRight && isExplained(cabinet) && isOneColor(cabinet);
    }

    std::vector<std::size_t> neighboursOf(std::size_t cabinet) const
    {
        const int columns = m_grid.columns;
        const int column = int(cabinet) % columns;
        std::vector<std::size_t> all;
        if (column > 0)
            all.push_back(cabinet - 1);
        if (column + 1 < columns)
            all.push_back(cabinet + 1);
        if (cabinet >= std::size_t(columns))
            all.push_back(cabinet - std::size_t(columns));
        if (cabinet + std::size_t(columns) < m_grid.cabinets.size())
            all.push_back(cabinet + std::size_t(columns));
        return all;
    }

    /// Whether what covers the one is seen at the border to the other.
    bool touches(std::size_t covered, std::size_t other) const
    {
        const cv::Mat wrong = m_blocks.of(covered);
        const int step = int(other) - int(covered);
        const cv::Mat side = step == 1    ? wrong.col(blocks - 1)
                             : step == -1 ? wrong.col(0)
                             : step > 0   ? wrong.row(blocks - 1)
                                          : wrong.row(0);
        return cv::countNonZero(side) > 0;
    }

    bool mayBeCovered(std::size_t cabinet) const
    {
        if (m_explanations[cabinet].empty())
            return true;
        const Explanation& best = bestOf(cabinet);
        return !isExplained(cabinet) || best.kind == Kind::Dark || best.kind == Kind::Flat ||
               best.kind == Kind::Brightness || (best.kind == Kind::Swapped && isOneColor(cabinet));
    }

    void accuse(std::size_t cabinet, const Explanation& explanation)
    {
        const double lead = this->lead(cabinet, explanation, m_explanations[cabinet].front());
        Finding finding = findingAt(cabinet, explanation.kind, 1 - 0.5 * std::exp(-lead / 20));
        finding.turn = explanation.turn;
        finding.shift = {explanation.shift.x, explanation.shift.y};
        finding.factor = explanation.factor;
        if (explanation.kind == Kind::Swapped) {
            finding.shows = placeOf(std::size_t(explanation.cabinet));
            finding.showsLabel = m_grid.cabinets[std::size_t(explanation.cabinet)].name;
        }
        add(finding);
    }

    /// Whether one colour, or another brightness, explains most of it.
    bool isNearlyPlain(std::size_t cabinet) const
    {
        const std::vector<Explanation>& all = m_explanations[cabinet];
        return std::any_of(all.begin(), all.end(), [this](const Explanation& explanation) {
            return (explanation.kind == Kind::Dark || explanation.kind == Kind::Flat ||
                    explanation.kind == Kind::Brightness) &&
                   usual(explanation.cost) < nearlyPlainCost;
        });
    }

    void sayUnexplained(std::size_t cabinet)
    {
        const Explanation& own = m_explanations[cabinet].front();
        const double share = m_blocks.share(cabinet);
        if (m_shifts[cabinet] && usual(own.cost) > leastMovedCost && share > leastMovedBlocks) {
            accuse(cabinet, *m_shifts[cabinet]);
            return;
        }
        const bool isAllWrong = share >= nearlyAllBlocks && usual(own.cost) > surelyWrongCost &&
                                !isNearlyPlain(cabinet) && !showsOwnMarker(cabinet, Kind::Other);
        if (isAllWrong && !m_covered[cabinet])
            add(findingAt(cabinet, Kind::Other, 0.9));
        else if (share > fewBlocks)
            add(findingAt(cabinet, m_covered[cabinet] ? Kind::Hidden : Kind::Unsure, 0.5));
    }

    const MarkedContents& m_marked;
    Reading& m_reading;
    const Evidence& m_evidence;
    const ChartComparison::CabinetGrid& m_grid;
    Blocks m_blocks;
    double m_usual = 1;
    std::vector<bool> m_covered;
    std::vector<std::optional<Explanation>> m_shifts;
    std::vector<std::vector<Explanation>> m_explanations;
};

QImage eightBits(const cv::Mat& seen)
{
    cv::Mat bytes;
    seen.convertTo(bytes, CV_8UC3);
    return toImage(bytes);
}

} // namespace

void judgeCabinets(Reading& reading, const cv::Mat& chart, const ChartComparison::CabinetGrid& grid,
                   const cv::Mat& picture, const FoundPlace& place, const MarkedContents& marked)
{
    const Evidence evidence = evidenceOf(chart, grid, picture, place);
    if (!evidence.light.isKnown)
        return;
    reading.rectified = eightBits(evidence.seen);
    Judge(reading, evidence, grid, marked).run();
}

} // namespace WallReading
