#pragma once

#include "layers/largechart.h"
#include "panels/settingrows.h"
#include "records/recordfields.h"

#include <algorithm>
#include <limits>

namespace vardeno::testcharttools {

namespace fieldrange {

inline BasicChartData& groupOf(TestChartToolsData& record, const BasicChartData*)
{
    return record.basicData;
}
inline PublicChartData& groupOf(TestChartToolsData& record, const PublicChartData*)
{
    return record.publicData;
}
inline InLineChartData& groupOf(TestChartToolsData& record, const InLineChartData*)
{
    return record.inLineData;
}
inline LogoChartData& groupOf(TestChartToolsData& record, const LogoChartData*)
{
    return record.logoData;
}
inline SelfChartData& groupOf(TestChartToolsData& record, const SelfChartData*)
{
    return record.selfData;
}

/// Visits the record's table for the limits of one number.
struct Finder
{
    const int* wanted;
    recordfields::Range found = {0, 0};

    template <typename Visit>
    void group(const char*, const char*, Visit visitFields)
    {
        visitFields();
    }
    void field(const char*, const int& value, recordfields::Range limits, const char*)
    {
        if (&value == wanted)
            found = limits;
    }
    template <typename... Rest>
    void field(const char*, const Rest&...)
    {
    }
};

} // namespace fieldrange

/// What the editor takes at most, where a record may hold more.
template <typename Group>
int mostInEditor(int Group::*)
{
    return std::numeric_limits<int>::max();
}
inline int mostInEditor(int PublicChartData::*number)
{
    if (number == &PublicChartData::resolutionWidth || number == &PublicChartData::resolutionHeight)
        return longestWhole; // for it holds the picture of each layer
    if (number == &PublicChartData::boxRow || number == &PublicChartData::boxCol)
        return 100;
    return std::numeric_limits<int>::max();
}

/// The range that the editor gives a number of the record, which is that of the record's table or ends before
/// it: `rangeOf(&PublicChartData::boxRow).value(9)`.
template <typename Group>
SpinRange rangeOf(int Group::*number)
{
    TestChartToolsData record;
    Group& group = fieldrange::groupOf(record, static_cast<const Group*>(nullptr));
    fieldrange::Finder finder{&(group.*number)};
    recordfields::visit(finder, record);
    return range(finder.found.least, std::min(finder.found.most, mostInEditor(number)));
}

} // namespace vardeno::testcharttools
