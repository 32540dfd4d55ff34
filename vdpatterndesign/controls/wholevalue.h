#pragma once

#include <spineditbox.h>

namespace vardeno::testcharttools {

/// The entry's value, truncated to a whole number: chart pixels, percent and counts are whole.
inline int wholeValue(const SpinEditBox* entry)
{
    return int(entry->value());
}

} // namespace vardeno::testcharttools
