#pragma once

#include <array>

#include "model/Describe.h"

namespace ostrel {

/// Codes of an interface where there is nothing to choose but on or off.
inline constexpr std::array<CodeWords, 2> kOnOrOffWords{{{0, "off"}, {6, "on"}}};

/// Engineering units of a pulse.
inline constexpr SensibleRange kPulseWeight{0, 1e6};

}  // namespace ostrel
