#include "chartcomparison.h"

#include "colorchange.h"
#include "differencepicture.h"
#include "imagepixels.h"
#include "imageplacement.h"
#include "imagescaling.h"
#include "lossycompression.h"
#include "thresholds.h"
#include "tolerance.h"

#include <algorithm>
#include <optional>

namespace ChartComparison {

namespace {

/// One way in which a picture may have come from the chart. In the size of the chart the chart's cabinets are
/// those of the wall, wherever the chart has gone; else they are where the chart was found.
struct Way
{
    std::vector<Finding> findings;
    QImage expected;  ///< the chart as it has become
    QImage actual;    ///< what of the picture is to be it
    double share = 0; ///< of its pixels that are
    QPoint at;        ///< of a placement: the chart's origin on the picture

    bool isPlacement() const { return !findings.empty() && findings.front().kind != Kind::Turned; }
};

class ChartExplainer
{
public:
    ChartExplainer(const QImage& expected, const QImage& actual, const CabinetGrid& grid)
        : m_expected(expected)
        , m_actual(actual)
        , m_grid(grid)
        , m_sameSize(expected.size() == actual.size())
    {
    }

    Result run();

private:
    void addWay(std::vector<Finding> findings, const QImage& expected, const QImage& actual);
    void addTurns();
    void addPlacements();

    bool explainByOneColor();
    bool explainByFewFaults();
    bool explainWhole();
    bool explainByCabinets();
    bool explainByColors();
    bool explainByEdges();
    bool explainByCompression();
    bool explainByScaling();
    bool explainByUnderscan();
    bool explainMostByColors(double least);
    void tellNearest();

    const Way* nearest() const;
    double nearestShare() const;
    void tellScaling(const Scaling& scaling);
    void tellRest(const Way& way, const QImage& expected);
    void tellReport(std::vector<Finding> findings, const CabinetReport& report, const QImage& expected,
                    const QImage& actual);
    void tellStranger();
    void finish(std::vector<Finding> findings);

    const QImage& m_expected;
    const QImage& m_actual;
    const CabinetGrid& m_grid;
    const bool m_sameSize;
    std::vector<Way> m_ways; ///< the first is that nothing has moved, in one size
    Result m_result;
};

Result ChartExplainer::run()
{
    if (explainByOneColor())
        return m_result;
    if (m_sameSize && explainByFewFaults())
        return m_result;
    if (m_sameSize)
        addWay({}, m_expected, m_actual);
    addTurns();
    addPlacements();
    if (!explainWhole() && !explainByCabinets() && !explainByColors() && !explainByEdges() &&
        !explainByUnderscan() && !explainByCompression() &&
        !explainMostByColors(Thresholds::surelyRecolored) && !explainByScaling() &&
        !explainMostByColors(Thresholds::leastExplained))
        tellNearest();
    return m_result;
}

/// The picture shows the chart where it is, unless something else has been drawn before.
void ChartExplainer::finish(std::vector<Finding> findings)
{
    m_result.findings = std::move(findings);
    if (m_result.difference.isNull())
        m_result.difference = differencePicture(m_expected, m_actual, QPoint(), {});
}

bool ChartExplainer::explainByOneColor()
{
    if (!isOneColor(m_actual))
        return false;
    const QRgb color = pixelRow(m_actual, 0)[0];
    const SizeChange sizes{m_actual.size(), m_expected.size()};
    if (!isOneColor(m_expected))
        finish({{Kind::OneColor, SingleColor{color, sizes}, {}, {}}});
    else if (color == pixelRow(m_expected, 0)[0])
        finish({{Kind::OtherSize, sizes, {}, {}}});
    else
        return false;
    return true;
}

/// Where few cabinets differ, and hardly a pixel of that has no reason, nothing has happened to the whole.
bool ChartExplainer::explainByFewFaults()
{
    const CabinetReport report = compareCabinets(m_expected, m_actual, m_grid);
    if (report.differing.size() * Thresholds::cabinetsForOneFault > m_grid.cabinets.size() ||
        report.unexplainedPixels > Thresholds::mostSpotPixels)
        return false;
    tellReport({}, report, m_expected, m_actual);
    return true;
}

void ChartExplainer::addWay(std::vector<Finding> findings, const QImage& expected, const QImage& actual)
{
    m_ways.push_back({std::move(findings), expected, actual, equalShare(expected, actual), {}});
}

void ChartExplainer::addTurns()
{
    for (const Turn turn : allTurns) {
        const QSize size = exchangesSides(turn) ? m_expected.size().transposed() : m_expected.size();
        if (size != m_actual.size())
            continue;
        const std::vector<Finding> findings = {{Kind::Turned, turn, {}, {}}};
        if (m_sameSize)
            addWay(findings, turned(m_expected, turn), m_actual);
        else
            addWay(findings, m_expected, turnedBack(m_actual, turn));
    }
}

void ChartExplainer::addPlacements()
{
    const std::vector<Placement> placements = findPlacements(m_expected, m_actual);
    const auto whole = std::count_if(placements.begin(), placements.end(),
                                     [](const Placement& placement) { return placement.share == 1; });
    for (const Placement& placement : placements) {
        const bool elsewhere = placement.share == 1 && whole > 1;
        const auto findings = placementFindings(m_expected.size(), m_actual, placement, elsewhere);
        if (m_sameSize)
            addWay(findings, placedThere(m_expected, m_actual, placement), m_actual);
        else
            addWay(findings, m_expected, placedBack(m_expected, m_actual, placement));
        m_ways.back().at = placement.at;
        if (m_sameSize)
            m_ways.back().share = std::min(m_ways.back().share, shiftedShare(m_actual, placement));
    }
}

/// Tells the first that explains all, and that others do as well.
bool ChartExplainer::explainWhole()
{
    std::vector<std::vector<Finding>> whole;
    std::optional<QPoint> at;
    for (const Way& way : m_ways) {
        if (way.share < 1 || (way.isPlacement() && at))
            continue;
        whole.push_back(way.findings);
        if (way.isPlacement())
            at = way.at;
    }
    const auto colors = m_sameSize ? ColorChange::find(m_expected, m_actual) : std::nullopt;
    if (colors)
        whole.push_back({{Kind::ColorsChanged, colors->effect(), {}, {}}});
    if (whole.empty())
        return false;
    for (std::size_t i = 1; i < whole.size(); ++i)
        whole.front().back().alternatives.push_back(whole[i].front());
    if (at && !m_sameSize)
        m_result.difference = differencePicture(m_expected, m_actual, *at, {});
    finish(whole.front());
    return true;
}

/// What leaves the fewest cabinets to be explained, as far as they all are.
bool ChartExplainer::explainByCabinets()
{
    const double unmoved = m_sameSize ? m_ways.front().share : 0.0;
    const Way* best = nullptr;
    CabinetReport bestReport;
    const auto told = [](const Way& way, const CabinetReport& report) {
        return way.findings.size() + report.differing.size();
    };
    for (const Way& way : m_ways) {
        if (!way.findings.empty() && way.share < std::max(unmoved, Thresholds::leastExplained))
            continue;
        const CabinetReport report = compareCabinets(way.expected, way.actual, m_grid, true);
        if (report.unexplainedPixels > 0 || (best && told(way, report) >= told(*best, bestReport)))
            continue;
        best = &way;
        bestReport = report;
    }
    if (best)
        tellReport(best->findings, bestReport, best->expected, best->actual);
    return best != nullptr;
}

bool ChartExplainer::explainByColors()
{
    for (const Way& way : m_ways) {
        const auto colors = way.isPlacement() ? std::nullopt : ColorChange::find(way.expected, way.actual);
        if (!colors)
            continue;
        std::vector<Finding> findings = way.findings;
        findings.push_back({Kind::ColorsChanged, colors->effect(), {}, {}});
        finish(findings);
        return true;
    }
    return false;
}

/// Other colours in another place: the edges between colours tell the place.
bool ChartExplainer::explainByEdges()
{
    for (Placement placement : findPlacements(colorEdges(m_expected), colorEdges(m_actual))) {
        const QRect shown = QRect(-placement.at, m_actual.size()) & m_expected.rect();
        const auto colors =
            ColorChange::find(m_expected.copy(shown), m_actual.copy(shown.translated(placement.at)));
        if (!colors)
            continue;
        placement.wraps =
            placement.wraps && ColorChange::find(placedThere(m_expected, m_actual, placement), m_actual);
        std::vector<Finding> findings = placementFindings(m_expected.size(), m_actual, placement, false);
        findings.push_back({Kind::ColorsChanged, colors->effect(), {}, {}});
        if (!m_sameSize)
            m_result.difference = differencePicture(m_expected, m_actual, placement.at, {});
        finish(findings);
        return true;
    }
    return false;
}

bool ChartExplainer::explainByScaling()
{
    if (nearestShare() >= Thresholds::surelyInPlace)
        return false;
    const auto scaling = findScaling(m_expected, m_actual);
    if (!scaling || (!scaling->failing.empty() && scaling->explained < nearestShare()))
        return false;
    tellScaling(*scaling);
    return true;
}

/// Much stays where it is when a chart is made a little smaller: what is left decides.
bool ChartExplainer::explainByUnderscan()
{
    const auto scaling = findScalingBetweenBars(m_expected, m_actual);
    const Way* const way = nearest();
    if (!scaling || !way ||
        scaling->error >
            Thresholds::mostErrorOfUnderscan * channelDifference(way->expected, way->actual).mean)
        return false;
    tellScaling(*scaling);
    return true;
}

void ChartExplainer::tellScaling(const Scaling& scaling)
{
    finish({scalingFinding(m_expected.size(), m_actual.size(), scaling)});
    const std::vector<CabinetPlace> failing = failingCabinets(scaling, m_grid);
    if (!failing.empty())
        m_result.findings.push_back({Kind::CabinetDiffers, DiffersBesides{}, failing, {}});
}

bool ChartExplainer::explainByCompression()
{
    for (const Way& way : m_ways) {
        const auto lossy =
            way.isPlacement() ? std::nullopt : findLossyCompression(way.expected, way.actual, m_grid);
        if (!lossy)
            continue;
        std::vector<Finding> findings = way.findings;
        findings.push_back(*lossy);
        finish(findings);
        return true;
    }
    return false;
}

/// What leaves the fewest pixels over, as long as it leaves less than half of them; or null. Large areas of
/// one colour are near to many moves, which therefore have to leave less.
const Way* ChartExplainer::nearest() const
{
    const Way* best = nullptr;
    for (const Way& way : m_ways) {
        const double least = way.isPlacement() ? Thresholds::leastPlaced : Thresholds::leastExplained;
        if (way.share >= least && (!best || way.share > best->share))
            best = &way;
    }
    return best;
}

double ChartExplainer::nearestShare() const
{
    const Way* const way = nearest();
    return way ? way->share : Thresholds::leastExplained;
}

bool ChartExplainer::explainMostByColors(double least)
{
    if (nearestShare() >= Thresholds::surelyInPlace)
        return false;
    for (Way& way : m_ways) {
        const auto colors = ColorChange::guess(way.expected, way.actual);
        const QImage changed = colors ? colors->applied(way.expected) : QImage();
        if (!colors || equalShare(changed, way.actual) <= std::max(least, nearestShare()))
            continue;
        way.findings.push_back({Kind::ColorsChanged, colors->effect(), {}, {}});
        tellRest(way, changed);
        return true;
    }
    return false;
}

void ChartExplainer::tellNearest()
{
    if (const Way* const way = nearest())
        tellRest(*way, way->expected);
    else
        tellStranger();
}

void ChartExplainer::tellRest(const Way& way, const QImage& expected)
{
    tellReport(way.findings, compareCabinets(expected, way.actual, m_grid), expected, way.actual);
}

void ChartExplainer::tellReport(std::vector<Finding> findings, const CabinetReport& report,
                                const QImage& expected, const QImage& actual)
{
    findings.insert(findings.end(), report.findings.begin(), report.findings.end());
    m_result.findings = std::move(findings);
    m_result.difference = differencePicture(expected, actual, QPoint(), report.differing);
}

/// Cabinets that are all in another place leave little where it was.
void ChartExplainer::tellStranger()
{
    if (m_sameSize) {
        const CabinetReport report = compareCabinets(m_expected, m_actual, m_grid);
        if (report.unexplainedPixels * 2 <= report.differingPixels) {
            tellRest(m_ways.front(), m_expected);
            return;
        }
        const ChannelDifference difference = channelDifference(m_expected, m_actual);
        const double share = double(report.differingPixels) / double(pixelCount(m_expected.size()));
        finish({{Kind::NotThisChart, Deviation{difference.greatest, difference.mean, share}, {}, {}}});
        return;
    }
    finish({{Kind::NotThisChart, SizeChange{m_actual.size(), m_expected.size()}, {}, {}}});
}

} // namespace

QStringList Result::sentences() const
{
    QStringList sentences;
    for (const Finding& finding : findings)
        sentences << sentence(finding);
    return sentences;
}

Result compare(const QImage& expected, const QImage& actual, const CabinetGrid& cabinets, int tolerance)
{
    const QImage plainExpected = plainColors(expected);
    const QImage plainActual = plainColors(actual);
    if (plainExpected == plainActual)
        return {true, 0, {}, {}};
    if (expected.isNull() || actual.isNull())
        return {false, 0, {{Kind::NotThisChart, {}, {}, {}}}, {}};
    const QImage tolerated = toleratedPicture(plainExpected, plainActual, tolerance);
    if (plainExpected == tolerated)
        return {true, channelDifference(plainExpected, plainActual).greatest, {}, {}};
    return ChartExplainer(plainExpected, tolerated, cabinets).run();
}

} // namespace ChartComparison
