#include "cabinetcomparison.h"

#include "imagepixels.h"
#include "thresholds.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <map>
#include <optional>

namespace ChartComparison {

namespace {

/// Where a content comes from: a cabinet of the chart, and how often the chart shows it.
struct Source
{
    int cabinet = 0;
    int count = 0;
};

class CabinetExaminer
{
public:
    CabinetExaminer(const QImage& expected, const QImage& actual, const CabinetGrid& grid);
    CabinetReport run(bool allOrNothing);

private:
    void useGrid(const CabinetGrid& grid);
    void measureTile();
    void indexContents();
    bool mayMiss() const;
    void examine(int cabinet);
    bool explain(int cabinet);
    bool findSource(int cabinet, const QImage& tile, std::optional<Turn> turn);
    QRect tileRect(int cabinet) const;
    QImage tileOf(const QImage& image, int cabinet) const;
    std::optional<Source> sourceOf(const QImage& tile) const;
    qint64 differingPixels(const QRect& rect) const;
    void addLookalike(int cabinet, PixelDifference& difference) const;
    void restore(const QRect& rect);
    DifferingPixel firstDifference(const QRect& rect) const;

    void reportSwaps();
    void reportMissing();
    void report(const std::vector<Finding>& findings);
    void reportUnexplained();
    void reportOutside();

    const QImage& m_expected;
    const QImage& m_actual;
    QImage m_rest; ///< the picture without what has been explained
    std::vector<QRect> m_rects;
    std::vector<CabinetPlace> m_places;
    QSize m_tile;
    QHash<quint64, Source> m_contents;
    QSet<quint64> m_multisets;
    CabinetReport m_report;
    std::map<int, int> m_shown; ///< the cabinet whose content is shown, by the cabinet that shows it
    std::map<QRgb, std::vector<CabinetPlace>> m_missing;
    bool m_mayMiss = true;
    std::vector<Finding> m_turned;
    std::vector<int> m_unexplained;
};

quint64 contentHash(const QImage& tile)
{
    quint64 hash = 0xcbf29ce484222325U ^ quint64(tile.width());
    for (int y = 0; y < tile.height(); ++y) {
        const QRgb* const row = pixelRow(tile, y);
        for (int x = 0; x < tile.width(); ++x)
            hash = (hash ^ row[x]) * 0x9e3779b97f4a7c15U + (hash >> 31U);
    }
    return hash;
}

/// A hash of the multiset of the pixels: the same for a content however it is turned.
quint64 multisetHash(const QImage& image, const QRect& rect)
{
    quint64 sum = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const QRgb* const row = pixelRow(image, y) + rect.left();
        for (int x = 0; x < rect.width(); ++x) {
            const quint64 mixed = row[x] * 0x9e3779b97f4a7c15U;
            sum += mixed ^ (mixed >> 29U);
        }
    }
    return sum;
}

CabinetExaminer::CabinetExaminer(const QImage& expected, const QImage& actual, const CabinetGrid& grid)
    : m_expected(expected)
    , m_actual(actual)
    , m_rest(actual)
{
    useGrid(grid);
    measureTile();
}

void CabinetExaminer::useGrid(const CabinetGrid& grid)
{
    QSet<QString> names;
    for (const Cabinet& cabinet : grid.cabinets)
        names.insert(cabinet.name);
    const bool unique = names.size() == int(grid.cabinets.size());
    for (int i = 0; i < int(grid.cabinets.size()); ++i) {
        const Cabinet& cabinet = grid.cabinets[std::size_t(i)];
        m_rects.push_back(cabinet.rect & m_expected.rect());
        m_places.push_back({grid.rowOf(std::size_t(i)), grid.columnOf(std::size_t(i)), cabinet.name, unique});
    }
}

/// What all cabinets have of their own, where they differ in size or overlap by a pixel.
void CabinetExaminer::measureTile()
{
    QSize tile = m_rects.empty() ? QSize() : m_rects.front().size();
    for (std::size_t i = 0; i < m_rects.size(); ++i) {
        tile = tile.boundedTo(m_rects[i].size());
        const QPoint step = i > 0 ? m_rects[i].topLeft() - m_rects[i - 1].topLeft() : QPoint();
        if (step.x() * 2 > tile.width())
            tile.setWidth(std::min(tile.width(), step.x()));
        if (step.y() * 2 > tile.height())
            tile.setHeight(std::min(tile.height(), step.y()));
    }
    m_tile = tile.isValid() ? tile : QSize();
}

QImage CabinetExaminer::tileOf(const QImage& image, int cabinet) const
{
    return image.copy(tileRect(cabinet));
}

QRect CabinetExaminer::tileRect(int cabinet) const
{
    return {m_rects[std::size_t(cabinet)].topLeft(), m_tile};
}

void CabinetExaminer::indexContents()
{
    for (int i = 0; i < int(m_rects.size()) && !m_tile.isEmpty(); ++i) {
        m_multisets.insert(multisetHash(m_expected, tileRect(i)));
        Source& source = m_contents[contentHash(tileOf(m_expected, i))];
        if (source.count++ == 0)
            source.cabinet = i;
    }
}

std::optional<Source> CabinetExaminer::sourceOf(const QImage& tile) const
{
    const auto it = m_contents.constFind(contentHash(tile));
    if (it == m_contents.constEnd() || tileOf(m_expected, it->cabinet) != tile)
        return std::nullopt;
    return *it;
}

qint64 CabinetExaminer::differingPixels(const QRect& rect) const
{
    return pixelCount(rect.size()) - equalPixels(m_expected, rect, m_rest, rect.topLeft());
}

DifferingPixel CabinetExaminer::firstDifference(const QRect& rect) const
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            const QRgb expected = pixelRow(m_expected, y)[x];
            const QRgb actual = pixelRow(m_rest, y)[x];
            if (expected != actual)
                return {QPoint(x, y), actual, expected};
        }
    }
    return {};
}

/// Whether `tile` is what one cabinet alone shows; tells it. `turn`: by which the picture had turned it.
bool CabinetExaminer::findSource(int cabinet, const QImage& tile, std::optional<Turn> turn)
{
    const std::optional<Source> source = sourceOf(tile);
    if (!source || source->count > 1 || (!turn && source->cabinet == cabinet))
        return false;
    if (!turn) {
        m_shown[cabinet] = source->cabinet;
        return true;
    }
    std::vector<CabinetPlace> cabinets = {m_places[std::size_t(cabinet)]};
    if (source->cabinet != cabinet)
        cabinets.push_back(m_places[std::size_t(source->cabinet)]);
    m_turned.push_back({Kind::CabinetTurned, *turn, cabinets, {}});
    return true;
}

bool CabinetExaminer::explain(int cabinet)
{
    if (m_tile.isEmpty())
        return false;
    const QRect rect = m_rects[std::size_t(cabinet)];
    if (m_mayMiss && isOneColor(m_actual, rect)) {
        m_missing[pixelRow(m_actual, rect.top())[rect.left()]].push_back(m_places[std::size_t(cabinet)]);
        return true;
    }
    if (!m_multisets.contains(multisetHash(m_actual, tileRect(cabinet))))
        return false;
    const QImage tile = tileOf(m_actual, cabinet);
    if (findSource(cabinet, tile, std::nullopt))
        return true;
    const QImage own = tileOf(m_expected, cabinet);
    for (const Turn turn : allTurns) {
        const QImage back = turnedBack(tile, turn);
        if (back == own) { // also where others look the same
            m_turned.push_back({Kind::CabinetTurned, turn, {m_places[std::size_t(cabinet)]}, {}});
            return true;
        }
        if (back.size() == m_tile && findSource(cabinet, back, turn))
            return true;
    }
    return false;
}

/// Where most cabinets have become one colour, and not all the same one, that is another chart and no fault.
bool CabinetExaminer::mayMiss() const
{
    QSet<QRgb> colors;
    int plain = 0;
    for (const QRect& rect : m_rects) {
        if (rect.isEmpty() || sameAt(m_expected, rect, m_actual, rect.topLeft()) ||
            !isOneColor(m_actual, rect))
            continue;
        ++plain;
        colors.insert(pixelRow(m_actual, rect.top())[rect.left()]);
    }
    return colors.size() < 2 || plain * 2 <= int(m_rects.size());
}

void CabinetExaminer::examine(int cabinet)
{
    const QRect rect = m_rects[std::size_t(cabinet)];
    if (rect.isEmpty() || sameAt(m_expected, rect, m_actual, rect.topLeft()))
        return;
    if (m_contents.isEmpty())
        indexContents();
    if (explain(cabinet)) {
        m_report.differing.push_back(rect);
        restore(rect);
    } else {
        m_unexplained.push_back(cabinet);
    }
}

/// What one cabinet explains is not another one's fault where they overlap.
void CabinetExaminer::restore(const QRect& rect)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y)
        std::copy_n(pixelRow(m_expected, y) + rect.left(), rect.width(), pixelRow(m_rest, y) + rect.left());
}

void CabinetExaminer::reportUnexplained()
{
    std::vector<Finding> findings;
    for (const int cabinet : m_unexplained) {
        const QRect rect = m_rects[std::size_t(cabinet)];
        PixelDifference difference;
        difference.differing = differingPixels(rect);
        if (difference.differing == 0)
            continue;
        m_report.differing.push_back(rect);
        m_report.unexplainedPixels += difference.differing;
        difference.all = pixelCount(rect.size());
        difference.first = firstDifference(rect);
        addLookalike(cabinet, difference);
        findings.push_back({Kind::CabinetDiffers, difference, {m_places[std::size_t(cabinet)]}, {}});
    }
    report(findings);
    for (const int cabinet : m_unexplained)
        restore(m_rects[std::size_t(cabinet)]);
}

void CabinetExaminer::addLookalike(int cabinet, PixelDifference& difference) const
{
    const auto source = m_tile.isEmpty() ? std::nullopt : sourceOf(tileOf(m_actual, cabinet));
    if (!source || source->count < 2)
        return;
    difference.lookalike = {m_places[std::size_t(source->cabinet)]};
    difference.moreLookalikes = source->count - 1;
}

void CabinetExaminer::reportSwaps()
{
    std::vector<Finding> findings;
    for (const auto& [cabinet, source] : m_shown) {
        const auto back = m_shown.find(source);
        const bool mutual = back != m_shown.end() && back->second == cabinet;
        if (!mutual || cabinet < source)
            findings.push_back({Kind::CabinetSwapped,
                                Swap{mutual},
                                {m_places[std::size_t(cabinet)], m_places[std::size_t(source)]},
                                {}});
    }
    report(findings);
}

void CabinetExaminer::reportMissing()
{
    for (const auto& [color, cabinets] : m_missing)
        m_report.findings.push_back({Kind::CabinetMissing, Missing{color}, cabinets, {}});
}

/// The first of one kind, and one finding for all others.
void CabinetExaminer::report(const std::vector<Finding>& findings)
{
    const std::size_t listed = std::min(findings.size(), std::size_t(Thresholds::mostListed));
    m_report.findings.insert(m_report.findings.end(), findings.begin(),
                             findings.begin() + std::ptrdiff_t(listed));
    if (findings.size() == listed)
        return;
    Finding further{findings.front().kind, Further{int(findings.size() - listed)}, {}, {}};
    for (std::size_t i = listed; i < findings.size(); ++i)
        further.cabinets.push_back(findings[i].cabinets.front());
    m_report.findings.push_back(further);
}

/// What is left after all cabinets.
void CabinetExaminer::reportOutside()
{
    const qint64 pixels = differingPixels(m_rest.rect());
    if (pixels == 0)
        return;
    m_report.unexplainedPixels += pixels;
    PixelDifference difference;
    difference.differing = pixels;
    difference.all = pixelCount(m_rest.size());
    difference.first = firstDifference(m_rest.rect());
    m_report.findings.push_back({Kind::OutsideCabinets, difference, {}, {}});
}

CabinetReport CabinetExaminer::run(bool allOrNothing)
{
    m_report.differingPixels = differingPixels(m_rest.rect());
    if (m_report.differingPixels == 0)
        return m_report;
    m_mayMiss = mayMiss();
    for (int i = 0; i < int(m_rects.size()) && !(allOrNothing && !m_unexplained.empty()); ++i)
        examine(i);
    if (allOrNothing && !m_unexplained.empty()) {
        m_report.unexplainedPixels = m_report.differingPixels;
        return m_report;
    }
    reportSwaps();
    reportMissing();
    report(m_turned);
    reportUnexplained();
    reportOutside();
    return m_report;
}

} // namespace

CabinetReport compareCabinets(const QImage& expected, const QImage& actual, const CabinetGrid& grid,
                              bool allOrNothing)
{
    return CabinetExaminer(expected, actual, grid).run(allOrNothing);
}

} // namespace ChartComparison
