#pragma once

#include "cabinetexplanation.h"

#include <optional>

namespace WallReading {

/// The cabinet's own picture moved within the cabinet.
std::optional<Explanation> shiftOf(const Evidence& evidence, std::size_t cabinet);

/// The same, with black where it has moved from, and judged by all of the cabinet.
std::optional<Explanation> shiftOnBlack(const Evidence& evidence, std::size_t cabinet);

} // namespace WallReading
