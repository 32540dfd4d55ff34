#pragma once

#include "vdchartcore_export.h"

#include <functional>

namespace vardeno::testcharttools {

/// Calls `work` with each number from 0 to `count - 1`, in this thread and in others for the cores that
/// nobody else uses this function on, and returns when all is done. This thread does `first` before it joins
/// in. What is thrown by one of the calls is thrown here, when all threads have ended.
VDCHARTCORE_EXPORT void inParallel(int count, const std::function<void(int)>& work,
                                   const std::function<void()>& first = {});

} // namespace vardeno::testcharttools
