#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the run, which is then a finding, where `condition` does not hold.
inline void require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "not true: %s\n", what);
    std::abort();
}
