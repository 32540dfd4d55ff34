#include "wallvalues.h"

#include "records/recordvalues.h"
#include "wallfields.h"

#include <QJsonArray>

#include <algorithm>
#include <numeric>

namespace vardeno::walls {

using namespace testcharttools;

namespace {

constexpr std::size_t mostPlaces = 1000000; ///< of all runs: the largest grid has as many cabinets

/// The choices of a field, each by its name in documents.
template <typename Choice>
struct Named
{
    Choice choice;
    const char* name;
};

constexpr Named<Corner> corners[] = {{Corner::TopLeft, "top-left"},
                                     {Corner::TopRight, "top-right"},
                                     {Corner::BottomLeft, "bottom-left"},
                                     {Corner::BottomRight, "bottom-right"}};
constexpr Named<Direction> directions[] = {{Direction::Rows, "rows"}, {Direction::Columns, "columns"}};
constexpr Named<Pattern> patterns[] = {{Pattern::BackAndForth, "back-and-forth"},
                                       {Pattern::OneWay, "one-way"},
                                       {Pattern::EachLine, "each-line"}};
constexpr Named<NameStyle> nameStyles[] = {{NameStyle::Record, "record"}, {NameStyle::Numbers, "numbers"}};

template <typename Choice, std::size_t count>
QJsonValue nameOf(Choice choice, const Named<Choice> (&all)[count])
{
    const auto* found =
        std::find_if(all, all + count, [choice](const auto& named) { return named.choice == choice; });
    return QLatin1String(found->name);
}

template <typename Choice, std::size_t count>
QStringList namesOf(const Named<Choice> (&all)[count])
{
    QStringList names;
    for (const auto& named : all)
        names.append(QLatin1String(named.name));
    return names;
}

template <typename Choice, std::size_t count>
QStringList takeNamed(const QJsonValue& value, Choice& target, const Named<Choice> (&all)[count])
{
    for (const auto& [choice, name] : all) {
        if (value != QJsonValue(QLatin1String(name)))
            continue;
        target = choice;
        return {};
    }
    return {QStringLiteral("%1 is not one of %2")
                .arg(recordvalues::shown(value), namesOf(all).join(QLatin1String(", ")))};
}

template <typename Choice, std::size_t count>
QJsonObject choiceSchema(const Named<Choice> (&all)[count])
{
    return {{QStringLiteral("enum"), QJsonArray::fromStringList(namesOf(all))}};
}

QString numbered(const QJsonValue& value, const char* what, int index, const QString& why)
{
    return recordvalues::shown(value) + QStringLiteral(" (%1 %2) ").arg(QLatin1String(what)).arg(index + 1) +
           why;
}

/// The numbers of a list; empty for anything else, and where one is not in 1..32768.
std::vector<int> numbersOf(const QJsonValue& value)
{
    std::vector<int> numbers;
    for (const QJsonValue& item : value.toArray()) {
        int number = 0;
        if (!recordvalues::take(item, number, Range{1, recordfields::sidePixels.most}).isEmpty())
            return {};
        numbers.push_back(number);
    }
    return numbers;
}

QJsonArray pairOf(Place place)
{
    return {place.column + 1, place.row + 1};
}

Place step(Place from, Place to)
{
    return {to.column - from.column, to.row - from.row};
}

bool isUnit(Place way)
{
    return std::abs(way.column) + std::abs(way.row) == 1;
}

/// Where the straight stretch ends that begins at `first`.
std::size_t stretchEnd(const std::vector<Place>& run, std::size_t first)
{
    std::size_t last = first;
    while (last + 1 < run.size() && isUnit(step(run[last], run[last + 1])) &&
           step(run[last], run[last + 1]) == step(run[first], run[first + 1]))
        ++last;
    return last;
}

QJsonArray runToJson(const std::vector<Place>& run)
{
    QJsonArray items;
    for (std::size_t i = 0; i < run.size(); ++i) {
        QJsonArray item = pairOf(run[i]);
        if (const std::size_t last = stretchEnd(run, i); last >= i + 2) {
            item.append(run[last].column + 1);
            item.append(run[last].row + 1);
            i = last;
        }
        items.append(item);
    }
    return items;
}

int sign(int number)
{
    return (number > 0) - (number < 0);
}

/// The places of `numbers`, which are one or the two ends of a stretch.
void appendStretch(std::vector<Place>& run, const std::vector<int>& numbers)
{
    Place place = {numbers[0] - 1, numbers[1] - 1};
    run.push_back(place);
    if (numbers.size() == 2)
        return;
    const Place last = {numbers[2] - 1, numbers[3] - 1};
    const Place way = {sign(last.column - place.column), sign(last.row - place.row)};
    while (!(place == last)) {
        place = {place.column + way.column, place.row + way.row};
        run.push_back(place);
    }
}

bool isStretch(const std::vector<int>& numbers)
{
    return numbers.size() == 2 ||
           (numbers.size() == 4 && (numbers[0] == numbers[2] || numbers[1] == numbers[3]));
}

/// How many places the largest grid allows.
bool isInGrid(const std::vector<int>& numbers)
{
    return std::all_of(numbers.begin(), numbers.end(),
                       [](int number) { return number <= recordfields::cabinetCount.most; });
}

QString takeRun(const QJsonValue& value, std::vector<Place>& run)
{
    if (!value.isArray() || value.toArray().isEmpty())
        return QStringLiteral("is not a list of cabinets");
    for (const QJsonValue& item : value.toArray()) {
        const std::vector<int> numbers = numbersOf(item);
        if (!isStretch(numbers) || !isInGrid(numbers))
            return QStringLiteral("has %1, which is neither [column, row] nor a straight stretch [column, "
                                  "row, column, row] in 1..%2")
                .arg(recordvalues::shown(item))
                .arg(recordfields::cabinetCount.most);
        appendStretch(run, numbers);
        if (run.size() > mostPlaces)
            return QStringLiteral("has more than %1 cabinets").arg(mostPlaces);
    }
    return {};
}

QJsonObject listOf(const QJsonObject& items)
{
    return {{QStringLiteral("type"), QStringLiteral("array")}, {QStringLiteral("items"), items}};
}

QJsonObject sized(QJsonObject list, int least, int most)
{
    list.insert(QStringLiteral("minItems"), least);
    list.insert(QStringLiteral("maxItems"), most);
    return list;
}

} // namespace

QJsonValue toJson(const CabinetSizes& sizes)
{
    QJsonArray list;
    for (std::size_t i = 0; i < sizes.pixels.size();) {
        std::size_t end = i;
        while (end < sizes.pixels.size() && sizes.pixels[end] == sizes.pixels[i])
            ++end;
        list.append(QJsonArray{int(end - i), sizes.pixels[i]});
        i = end;
    }
    return list;
}

QStringList take(const QJsonValue& value, CabinetSizes& target)
{
    const auto [leastSide, mostSide] = recordfields::sidePixels;
    const int most = recordfields::cabinetCount.most;
    const QJsonArray list = value.toArray();
    if (list.isEmpty())
        return {recordvalues::shown(value) + QStringLiteral(" is not a list of [count, pixels]")};
    CabinetSizes sizes;
    qint64 total = 0;
    for (int i = 0; i < list.size(); ++i) {
        const std::vector<int> numbers = numbersOf(list.at(i));
        if (numbers.size() != 2)
            return {numbered(list.at(i), "item", i,
                             QStringLiteral("is not [count, pixels] of numbers in 1..%1").arg(mostSide))};
        if (sizes.count() + numbers[0] > most)
            return {QStringLiteral("%1 are more than %2").arg(sizes.count() + numbers[0]).arg(most)};
        sizes.pixels.insert(sizes.pixels.end(), std::size_t(numbers[0]), numbers[1]);
        total += qint64(numbers[0]) * numbers[1];
    }
    if (total < leastSide || total > mostSide)
        return {QStringLiteral("%1 pixels in all are not in %2..%3").arg(total).arg(leastSide).arg(mostSide)};
    target = std::move(sizes);
    return {};
}

QJsonObject schema(const CabinetSizes&)
{
    const QJsonObject number = recordvalues::schema(0, Range{1, recordfields::sidePixels.most});
    return sized(listOf(sized(listOf(number), 2, 2)), 1, recordfields::cabinetCount.most);
}

QJsonValue toJson(const CableLists& lists)
{
    QJsonArray runs;
    for (const std::vector<Place>& run : lists.runs)
        runs.append(runToJson(run));
    return runs;
}

QStringList take(const QJsonValue& value, CableLists& target)
{
    if (!value.isArray())
        return {recordvalues::shown(value) + QStringLiteral(" is not a list of runs")};
    const QJsonArray list = value.toArray();
    CableLists lists;
    std::size_t places = 0;
    for (int i = 0; i < list.size(); ++i) {
        std::vector<Place> run;
        const QString problem = takeRun(list.at(i), run);
        if (!problem.isEmpty())
            return {numbered(list.at(i), "run", i, problem)};
        places += run.size();
        if (places > mostPlaces)
            return {QStringLiteral("has more than %1 cabinets").arg(mostPlaces)};
        lists.runs.push_back(std::move(run));
    }
    target = std::move(lists);
    return {};
}

QJsonObject schema(const CableLists&)
{
    const QJsonObject number = recordvalues::schema(0, recordfields::cabinetCount);
    QJsonObject run = listOf(sized(listOf(number), 2, 4));
    run.insert(QStringLiteral("minItems"), 1);
    return listOf(run);
}

QJsonValue toJson(const InlineRecord& record)
{
    return record.document;
}

QStringList take(const QJsonValue& value, InlineRecord& target)
{
    if (!value.isObject())
        return {recordvalues::shown(value) + QStringLiteral(" is not an object")};
    target.document = value.toObject();
    return {};
}

QJsonObject schema(const InlineRecord&)
{
    return {{QStringLiteral("type"), QStringLiteral("object")}};
}

QJsonValue toJson(Corner corner)
{
    return nameOf(corner, corners);
}

QJsonValue toJson(Direction direction)
{
    return nameOf(direction, directions);
}

QJsonValue toJson(Pattern pattern)
{
    return nameOf(pattern, patterns);
}

QJsonValue toJson(NameStyle style)
{
    return nameOf(style, nameStyles);
}

QStringList take(const QJsonValue& value, Corner& target)
{
    return takeNamed(value, target, corners);
}

QStringList take(const QJsonValue& value, Direction& target)
{
    return takeNamed(value, target, directions);
}

QStringList take(const QJsonValue& value, Pattern& target)
{
    return takeNamed(value, target, patterns);
}

QStringList take(const QJsonValue& value, NameStyle& target)
{
    return takeNamed(value, target, nameStyles);
}

QJsonObject schema(Corner)
{
    return choiceSchema(corners);
}

QJsonObject schema(Direction)
{
    return choiceSchema(directions);
}

QJsonObject schema(Pattern)
{
    return choiceSchema(patterns);
}

QJsonObject schema(NameStyle)
{
    return choiceSchema(nameStyles);
}

} // namespace vardeno::walls
