#include "tally.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <iostream>
#include <sstream>

namespace Photos {

namespace {

/// A corner that is further off is somewhere else.
constexpr double mostCornerError = 6;

/// A cabinet of which more is hidden need not be judged.
constexpr double mostHidden = 0.02;

/// Chart pixels by which a shift may be told wrong.
constexpr double shiftTolerance = 3;

double cornerErrorOf(const Photo& photo, const WallReading::Reading& reading)
{
    double most = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        const QPointF off = reading.corners[i] - photo.corners[i];
        most = std::max(most, std::hypot(off.x(), off.y()) / photo.scale);
    }
    return most;
}

const Fault* faultAt(const Wall& wall, const WallReading::Place& place)
{
    for (const Fault& fault : wall.faults) {
        if (fault.row == place.row && fault.column == place.column)
            return &fault;
    }
    return nullptr;
}

/// Whether both cabinets of the chart show the same.
bool isSameContent(const Wall& wall, int row, int column, const WallReading::Place& place)
{
    const auto rectOf = [&wall](int r, int c) {
        return wall.cabinets.cabinets[std::size_t(r * wall.cabinets.columns + c)].rect;
    };
    return (row == place.row && column == place.column) ||
           wall.chart.copy(rectOf(row, column)) == wall.chart.copy(rectOf(place.row, place.column));
}

bool isRight(const Wall& wall, const Fault& fault, const WallReading::Finding& finding)
{
    if (fault.kind != WallReading::kindName(finding.kind).toStdString())
        return false;
    if (fault.kind == "swapped")
        return finding.shows && finding.turn == 0 &&
               isSameContent(wall, fault.showsRow, fault.showsColumn, *finding.shows);
    if (fault.kind == "shifted")
        return std::hypot(finding.shift.x() - fault.shift.x(), finding.shift.y() - fault.shift.y()) <
               shiftTolerance;
    return fault.kind != "turned" || fault.turn == finding.turn;
}

std::string text(const Fault& fault)
{
    std::ostringstream out;
    out << fault.kind;
    if (fault.showsRow >= 0)
        out << " shows " << fault.showsRow << '/' << fault.showsColumn;
    if (fault.turn)
        out << " by " << fault.turn;
    if (!fault.shift.isNull())
        out << " by " << fault.shift.x() << ',' << fault.shift.y();
    return out.str();
}

std::string text(const WallReading::Finding& finding)
{
    std::ostringstream out;
    out << WallReading::kindName(finding.kind).toStdString() << ' ' << std::setprecision(2)
        << finding.confidence;
    if (finding.shows)
        out << " shows " << finding.shows->row << '/' << finding.shows->column;
    if (finding.turn)
        out << " by " << finding.turn;
    if (!finding.shift.isNull())
        out << " by " << finding.shift.x() << ',' << finding.shift.y();
    return out.str();
}

const WallReading::Finding* findingAt(const WallReading::Reading& reading, const Fault& fault)
{
    for (const WallReading::Finding& finding : reading.findings) {
        if (finding.cabinet.row == fault.row && finding.cabinet.column == fault.column)
            return &finding;
    }
    return nullptr;
}

void countFindings(Result& result, const Wall& wall, const WallReading::Reading& reading,
                   const std::string& name)
{
    for (const WallReading::Finding& finding : reading.findings) {
        if (!WallReading::isAccusation(finding.kind))
            continue;
        Score& score = result.kinds[WallReading::kindName(finding.kind).toStdString()];
        ++score.accused;
        const Fault* fault = faultAt(wall, finding.cabinet);
        if (fault && isRight(wall, *fault, finding)) {
            ++score.right;
            continue;
        }
        result.falseAccusations += fault ? 0 : 1;
        std::cout << name << (fault ? ": wrong kind at " : ": FALSE at ") << finding.cabinet.row << '/'
                  << finding.cabinet.column << ": " << text(finding) << (fault ? " but " + text(*fault) : "")
                  << '\n';
    }
}

void countFaults(Result& result, const Wall& wall, const Photo& photo, const WallReading::Reading& reading,
                 const std::string& name)
{
    for (const Fault& fault : wall.faults) {
        if (photo.hidden[std::size_t(fault.row * wall.cabinets.columns + fault.column)] > mostHidden)
            continue;
        Score& score = result.kinds[fault.kind];
        ++score.present;
        const WallReading::Finding* finding = findingAt(reading, fault);
        if (finding && isRight(wall, fault, *finding))
            ++score.found;
        else if (result.isLocated)
            std::cout << name << ": missed at " << fault.row << '/' << fault.column << ": " << text(fault)
                      << (finding ? ", said " + text(*finding) : "") << '\n';
    }
}

} // namespace

Result judged(const Wall& wall, const Photo& photo, double angle, const WallReading::Reading& reading,
              unsigned seed)
{
    Result result;
    result.chartKind = wall.chartKind;
    result.angle = angle;
    result.scale = photo.scale;
    result.seconds = reading.seconds;
    result.cornerError = cornerErrorOf(photo, reading);
    result.isLocated = reading.isLocated && result.cornerError < mostCornerError;
    std::ostringstream name;
    name << std::fixed << std::setprecision(2) << seed << ' ' << wall.chartKind << ' ' << angle << " deg x"
         << photo.scale;
    if (!result.isLocated)
        std::cout << name.str() << ": NOT LOCATED" << (reading.isLocated ? " but elsewhere" : "") << ' '
                  << reading.score << " off by " << result.cornerError << " doubt " << int(reading.doubt)
                  << '\n';
    else
        std::cout << name.str() << ": ok " << result.cornerError << " score " << reading.score << ' '
                  << reading.seconds << " s doubt " << int(reading.doubt) << '\n';
    countFindings(result, wall, reading, name.str());
    countFaults(result, wall, photo, reading, name.str());
    std::cout << std::flush;
    return result;
}

void Tally::add(const Result& result)
{
    m_results.push_back(result);
}

namespace {

template <typename Which>
std::string rowOf(const std::string& name, const std::vector<Result>& results, Which which)
{
    int count = 0;
    int located = 0;
    int accusations = 0;
    std::vector<double> errors;
    double seconds = 0;
    Score all;
    for (const Result& result : results) {
        if (!which(result))
            continue;
        ++count;
        located += result.isLocated ? 1 : 0;
        seconds = std::max(seconds, result.seconds);
        accusations += result.falseAccusations;
        if (result.isLocated)
            errors.push_back(result.cornerError);
        for (const auto& [kind, score] : result.kinds) {
            all.present += score.present;
            all.found += score.found;
            all.accused += score.accused;
            all.right += score.right;
        }
    }
    if (count == 0)
        return {};
    std::sort(errors.begin(), errors.end());
    std::ostringstream out;
    out << std::fixed << "| " << name << " | " << count << " | " << located << " | " << std::setprecision(2)
        << (errors.empty() ? 0 : errors[errors.size() / 2]) << " | "
        << (errors.empty() ? 0 : errors[errors.size() * 95 / 100]) << " | " << all.right << "/" << all.accused
        << " | " << all.found << "/" << all.present << " | " << accusations << " | " << std::setprecision(1)
        << seconds << " |\n";
    return out.str();
}

} // namespace

std::string Tally::table() const
{
    std::string out = "\n| pictures | number | located | corner error, median | 95 % | accusations right | "
                      "faults found | false "
                      "accusations | processor time, longest, s |\n|---|---|---|---|---|---|---|---|---|\n";
    out += rowOf("all", m_results, [](const Result&) { return true; });
    out += rowOf("up to 40 degrees, from 0.8", m_results,
                 [](const Result& r) { return r.angle <= 40 && r.scale >= 0.8; });
    for (const std::string& kind : chartKinds())
        out += rowOf(kind, m_results, [&kind](const Result& r) { return r.chartKind == kind; });
    for (int least = 0; least < 45; least += 15)
        out += rowOf(std::to_string(least) + " to " + std::to_string(least + 15) + " degrees", m_results,
                     [least](const Result& r) { return r.angle >= least && r.angle < least + 15; });
    std::map<std::string, Score> kinds;
    for (const Result& result : m_results) {
        for (const auto& [kind, score] : result.kinds) {
            Score& sum = kinds[kind];
            sum.present += score.present;
            sum.found += score.found;
            sum.accused += score.accused;
            sum.right += score.right;
        }
    }
    out += "\n| fault | precision | recall |\n|---|---|---|\n";
    for (const auto& [kind, score] : kinds)
        out += "| " + kind + " | " + std::to_string(score.right) + "/" + std::to_string(score.accused) +
               " | " + std::to_string(score.found) + "/" + std::to_string(score.present) + " |\n";
    return out;
}

} // namespace Photos
