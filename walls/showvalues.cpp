#include "showvalues.h"

#include "records/recordvalues.h"
#include "showfields.h"
#include "support/nearestname.h"

#include <QJsonArray>

namespace vardeno::walls {

using namespace testcharttools;

// The values of members that no other document has.

QJsonValue toJson(const WallColor& color)
{
    return color.isGiven ? recordvalues::toJson(color.value) : QJsonValue();
}

QStringList take(const QJsonValue& value, WallColor& target)
{
    const QStringList problems = recordvalues::take(value, target.value);
    target.isGiven = problems.isEmpty();
    return problems;
}

QJsonObject schema(const WallColor& color)
{
    return recordvalues::schema(color.value);
}

QJsonValue toJson(const WallPart& part)
{
    const QRect& rect = part.rect;
    return rect.isEmpty() ? QJsonValue() : QJsonArray{rect.x(), rect.y(), rect.width(), rect.height()};
}

QStringList take(const QJsonValue& value, WallPart& target)
{
    const int most = recordfields::sidePixels.most;
    const QJsonArray list = value.toArray();
    int numbers[4] = {0, 0, 0, 0};
    bool isGood = list.size() == 4;
    for (int i = 0; i < 4 && isGood; ++i)
        isGood = recordvalues::take(list.at(i), numbers[i], Range{i < 2 ? 0 : 1, most}).isEmpty();
    if (!isGood)
        return {recordvalues::shown(value) +
                QStringLiteral(" is not [x, y, width, height] of pixels, up to %1").arg(most)};
    target.rect = {numbers[0], numbers[1], numbers[2], numbers[3]};
    return {};
}

QJsonObject schema(const WallPart&)
{
    return {{QStringLiteral("type"), QStringLiteral("array")},
            {QStringLiteral("items"), recordvalues::schema(0, Range{0, recordfields::sidePixels.most})},
            {QStringLiteral("minItems"), 4},
            {QStringLiteral("maxItems"), 4}};
}

QJsonValue toJson(QuarterTurn turn)
{
    return turn.degrees;
}

QStringList take(const QJsonValue& value, QuarterTurn& target)
{
    const int degrees = value.toInt(-1);
    if (degrees < 0 || degrees >= 360 || degrees % 90 != 0)
        return {recordvalues::shown(value) + QStringLiteral(" is not 0, 90, 180 or 270")};
    target.degrees = degrees;
    return {};
}

QJsonObject schema(QuarterTurn)
{
    return {{QStringLiteral("enum"), QJsonArray{0, 90, 180, 270}}};
}

namespace {

constexpr int mostUnknown = 20;

/// How many of them a show may have, and what one of them is called.
struct ListKind
{
    const char* one;
    const char* all;
    int most;
};

constexpr ListKind listKind(const ShowOutput&)
{
    return {"output", "outputs", 256};
}
constexpr ListKind listKind(const ShowWall&)
{
    return {"wall", "walls", 256};
}
constexpr ListKind listKind(const WallPlacement&)
{
    return {"placement", "placements", 1000};
}

QString numberedItem(const ListKind& kind, int index)
{
    return QStringLiteral("(%1 %2) ").arg(QLatin1String(kind.one)).arg(index + 1);
}

/// Writes what is needed, and what is not as by default.
class ItemWriter
{
public:
    explicit ItemWriter(const QJsonObject& others)
        : members(others)
    {
    }

    template <typename Value, typename Limit>
    void needed(const char* name, const Value& value, Limit)
    {
        using recordvalues::toJson;
        members.insert(QLatin1String(name), toJson(value));
    }

    template <typename Value, typename... Limit>
    void member(const char* name, const Value& value, Limit...)
    {
        using recordvalues::toJson;
        members.insert(QLatin1String(name), toJson(value));
        all.append(QLatin1String(name));
    }

    QJsonObject members;
    QStringList all; ///< that may be left out
};

template <typename Item>
QJsonObject itemToJson(Item item)
{
    ItemWriter writer(item.others);
    visitMembers(writer, item);
    Item standard;
    ItemWriter usual({});
    visitMembers(usual, standard);
    for (const QString& name : usual.all) {
        if (writer.members.value(name) == usual.members.value(name))
            writer.members.remove(name);
    }
    return writer.members;
}

/// Takes the members of an item, and notes what is wrong with them.
class ItemReader
{
public:
    explicit ItemReader(QJsonObject members)
        : m_members(std::move(members))
    {
    }

    template <typename Value, typename Limit>
    void needed(const char* name, Value& target, Limit limit)
    {
        if (!m_members.contains(QLatin1String(name)))
            problems.append(QLatin1String(name) + QLatin1String(": is missing"));
        member(name, target, limit);
    }

    template <typename Value, typename... Limit>
    void member(const char* name, Value& target, Limit... limit)
    {
        using recordvalues::take;
        const QJsonValue value = m_members.take(QLatin1String(name));
        if (value.isUndefined())
            return;
        for (const QString& reason : take(value, target, limit...))
            problems.append(QLatin1String(name) + QLatin1String(": ") + reason);
    }

    QJsonObject others() const { return m_members; }
    QStringList problems;

private:
    QJsonObject m_members;
};

/// Goes through the members for their schema.
class ItemSchema
{
public:
    template <typename Value, typename... Limit>
    void needed(const char* name, const Value& value, Limit... limit)
    {
        member(name, value, limit...);
        required.append(QLatin1String(name));
    }

    template <typename Value, typename... Limit>
    void member(const char* name, const Value& value, Limit... limit)
    {
        using recordvalues::schema;
        properties.insert(QLatin1String(name), schema(value, limit...));
        names.append(QLatin1String(name));
    }

    QJsonObject properties;
    QJsonArray required;
    QStringList names;
};

template <typename Item>
ItemSchema schemaOf(Item item)
{
    ItemSchema members;
    visitMembers(members, item);
    return members;
}

template <typename Item>
QJsonObject itemsSchema(const std::vector<Item>&)
{
    const ItemSchema members = schemaOf(Item());
    return {{QStringLiteral("type"), QStringLiteral("array")},
            {QStringLiteral("maxItems"), listKind(Item()).most},
            {QStringLiteral("items"), QJsonObject{{QStringLiteral("type"), QStringLiteral("object")},
                                                  {QStringLiteral("properties"), members.properties},
                                                  {QStringLiteral("required"), members.required}}}};
}

template <typename Item>
QJsonArray itemsToJson(const std::vector<Item>& items)
{
    QJsonArray list;
    for (const Item& item : items)
        list.append(itemToJson(item));
    return list;
}

template <typename Item>
QStringList takeItem(const QJsonValue& value, std::vector<Item>& items)
{
    if (!value.isObject())
        return {recordvalues::shown(value) + QStringLiteral(" is not an object")};
    ItemReader reader(value.toObject());
    Item item;
    visitMembers(reader, item);
    item.others = reader.others();
    items.push_back(std::move(item));
    return reader.problems;
}

template <typename Item>
QStringList takeItems(const QJsonValue& value, std::vector<Item>& target)
{
    const ListKind kind = listKind(Item());
    const QJsonArray list = value.toArray();
    if (!value.isArray())
        return {recordvalues::shown(value) + QStringLiteral(" is not a list of ") + QLatin1String(kind.all)};
    if (list.size() > kind.most)
        return {QStringLiteral("%1 %2 are more than %3")
                    .arg(list.size())
                    .arg(QLatin1String(kind.all))
                    .arg(kind.most)};
    QStringList problems;
    std::vector<Item> items;
    for (int i = 0; i < list.size(); ++i) {
        for (const QString& problem : takeItem(list.at(i), items))
            problems.append(numberedItem(kind, i) + problem);
    }
    if (problems.isEmpty())
        target = std::move(items);
    return problems;
}

template <typename Item>
QStringList unknownInList(const std::vector<Item>& items)
{
    const ListKind kind = listKind(Item());
    const QStringList names = schemaOf(Item()).names;
    QStringList lines;
    for (std::size_t i = 0; i < items.size() && lines.size() < mostUnknown; ++i) {
        for (const QString& member : items[i].others.keys()) {
            const QString meant = nearestName(member.left(60), names);
            lines.append(QStringLiteral("show.%1: ").arg(QLatin1String(kind.all)) +
                         numberedItem(kind, int(i)) + recordvalues::elided(member) +
                         QStringLiteral(": unknown member") +
                         (meant.isEmpty() ? QString() : QStringLiteral(", did you mean %1?").arg(meant)));
        }
    }
    return lines.mid(0, mostUnknown);
}

} // namespace

QJsonValue toJson(const ShowOutputs& outputs)
{
    return itemsToJson(outputs.list);
}

QJsonValue toJson(const ShowWalls& walls)
{
    return itemsToJson(walls.list);
}

QJsonValue toJson(const WallPlacements& placements)
{
    return itemsToJson(placements.list);
}

QStringList take(const QJsonValue& value, ShowOutputs& target)
{
    return takeItems(value, target.list);
}

QStringList take(const QJsonValue& value, ShowWalls& target)
{
    return takeItems(value, target.list);
}

QStringList take(const QJsonValue& value, WallPlacements& target)
{
    return takeItems(value, target.list);
}

QJsonObject schema(const ShowOutputs& outputs)
{
    return itemsSchema(outputs.list);
}

QJsonObject schema(const ShowWalls& walls)
{
    return itemsSchema(walls.list);
}

QJsonObject schema(const WallPlacements& placements)
{
    return itemsSchema(placements.list);
}

QStringList showMembers()
{
    return schemaOf(ShowOutput()).names + schemaOf(ShowWall()).names + schemaOf(WallPlacement()).names;
}

QStringList unknownInLists(const ShowDocument& show)
{
    return unknownInList(show.outputs.list) + unknownInList(show.walls.list) +
           unknownInList(show.placements.list);
}

} // namespace vardeno::walls
