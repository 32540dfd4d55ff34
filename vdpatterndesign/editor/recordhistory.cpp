#include "editor/recordhistory.h"

#include "records/recordfields.h"

#include <algorithm>
#include <string>
#include <type_traits>

namespace vardeno::testcharttools {

namespace {

/// Keeps the place of every field, in the order of the table.
struct Places
{
    std::vector<const void*> fields;

    template <typename VisitFields>
    void group(const char*, const char*, VisitFields visitFields)
    {
        visitFields();
    }
    template <typename Value, typename... Rest>
    void field(const char*, const Value& value, const Rest&...)
    {
        fields.push_back(&value);
    }
};

/// Visits a record after another one whose places are known.
class Differences
{
public:
    explicit Differences(const TestChartToolsData& before) { recordfields::visit(m_before, before); }

    std::vector<int> changed;
    bool continuable = true;

    template <typename VisitFields>
    void group(const char*, const char*, VisitFields visitFields)
    {
        visitFields();
    }
    template <typename Value, typename... Rest>
    void field(const char*, const Value& after, const Rest&...)
    {
        const auto& before = *static_cast<const Value*>(m_before.fields[m_position]);
        if (!(before == after)) {
            changed.push_back(int(m_position));
            continuable = continuable && isContinuable(before, after);
        }
        ++m_position;
    }

private:
    /// A switch is operated on purpose each time, and so is a list that gets longer.
    template <typename Value>
    static bool isContinuable(const Value&, const Value&)
    {
        return !std::is_same_v<Value, bool>;
    }
    static bool isContinuable(const std::map<int, QColor>& before, const std::map<int, QColor>& after)
    {
        return before.size() == after.size();
    }

    Places m_before;
    std::size_t m_position = 0;
};

/// What the record's texts and lists take besides the record itself.
struct Sizes
{
    std::size_t bytes = 0;

    template <typename VisitFields>
    void group(const char*, const char*, VisitFields visitFields)
    {
        visitFields();
    }
    template <typename... Rest>
    void field(const char*, const std::string& text, const Rest&...)
    {
        bytes += text.capacity();
    }
    template <typename... Rest>
    void field(const char*, const std::map<int, QColor>& colors, const Rest&...)
    {
        constexpr std::size_t node = 4 * sizeof(void*) + sizeof(std::pair<const int, QColor>);
        bytes += colors.size() * node;
    }
    template <typename Value, typename... Rest>
    void field(const char*, const Value&, const Rest&...)
    {
    }
};

std::size_t sizeOf(const TestChartToolsData& record)
{
    Sizes sizes;
    recordfields::visit(sizes, record);
    return sizeof(record) + sizes.bytes;
}

} // namespace

RecordHistory::RecordHistory(std::size_t mostBytes)
    : m_mostBytes(mostBytes)
{
    restart({});
}

void RecordHistory::restart(const TestChartToolsData& record)
{
    m_states = {{record, {}, sizeOf(record)}};
    m_current = 0;
}

void RecordHistory::note(const TestChartToolsData& record, bool goesOn)
{
    if (record == current())
        return;
    if (goesOn && continuesLast(record)) {
        amend(record);
        return;
    }
    m_states.resize(m_current + 1, State());
    m_states.push_back({record, continuableFields(current(), record), sizeOf(record)});
    ++m_current;
    forgetOldest();
}

void RecordHistory::amend(const TestChartToolsData& record)
{
    State& state = m_states[m_current];
    if (record == state.record)
        return;
    state.record = record;
    state.bytes = sizeOf(record);
    m_states.resize(m_current + 1, State());
    if (m_current > 0 && m_states[m_current - 1].record == record) {
        m_states.pop_back();
        --m_current;
    }
    forgetOldest();
}

const TestChartToolsData& RecordHistory::undo()
{
    if (canUndo())
        --m_current;
    return current();
}

const TestChartToolsData& RecordHistory::redo()
{
    if (canRedo())
        ++m_current;
    return current();
}

RecordHistory::Fields RecordHistory::continuableFields(const TestChartToolsData& before,
                                                       const TestChartToolsData& after)
{
    Differences differences(before);
    recordfields::visit(differences, after);
    return differences.continuable ? differences.changed : Fields();
}

/// Of the last change itself, not of one that was come back to.
bool RecordHistory::continuesLast(const TestChartToolsData& record) const
{
    const Fields& last = m_states[m_current].changed;
    return !canRedo() && !last.empty() && continuableFields(current(), record) == last;
}

void RecordHistory::forgetOldest()
{
    std::size_t bytes = 0;
    for (const State& state : m_states)
        bytes += state.bytes;
    std::size_t forgotten = 0;
    while (bytes > m_mostBytes && forgotten + 1 < m_current)
        bytes -= m_states[forgotten++].bytes;
    m_states.erase(m_states.begin(), m_states.begin() + std::ptrdiff_t(forgotten));
    m_current -= forgotten;
}

} // namespace vardeno::testcharttools
