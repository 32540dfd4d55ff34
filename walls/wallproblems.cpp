#include "wallproblems.h"

#include "cabinetplan.h"

namespace vardeno::walls {

namespace {

constexpr int mostTold = 20;

QString placeText(Place place)
{
    return QStringLiteral("column %1, row %2").arg(place.column + 1).arg(place.row + 1);
}

/// Goes through the cabinets that are not like the others, and notes which place has which.
class ExceptionCheck
{
public:
    explicit ExceptionCheck(const WallDocument& wall)
        : m_wall(wall)
        , m_taken(std::size_t(wall.columnWidths.count()) * wall.rowHeights.count(), 0)
    {
    }

    QStringList problems()
    {
        const auto& list = m_wall.exceptions.list;
        for (std::size_t i = 0; i < list.size() && m_problems.size() < mostTold; ++i)
            check(list[i], int(i) + 1);
        if (m_problems.isEmpty() && m_missing == qint64(m_taken.size()))
            tell(QStringLiteral("no cabinet is left"));
        return m_problems;
    }

private:
    void tell(const QString& problem) { m_problems.append(QLatin1String("cabinets.exceptions: ") + problem); }

    /// Whether the cabinet lies in the grid along one way.
    bool fits(int number, const char* what, int first, int count, int all)
    {
        const QString cabinet = QStringLiteral("(cabinet %1) %2").arg(number).arg(QLatin1String(what));
        if (first >= all)
            tell(QStringLiteral("%1 %2 is not in 1..%3").arg(cabinet).arg(first + 1).arg(all));
        else if (first + count > all)
            tell(QStringLiteral("%1s %2..%3 are not in 1..%4")
                     .arg(cabinet)
                     .arg(first + 1)
                     .arg(first + count)
                     .arg(all));
        return first + count <= all;
    }

    void check(const CabinetException& cabinet, int number)
    {
        const bool inColumns =
            fits(number, "column", cabinet.at.column, cabinet.columns, m_wall.columnWidths.count());
        if (!fits(number, "row", cabinet.at.row, cabinet.rows, m_wall.rowHeights.count()) || !inColumns)
            return;
        for (int row = cabinet.at.row; row < cabinet.at.row + cabinet.rows; ++row) {
            for (int column = cabinet.at.column; column < cabinet.at.column + cabinet.columns; ++column) {
                int& taken = m_taken[std::size_t(row) * m_wall.columnWidths.count() + column];
                if (taken != 0) {
                    tell(QStringLiteral("(cabinet %1) has %2, which cabinet %3 of the list has")
                             .arg(number)
                             .arg(placeText({column, row}))
                             .arg(taken));
                    return;
                }
                taken = number;
                m_missing += cabinet.missing;
            }
        }
    }

    const WallDocument& m_wall;
    std::vector<int> m_taken; ///< the number of the cabinet in the list that has the place
    qint64 m_missing = 0;
    QStringList m_problems;
};

/// Each cabinet at most once, and in the grid.
QStringList runProblems(const char* field, const CableLists& lists, const CabinetPlan& plan)
{
    std::vector<int> runs(plan.cabinets().size(), 0);
    for (std::size_t i = 0; i < lists.runs.size(); ++i) {
        for (const Place place : lists.runs[i]) {
            const auto problem = [&](const QString& why) {
                return QStringList(QStringLiteral("%1: (run %2) %3 %4")
                                       .arg(QLatin1String(field))
                                       .arg(i + 1)
                                       .arg(placeText(place), why));
            };
            if (place.column >= plan.columns() || place.row >= plan.rows())
                return problem(QStringLiteral("is outside of the grid of %1 columns and %2 rows")
                                   .arg(plan.columns())
                                   .arg(plan.rows()));
            const int cabinet = plan.cabinetAt(place);
            if (cabinet < 0)
                return problem(QStringLiteral("has no cabinet"));
            int& run = runs[std::size_t(cabinet)];
            if (run != 0)
                return problem(QStringLiteral("is in run %1 already").arg(run));
            run = int(i) + 1;
        }
    }
    return {};
}

} // namespace

QStringList placementProblems(const WallDocument& wall)
{
    const QStringList problems = ExceptionCheck(wall).problems();
    if (!problems.isEmpty())
        return problems;
    const CabinetPlan plan(wall);
    return runProblems("data.runs", wall.data.path.byHand, plan) +
           runProblems("power.runs", wall.power.path.byHand, plan);
}

} // namespace vardeno::walls
