#include "readingfinding.h"
#include "wallreading.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

/// All words of the reading.
namespace WallReading {

namespace {

const std::array<const char*, 4> edgeNames = {"left", "top", "right", "bottom"};

QString shiftText(const Finding& finding, const Phrases& say)
{
    const int x = int(std::lround(finding.shift.x()));
    const int y = int(std::lround(finding.shift.y()));
    const QString across = QString::number(std::abs(x));
    const QString along = QString::number(std::abs(y));
    if (y == 0)
        return (x > 0 ? say("%1 is shifted by %2 right chart pixels")
                      : say("%1 is shifted by %2 left chart pixels"))
            .arg(finding.label, across);
    if (x == 0)
        return (y > 0 ? say("%1 is shifted by %2 down chart pixels")
                      : say("%1 is shifted by %2 up chart pixels"))
            .arg(finding.label, along);
    const QString right = y > 0 ? say("%1 is shifted by %2 right and %3 down chart pixels")
                                : say("%1 is shifted by %2 right and %3 up chart pixels");
    const QString left = y > 0 ? say("%1 is shifted by %2 left and %3 down chart pixels")
                               : say("%1 is shifted by %2 left and %3 up chart pixels");
    return (x > 0 ? right : left).arg(finding.label, across, along);
}

QString swapText(const Finding& finding, const Phrases& say)
{
    if (finding.turn == 0)
        return say("%1 shows what belongs to %2").arg(finding.label, finding.showsLabel);
    return say("%1 shows what belongs to %2, turned by %3 degrees")
        .arg(finding.label, finding.showsLabel, QString::number(finding.turn));
}

QString mirrorText(const Finding& finding, const Phrases& say)
{
    if (finding.turn == 180)
        return say("%1 is mirrored top to bottom").arg(finding.label);
    if (finding.turn == 0)
        return say("%1 is mirrored left to right").arg(finding.label);
    return say("%1 is mirrored left to right, turned by %2 degrees")
        .arg(finding.label, QString::number(finding.turn));
}

/// For what needs no more than the label.
QString stateText(const Finding& finding, const Phrases& say)
{
    switch (finding.kind) {
    case Kind::Dark:
        return say("%1 is dark");
    case Kind::Flat:
        return say("%1 shows nothing but one colour");
    case Kind::Other:
        return say("%1 shows something else");
    case Kind::Brightness:
        return finding.factor < 1 ? say("%1 is too dark") : say("%1 is too bright");
    case Kind::Color:
        return say("%1 shows wrong colours");
    case Kind::Hidden:
        return say("%1 is hidden");
    default:
        return say("%1 could not be judged");
    }
}

QString alikeText(const Place& alike, const Phrases& say)
{
    const int rows = std::abs(alike.row);
    const int columns = std::abs(alike.column);
    const QString down = (rows == 1 ? say("%1 row") : say("%1 rows")).arg(rows);
    const QString across = (columns == 1 ? say("%1 column") : say("%1 columns")).arg(columns);
    const QString by = rows == 0 ? across : columns == 0 ? down : say("%1 and %2").arg(down, across);
    if (rows == 0 && columns == 0)
        return say("not sure which cabinet is which: this chart looks the same turned by 180 degrees; "
                   "give it labels");
    return say("not sure which cabinet is which: this chart looks the same shifted by %1; give it labels")
        .arg(by);
}

QString doubtText(const Reading& reading, const Phrases& say)
{
    switch (reading.doubt) {
    case Doubt::NoPicture:
        return say("there is no picture to read");
    case Doubt::NotFound:
        return say("the chart was not found in the picture");
    case Doubt::OutOfTime:
        return say("the chart was not found in time");
    case Doubt::AlikeWhenMoved:
        return alikeText(reading.alike, say);
    default:
        return QString();
    }
}

QString oneMissing(Edge edge, const Phrases& say)
{
    switch (edge) {
    case Edge::Left:
        return say("%1 chart pixel is missing at the left edge");
    case Edge::Top:
        return say("%1 chart pixel is missing at the top edge");
    case Edge::Right:
        return say("%1 chart pixel is missing at the right edge");
    default:
        return say("%1 chart pixel is missing at the bottom edge");
    }
}

QString manyMissing(Edge edge, const Phrases& say)
{
    switch (edge) {
    case Edge::Left:
        return say("%1 chart pixels are missing at the left edge");
    case Edge::Top:
        return say("%1 chart pixels are missing at the top edge");
    case Edge::Right:
        return say("%1 chart pixels are missing at the right edge");
    default:
        return say("%1 chart pixels are missing at the bottom edge");
    }
}

/// Two cabinets that show one another's content.
bool isMutual(const Finding& a, const Finding& b)
{
    return a.kind == Kind::Swapped && b.kind == Kind::Swapped && a.turn == 0 && b.turn == 0 && a.shows &&
           b.shows && a.shows->row == b.cabinet.row && a.shows->column == b.cabinet.column &&
           b.shows->row == a.cabinet.row && b.shows->column == a.cabinet.column;
}

} // namespace

QString kindName(Kind kind)
{
    static const std::array<const char*, 11> names = {"swapped", "turned", "mirrored", "dark",
                                                      "flat",    "other",  "shifted",  "brightness",
                                                      "color",   "hidden", "unsure"};
    return QLatin1String(names.at(std::size_t(kind)));
}

QString edgeName(Edge edge)
{
    return QLatin1String(edgeNames.at(std::size_t(edge)));
}

QString inEnglish(const char* source)
{
    return QString::fromUtf8(source);
}

QString sentence(const Finding& finding, const Phrases& say)
{
    switch (finding.kind) {
    case Kind::Swapped:
        return swapText(finding, say);
    case Kind::Turned:
        return say("%1 is turned by %2 degrees").arg(finding.label, QString::number(finding.turn));
    case Kind::Mirrored:
        return mirrorText(finding, say);
    case Kind::Shifted:
        return shiftText(finding, say);
    default:
        return stateText(finding, say).arg(finding.label);
    }
}

QString sentence(const EdgeLoss& edge, const Phrases& say)
{
    return (edge.pixels == 1 ? oneMissing(edge.edge, say) : manyMissing(edge.edge, say)).arg(edge.pixels);
}

QString sentence(const WholeFinding& finding, const Phrases& say)
{
    return finding.kind == Whole::Mirrored ? say("the whole chart is mirrored left to right")
                                           : say("the whole chart is turned by %1 degrees").arg(finding.turn);
}

bool Reading::isGood() const
{
    const bool isAccused = std::any_of(findings.begin(), findings.end(),
                                       [](const Finding& finding) { return isAccusation(finding.kind); });
    return isLocated && !isAccused && edges.empty() && whole.empty();
}

namespace {

/// Once for two cabinets that are swapped; what could not be seen in one sentence each.
void addCabinets(QStringList& all, const std::vector<Finding>& findings, const Phrases& say)
{
    for (std::size_t i = 0; i < findings.size(); ++i) {
        const auto isOther = [&](const Finding& other) { return isMutual(findings[i], other); };
        if (!isAccusation(findings[i].kind) ||
            std::any_of(findings.begin(), findings.begin() + std::ptrdiff_t(i), isOther))
            continue;
        if (std::any_of(findings.begin(), findings.end(), isOther))
            all << say("%1 and %2 are swapped").arg(findings[i].label, findings[i].showsLabel);
        else
            all << sentence(findings[i], say);
    }
    for (const Kind kind : {Kind::Unsure, Kind::Hidden}) {
        QStringList labels;
        for (const Finding& finding : findings) {
            if (finding.kind == kind)
                labels << finding.label;
        }
        if (!labels.isEmpty())
            all << (kind == Kind::Hidden ? say("hidden: %1") : say("not sure about: %1"))
                       .arg(labels.join(QStringLiteral(", ")));
    }
}

} // namespace

QStringList Reading::sentences(const Phrases& say) const
{
    QStringList all;
    if (doubt != Doubt::None)
        all << doubtText(*this, say);
    for (const WholeFinding& finding : whole)
        all << sentence(finding, say);
    for (const EdgeLoss& edge : edges)
        all << sentence(edge, say);
    addCabinets(all, findings, say);
    if (isGood() && doubt == Doubt::None)
        all.prepend(say("nothing wrong was seen"));
    return all;
}

} // namespace WallReading
