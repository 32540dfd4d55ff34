// Included by every source with a fault in the tree that mutate.py writes; never by the sources themselves.
#pragma once

#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

enum class VdMutant : unsigned char
{
    Unmet,
    Off,
    On
};

inline volatile VdMutant vdMutants[1 << 20] = {};

/// Notes in the file that VD_MUTANTS_REACHED names, if any, that the process has come by this fault.
inline VdMutant vdMutantMet(int number)
{
    const char* chosen = std::getenv("VD_MUTANT");
    const VdMutant state = chosen && std::atoi(chosen) == number ? VdMutant::On : VdMutant::Off;
    vdMutants[number] = state;
    const char* path = std::getenv("VD_MUTANTS_REACHED");
    const int file = path ? open(path, O_WRONLY | O_APPEND | O_CLOEXEC) : -1;
    if (file < 0)
        return state;
    char line[16];
    const int length = std::snprintf(line, sizeof line, "%d\n", number);
    const bool written = write(file, line, static_cast<std::size_t>(length)) == length;
    close(file);
    return written ? state : VdMutant::Off;
}

/// Whether the fault of that number is switched on: by VD_MUTANT in the environment.
inline bool vdMutant(int number)
{
    const VdMutant state = vdMutants[number];
    return (state == VdMutant::Unmet ? vdMutantMet(number) : state) == VdMutant::On;
}
