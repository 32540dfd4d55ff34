#include "records/recordvalues.h"
#include "wallfields.h"
#include "wallvalues.h"

#include <QJsonArray>

namespace vardeno::walls {

using namespace testcharttools;

namespace {

const auto columnMember = QStringLiteral("column");
const auto rowMember = QStringLiteral("row");
const auto missingMember = QStringLiteral("missing");
const auto turnedMember = QStringLiteral("turned");
const auto columnsMember = QStringLiteral("columns");
const auto rowsMember = QStringLiteral("rows");
const auto nameMember = QStringLiteral("name");

/// Only what is not as in other cabinets.
QJsonObject cabinetToJson(const CabinetException& cabinet)
{
    QJsonObject members = cabinet.others;
    members.insert(columnMember, cabinet.at.column + 1);
    members.insert(rowMember, cabinet.at.row + 1);
    if (cabinet.missing)
        members.insert(missingMember, true);
    if (cabinet.turned != 0)
        members.insert(turnedMember, cabinet.turned);
    if (cabinet.columns != 1)
        members.insert(columnsMember, cabinet.columns);
    if (cabinet.rows != 1)
        members.insert(rowsMember, cabinet.rows);
    if (!cabinet.name.empty())
        members.insert(nameMember, QString::fromStdString(cabinet.name));
    return members;
}

/// Takes the members of a cabinet, and notes what is wrong with them.
class CabinetReader
{
public:
    explicit CabinetReader(QJsonObject members)
        : m_members(std::move(members))
    {
    }

    CabinetException cabinet();
    QStringList problems;

private:
    template <typename... Target>
    void take(const QString& member, Target&&... target)
    {
        const QJsonValue value = m_members.take(member);
        if (value.isUndefined())
            return;
        for (const QString& reason : recordvalues::take(value, target...))
            problems.append(member + QLatin1String(": ") + reason);
    }
    int place(const QString& member);
    void takeTurn(int& turned);

    QJsonObject m_members;
};

CabinetException CabinetReader::cabinet()
{
    CabinetException cabinet;
    cabinet.at = {place(columnMember), place(rowMember)};
    take(missingMember, cabinet.missing);
    takeTurn(cabinet.turned);
    take(columnsMember, cabinet.columns, recordfields::cabinetCount);
    take(rowsMember, cabinet.rows, recordfields::cabinetCount);
    take(nameMember, cabinet.name, nameLength);
    cabinet.others = m_members;
    return cabinet;
}

/// Which has no default.
int CabinetReader::place(const QString& member)
{
    int number = 0;
    if (!m_members.contains(member))
        problems.append(member + QLatin1String(": is missing"));
    take(member, number, recordfields::cabinetCount);
    return number - 1;
}

void CabinetReader::takeTurn(int& turned)
{
    const QJsonValue value = m_members.take(turnedMember);
    if (value.isUndefined())
        return;
    const int degrees = value.toInt(-1);
    if (degrees >= 0 && degrees < 360 && degrees % 90 == 0)
        turned = degrees;
    else
        problems.append(turnedMember + QLatin1String(": ") + recordvalues::shown(value) +
                        QLatin1String(" is not 0, 90, 180 or 270"));
}

QJsonObject integer(Range range)
{
    return recordvalues::schema(0, range);
}

} // namespace

QStringList exceptionMembers()
{
    return {columnMember, rowMember, missingMember, turnedMember, columnsMember, rowsMember, nameMember};
}

QJsonValue toJson(const CabinetExceptions& exceptions)
{
    QJsonArray list;
    for (const CabinetException& cabinet : exceptions.list)
        list.append(cabinetToJson(cabinet));
    return list;
}

QStringList take(const QJsonValue& value, CabinetExceptions& target)
{
    if (!value.isArray())
        return {recordvalues::shown(value) + QStringLiteral(" is not a list of cabinets")};
    const QJsonArray list = value.toArray();
    QStringList problems;
    CabinetExceptions exceptions;
    for (int i = 0; i < list.size(); ++i) {
        const QString number = QStringLiteral("(cabinet %1) ").arg(i + 1);
        if (!list.at(i).isObject()) {
            problems.append(number + recordvalues::shown(list.at(i)) + QStringLiteral(" is not an object"));
            continue;
        }
        CabinetReader reader(list.at(i).toObject());
        exceptions.list.push_back(reader.cabinet());
        for (const QString& problem : reader.problems)
            problems.append(number + problem);
    }
    if (problems.isEmpty())
        target = std::move(exceptions);
    return problems;
}

QJsonObject schema(const CabinetExceptions&)
{
    const QJsonObject count = integer(recordfields::cabinetCount);
    const QJsonObject members = {
        {columnMember, count},
        {rowMember, count},
        {missingMember, recordvalues::schema(false)},
        {turnedMember, QJsonObject{{QStringLiteral("enum"), QJsonArray{0, 90, 180, 270}}}},
        {columnsMember, count},
        {rowsMember, count},
        {nameMember, recordvalues::schema(std::string(), nameLength)}};
    return {{QStringLiteral("type"), QStringLiteral("array")},
            {QStringLiteral("items"),
             QJsonObject{{QStringLiteral("type"), QStringLiteral("object")},
                         {QStringLiteral("properties"), members},
                         {QStringLiteral("required"), QJsonArray{columnMember, rowMember}}}}};
}

} // namespace vardeno::walls
