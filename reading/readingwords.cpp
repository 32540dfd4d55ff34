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

QString degrees(int turn)
{
    return QStringLiteral("%1 degrees").arg(turn);
}

QString besides(int turn)
{
    return turn == 0 ? QString() : QStringLiteral(", turned by %1").arg(degrees(turn));
}

QString shiftText(const QPointF& shift)
{
    const int x = int(std::lround(shift.x()));
    const int y = int(std::lround(shift.y()));
    QStringList parts;
    if (x != 0)
        parts << QStringLiteral("%1 %2")
                     .arg(std::abs(x))
                     .arg(x > 0 ? QStringLiteral("right") : QStringLiteral("left"));
    if (y != 0)
        parts << QStringLiteral("%1 %2")
                     .arg(std::abs(y))
                     .arg(y > 0 ? QStringLiteral("down") : QStringLiteral("up"));
    return QStringLiteral("by %1 chart pixels").arg(parts.join(QStringLiteral(" and ")));
}

QString what(const Finding& finding)
{
    switch (finding.kind) {
    case Kind::Swapped:
        return QStringLiteral("shows what belongs to %1%2").arg(finding.showsLabel, besides(finding.turn));
    case Kind::Turned:
        return QStringLiteral("is turned by %1").arg(degrees(finding.turn));
    case Kind::Mirrored:
        return finding.turn == 180 ? QStringLiteral("is mirrored top to bottom")
                                   : QStringLiteral("is mirrored left to right%1").arg(besides(finding.turn));
    case Kind::Dark:
        return QStringLiteral("is dark");
    case Kind::Flat:
        return QStringLiteral("shows nothing but one colour");
    case Kind::Other:
        return QStringLiteral("shows something else");
    case Kind::Shifted:
        return QStringLiteral("is shifted %1").arg(shiftText(finding.shift));
    case Kind::Brightness:
        return finding.factor < 1 ? QStringLiteral("is too dark") : QStringLiteral("is too bright");
    case Kind::Color:
        return QStringLiteral("shows wrong colours");
    case Kind::Hidden:
        return QStringLiteral("is hidden");
    default:
        return QStringLiteral("could not be judged");
    }
}

QString count(int number, const char* one)
{
    return number == 1 ? QStringLiteral("1 %1").arg(QLatin1String(one))
                       : QStringLiteral("%1 %2s").arg(number).arg(QLatin1String(one));
}

QString alikeText(const Place& alike)
{
    const int rows = std::abs(alike.row);
    const int columns = std::abs(alike.column);
    QStringList parts;
    if (rows > 0)
        parts << count(rows, "row");
    if (columns > 0)
        parts << count(columns, "column");
    const QString moved = parts.isEmpty()
                              ? QStringLiteral("turned by 180 degrees")
                              : QStringLiteral("shifted by %1").arg(parts.join(QStringLiteral(" and ")));
    return QStringLiteral("not sure which cabinet is which: this chart looks the same %1; give it labels")
        .arg(moved);
}

QString doubtText(const Reading& reading)
{
    switch (reading.doubt) {
    case Doubt::NoPicture:
        return QStringLiteral("there is no picture to read");
    case Doubt::NotFound:
        return QStringLiteral("the chart was not found in the picture");
    case Doubt::OutOfTime:
        return QStringLiteral("the chart was not found in time");
    case Doubt::AlikeWhenMoved:
        return alikeText(reading.alike);
    default:
        return QString();
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

QString sentence(const Finding& finding)
{
    return QStringLiteral("%1 %2").arg(finding.label, what(finding));
}

QString sentence(const EdgeLoss& edge)
{
    return QStringLiteral("%1 missing at the %2 edge")
        .arg(edge.pixels == 1 ? QStringLiteral("1 chart pixel is")
                              : QStringLiteral("%1 chart pixels are").arg(edge.pixels),
             edgeName(edge.edge));
}

QString sentence(const WholeFinding& finding)
{
    return finding.kind == Whole::Mirrored
               ? QStringLiteral("the whole chart is mirrored left to right")
               : QStringLiteral("the whole chart is turned by %1").arg(degrees(finding.turn));
}

bool Reading::isGood() const
{
    const bool isAccused = std::any_of(findings.begin(), findings.end(),
                                       [](const Finding& finding) { return isAccusation(finding.kind); });
    return isLocated && !isAccused && edges.empty() && whole.empty();
}

namespace {

/// Once for two cabinets that are swapped; what could not be seen in one sentence each.
void addCabinets(QStringList& all, const std::vector<Finding>& findings)
{
    for (std::size_t i = 0; i < findings.size(); ++i) {
        const auto isOther = [&](const Finding& other) { return isMutual(findings[i], other); };
        if (!isAccusation(findings[i].kind) ||
            std::any_of(findings.begin(), findings.begin() + std::ptrdiff_t(i), isOther))
            continue;
        if (std::any_of(findings.begin(), findings.end(), isOther))
            all << QStringLiteral("%1 and %2 are swapped").arg(findings[i].label, findings[i].showsLabel);
        else
            all << sentence(findings[i]);
    }
    for (const Kind kind : {Kind::Unsure, Kind::Hidden}) {
        QStringList labels;
        for (const Finding& finding : findings) {
            if (finding.kind == kind)
                labels << finding.label;
        }
        if (!labels.isEmpty())
            all << QStringLiteral("%1: %2").arg(kind == Kind::Hidden ? QStringLiteral("hidden")
                                                                     : QStringLiteral("not sure about"),
                                                labels.join(QStringLiteral(", ")));
    }
}

} // namespace

QStringList Reading::sentences() const
{
    QStringList all;
    if (doubt != Doubt::None)
        all << doubtText(*this);
    for (const WholeFinding& finding : whole)
        all << sentence(finding);
    for (const EdgeLoss& edge : edges)
        all << sentence(edge);
    addCabinets(all, findings);
    if (isGood() && doubt == Doubt::None)
        all.prepend(QStringLiteral("nothing wrong was seen"));
    return all;
}

} // namespace WallReading
