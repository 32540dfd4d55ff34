#include "cabinetorder.h"

#include "chartcabinets.h"

#include <algorithm>

namespace vardeno::walls {

namespace {

bool isRight(Corner corner)
{
    return corner == Corner::TopRight || corner == Corner::BottomRight;
}

bool isBottom(Corner corner)
{
    return corner == Corner::BottomLeft || corner == Corner::BottomRight;
}

/// Goes through the places of a plan as if its lines were rows from the top left.
class Walk
{
public:
    Walk(const CabinetPlan& plan, const CabinetOrder& order)
        : m_plan(plan)
        , m_alongRows(order.direction == Direction::Rows)
        , m_fromRight(isRight(order.corner))
        , m_fromBottom(isBottom(order.corner))
    {
    }

    int lines() const { return m_alongRows ? m_plan.rows() : m_plan.columns(); }
    int length() const { return m_alongRows ? m_plan.columns() : m_plan.rows(); }

    int cabinetAt(int line, int step) const
    {
        const int column = m_alongRows ? step : line;
        const int row = m_alongRows ? line : step;
        return m_plan.cabinetAt(Place{m_fromRight ? m_plan.columns() - 1 - column : column,
                                      m_fromBottom ? m_plan.rows() - 1 - row : row});
    }

private:
    const CabinetPlan& m_plan;
    const bool m_alongRows;
    const bool m_fromRight;
    const bool m_fromBottom;
};

QString numbered(const CabinetNumbering& numbering, int number)
{
    return QString::fromStdString(numbering.prefix) +
           QString::number(number).rightJustified(numbering.digits, QLatin1Char('0'));
}

} // namespace

std::vector<std::vector<int>> cabinetLines(const CabinetPlan& plan, const CabinetOrder& order)
{
    const Walk walk(plan, order);
    std::vector<bool> visited(plan.cabinets().size(), false);
    std::vector<std::vector<int>> lines;
    for (int line = 0; line < walk.lines(); ++line) {
        std::vector<int> cabinets;
        const bool back = order.backAndForth && lines.size() % 2 == 1;
        for (int step = 0; step < walk.length(); ++step) {
            const int cabinet = walk.cabinetAt(line, back ? walk.length() - 1 - step : step);
            if (cabinet < 0 || visited[std::size_t(cabinet)])
                continue;
            visited[std::size_t(cabinet)] = true;
            cabinets.push_back(cabinet);
        }
        if (!cabinets.empty())
            lines.push_back(std::move(cabinets));
    }
    return lines;
}

std::vector<QString> cabinetNames(const WallDocument& wall, const CabinetPlan& plan,
                                  const testcharttools::TestChartToolsData& record)
{
    std::vector<QString> names(plan.cabinets().size());
    const CabinetNumbering& numbering = wall.numbering;
    if (numbering.style == NameStyle::Numbers) {
        int number = numbering.start;
        for (const auto& line :
             cabinetLines(plan, {numbering.corner, numbering.direction, numbering.backAndForth})) {
            for (const int cabinet : line)
                names[std::size_t(cabinet)] = numbered(numbering, number++);
        }
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        const WallCabinet& cabinet = plan.cabinets()[i];
        const std::string own =
            cabinet.exception < 0 ? "" : wall.exceptions.list[std::size_t(cabinet.exception)].name;
        if (!own.empty())
            names[i] = QString::fromStdString(own);
        else if (numbering.style == NameStyle::Record)
            names[i] = testcharttools::ChartCabinets::label(record, cabinet.at.row, cabinet.at.column);
    }
    return names;
}

} // namespace vardeno::walls
