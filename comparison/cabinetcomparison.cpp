#include "cabinetcomparison.h"

#include "imagepixels.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <map>
#include <optional>

namespace ChartComparison {

namespace {

constexpr std::size_t mostListed = 8;

QString listed(const QStringList& all)
{
    const int count = int(std::min<std::size_t>(std::size_t(all.size()), mostListed));
    QString text = all.mid(0, count).join(QLatin1String(", "));
    if (all.size() > count)
        text += QStringLiteral(", \u2026 and %1 more").arg(all.size() - count);
    return text;
}

/// Where a content comes from: a cabinet of the chart, and how often the chart shows it.
struct Source
{
    int cabinet = 0;
    int count = 0;
};

class Comparison
{
public:
    Comparison(const QImage& expected, const QImage& actual, const CabinetGrid& grid);
    CabinetReport run(bool allOrNothing);

private:
    void useGrid(const CabinetGrid& grid);
    void measureTile();
    void indexContents();
    bool mayMiss() const;
    void examine(int cabinet);
    bool explain(int cabinet);
    bool findSource(int cabinet, const QImage& tile, const QString& change);
    QRect tileRect(int cabinet) const;
    QImage tileOf(const QImage& image, int cabinet) const;
    std::optional<Source> sourceOf(const QImage& tile) const;
    qint64 differingPixels(const QRect& rect) const;
    QString resemblance(int cabinet) const;
    void restore(const QRect& rect);
    QString firstDifference(const QRect& rect) const;
    QString name(int cabinet) const;

    void reportSwaps();
    void reportMissing();
    void report(Kind kind, const std::vector<QString>& texts, const char* others);
    void reportUnexplained();
    void reportOutside();

    const QImage& m_expected;
    const QImage& m_actual;
    QImage m_rest; ///< the picture without what has been explained
    std::vector<QRect> m_rects;
    QStringList m_names;
    QSize m_tile;
    QHash<quint64, Source> m_contents;
    QSet<quint64> m_mixtures;
    CabinetReport m_report;
    std::map<int, int> m_shown; ///< the cabinet whose content is shown, by the cabinet that shows it
    std::map<QRgb, QStringList> m_missing;
    bool m_mayMiss = true;
    std::vector<QString> m_turned;
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

/// The same for a content however it is turned.
quint64 mixture(const QImage& image, const QRect& rect)
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

Comparison::Comparison(const QImage& expected, const QImage& actual, const CabinetGrid& grid)
    : m_expected(expected)
    , m_actual(actual)
    , m_rest(actual)
{
    useGrid(grid);
    measureTile();
}

/// Names that are not unique are told with their place.
void Comparison::useGrid(const CabinetGrid& grid)
{
    QSet<QString> names;
    for (const Cabinet& cabinet : grid.cabinets)
        names.insert(cabinet.name);
    const bool unique = names.size() == int(grid.cabinets.size());
    const int columns = std::max(grid.columns, 1);
    for (int i = 0; i < int(grid.cabinets.size()); ++i) {
        const Cabinet& cabinet = grid.cabinets[std::size_t(i)];
        m_rects.push_back(cabinet.rect & m_expected.rect());
        m_names << (unique ? cabinet.name
                           : QStringLiteral("%1 (row %2, column %3)")
                                 .arg(cabinet.name)
                                 .arg(i / columns + 1)
                                 .arg(i % columns + 1));
    }
}

/// What all cabinets have of their own, where they differ in size or overlap by a pixel.
void Comparison::measureTile()
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

QImage Comparison::tileOf(const QImage& image, int cabinet) const
{
    return image.copy(tileRect(cabinet));
}

QRect Comparison::tileRect(int cabinet) const
{
    return {m_rects[std::size_t(cabinet)].topLeft(), m_tile};
}

void Comparison::indexContents()
{
    for (int i = 0; i < int(m_rects.size()) && !m_tile.isEmpty(); ++i) {
        m_mixtures.insert(mixture(m_expected, tileRect(i)));
        Source& source = m_contents[contentHash(tileOf(m_expected, i))];
        if (source.count++ == 0)
            source.cabinet = i;
    }
}

std::optional<Source> Comparison::sourceOf(const QImage& tile) const
{
    const auto it = m_contents.constFind(contentHash(tile));
    if (it == m_contents.constEnd() || tileOf(m_expected, it->cabinet) != tile)
        return std::nullopt;
    return *it;
}

QString Comparison::name(int cabinet) const
{
    return m_names.at(cabinet);
}

qint64 Comparison::differingPixels(const QRect& rect) const
{
    return pixelCount(rect.size()) - equalPixels(m_expected, rect, m_rest, rect.topLeft());
}

QString Comparison::firstDifference(const QRect& rect) const
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            const QRgb expected = pixelRow(m_expected, y)[x];
            const QRgb actual = pixelRow(m_rest, y)[x];
            if (expected != actual)
                return QStringLiteral("first (%1, %2) is %3 instead of %4")
                    .arg(x)
                    .arg(y)
                    .arg(colorName(actual), colorName(expected));
        }
    }
    return QString();
}

/// Whether `tile` is what one cabinet alone shows; tells it.
bool Comparison::findSource(int cabinet, const QImage& tile, const QString& change)
{
    const std::optional<Source> source = sourceOf(tile);
    if (!source || source->count > 1 || (change.isEmpty() && source->cabinet == cabinet))
        return false;
    if (change.isEmpty())
        m_shown[cabinet] = source->cabinet;
    else if (source->cabinet == cabinet)
        m_turned.push_back(QStringLiteral("%1 is %2").arg(name(cabinet), change));
    else
        m_turned.push_back(QStringLiteral("%1 shows what belongs to %2, %3")
                               .arg(name(cabinet), name(source->cabinet), change));
    return true;
}

bool Comparison::explain(int cabinet)
{
    if (m_tile.isEmpty())
        return false;
    const QRect rect = m_rects[std::size_t(cabinet)];
    if (m_mayMiss && isOneColor(m_actual, rect)) {
        m_missing[pixelRow(m_actual, rect.top())[rect.left()]] << name(cabinet);
        return true;
    }
    if (!m_mixtures.contains(mixture(m_actual, tileRect(cabinet))))
        return false;
    const QImage tile = tileOf(m_actual, cabinet);
    if (findSource(cabinet, tile, QString()))
        return true;
    const QImage own = tileOf(m_expected, cabinet);
    for (const Turn turn : allTurns) {
        const QImage back = turnedBack(tile, turn);
        if (back == own) { // also where others look the same
            m_turned.push_back(QStringLiteral("%1 is %2").arg(name(cabinet), turnText(turn)));
            return true;
        }
        if (back.size() == m_tile && findSource(cabinet, back, turnText(turn)))
            return true;
    }
    return false;
}

/// Where most cabinets have become one colour, and not all the same one, that is another chart and no fault.
bool Comparison::mayMiss() const
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

void Comparison::examine(int cabinet)
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
void Comparison::restore(const QRect& rect)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y)
        std::copy_n(pixelRow(m_expected, y) + rect.left(), rect.width(), pixelRow(m_rest, y) + rect.left());
}

void Comparison::reportUnexplained()
{
    std::vector<QString> texts;
    for (const int cabinet : m_unexplained) {
        const QRect rect = m_rects[std::size_t(cabinet)];
        const qint64 pixels = differingPixels(rect);
        if (pixels == 0)
            continue;
        m_report.differing.push_back(rect);
        m_report.unexplainedPixels += pixels;
        texts.push_back(QStringLiteral("%1: %2 of %3 pixels differ, %4%5")
                            .arg(name(cabinet))
                            .arg(pixels)
                            .arg(pixelCount(rect.size()))
                            .arg(firstDifference(rect), resemblance(cabinet)));
    }
    report(Kind::CabinetDiffers, texts, "\u2026 and %1 more cabinets that differ");
    for (const int cabinet : m_unexplained)
        restore(m_rects[std::size_t(cabinet)]);
}

QString Comparison::resemblance(int cabinet) const
{
    const auto source = m_tile.isEmpty() ? std::nullopt : sourceOf(tileOf(m_actual, cabinet));
    return source && source->count > 1 ? QStringLiteral("; it looks like %1 and %2 more")
                                             .arg(name(source->cabinet))
                                             .arg(source->count - 1)
                                       : QString();
}

void Comparison::reportSwaps()
{
    std::vector<QString> texts;
    for (const auto& [cabinet, source] : m_shown) {
        const auto back = m_shown.find(source);
        const bool mutual = back != m_shown.end() && back->second == cabinet;
        if (mutual && cabinet < source)
            texts.push_back(QStringLiteral("%1 and %2 are swapped").arg(name(cabinet), name(source)));
        else if (!mutual)
            texts.push_back(QStringLiteral("%1 shows what belongs to %2").arg(name(cabinet), name(source)));
    }
    report(Kind::CabinetSwapped, texts, "\u2026 and %1 more swaps");
}

void Comparison::reportMissing()
{
    for (const auto& [color, names] : m_missing) {
        const bool black = (color & 0xffffffU) == 0;
        const QString what = (black ? QStringLiteral("missing, all %1") : QStringLiteral("nothing but %1"))
                                 .arg(colorName(color));
        const QString verb = black ? names.size() > 1 ? QStringLiteral("are") : QStringLiteral("is")
                             : names.size() > 1 ? QStringLiteral("show")
                                                : QStringLiteral("shows");
        const QString text =
            names.size() > 1
                ? QStringLiteral("%1 cabinets %2 %3: %4").arg(names.size()).arg(verb, what, listed(names))
                : QStringLiteral("%1 %2 %3").arg(names.front(), verb, what);
        m_report.findings.push_back({Kind::CabinetMissing, text});
    }
}

/// One finding for each of the first, and one for all others.
void Comparison::report(Kind kind, const std::vector<QString>& texts, const char* others)
{
    for (std::size_t i = 0; i < texts.size() && i < mostListed; ++i)
        m_report.findings.push_back({kind, texts[i]});
    if (texts.size() > mostListed)
        m_report.findings.push_back({kind, QString::fromUtf8(others).arg(texts.size() - mostListed)});
}

/// What is left after all cabinets.
void Comparison::reportOutside()
{
    const qint64 pixels = differingPixels(m_rest.rect());
    if (pixels == 0)
        return;
    m_report.unexplainedPixels += pixels;
    const QString what = pixels == 1
                             ? QStringLiteral("1 pixel that belongs to no cabinet differs")
                             : QStringLiteral("%1 pixels that belong to no cabinet differ").arg(pixels);
    m_report.findings.push_back(
        {Kind::OutsideCabinets, QStringLiteral("%1, %2").arg(what, firstDifference(m_rest.rect()))});
}

CabinetReport Comparison::run(bool allOrNothing)
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
    report(Kind::CabinetTurned, m_turned, "\u2026 and %1 more turned cabinets");
    reportUnexplained();
    reportOutside();
    return m_report;
}

} // namespace

CabinetReport compareCabinets(const QImage& expected, const QImage& actual, const CabinetGrid& grid,
                              bool allOrNothing)
{
    return Comparison(expected, actual, grid).run(allOrNothing);
}

} // namespace ChartComparison
