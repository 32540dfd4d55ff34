#pragma once

#include "panels/settingrows.h"
#include "records/recordfields.h"

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

/// The range that a record's table gives a number: `rangeOf(&PublicChartData::boxRow).value(9)`.
template <typename Group>
SpinRange rangeOf(int Group::*number)
{
    TestChartToolsData record;
    Group& group = fieldrange::groupOf(record, static_cast<const Group*>(nullptr));
    fieldrange::Finder finder{&(group.*number)};
    recordfields::visit(finder, record);
    return range(finder.found.least, finder.found.most);
}

} // namespace vardeno::testcharttools
