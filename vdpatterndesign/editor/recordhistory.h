#pragma once

#include "testcharttoolsdata.h"

#include <cstddef>
#include <vector>

namespace vardeno::testcharttools {

/// The records that a chart has had, in order, and which of them it has now. A plain value. What goes beyond
/// its bound on memory is forgotten, the oldest first.
class RecordHistory
{
public:
    /// `mostBytes`: what the records may take together; the last two are kept in any case.
    explicit RecordHistory(std::size_t mostBytes = 4 * 1024 * 1024);

    /// Another chart: there is nothing to undo.
    void restart(const TestChartToolsData& record);
    /// The chart has become `record`. What was undone before cannot be redone then. `goesOn`: this may be one
    /// more step of the last change, as those of one drag are. It is, where both changed the same numbers,
    /// texts or colours; a step that leads back to where the change began takes it out.
    void note(const TestChartToolsData& record, bool goesOn);
    /// The chart has become `record` as part of the last change.
    void amend(const TestChartToolsData& record);

    const TestChartToolsData& current() const { return m_states[m_current].record; }
    bool canUndo() const { return m_current > 0; }
    bool canRedo() const { return m_current + 1 < m_states.size(); }
    /// The record to go back to, or forth; the current one where there is none.
    const TestChartToolsData& undo();
    const TestChartToolsData& redo();

private:
    /// The positions in the table of fields of what a change has changed; empty for a change that no other
    /// one continues.
    using Fields = std::vector<int>;
    struct State
    {
        TestChartToolsData record;
        Fields changed; ///< since the state before
        std::size_t bytes;
    };

    static Fields continuableFields(const TestChartToolsData& before, const TestChartToolsData& after);
    bool continuesLast(const TestChartToolsData& record) const;
    void forgetOldest();

    std::size_t m_mostBytes;
    std::vector<State> m_states;
    std::size_t m_current = 0;
};

} // namespace vardeno::testcharttools
