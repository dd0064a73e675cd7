#pragma once

#include <cstdint>
#include <string_view>

namespace ostrel {

/// What is wrong with a board whose modem tells a state; empty for one that is well: 1 is
/// registered, and codes beyond the table count as registered, too. 0 is a modem that starts up.
std::string_view GsmFailure(std::int16_t state);

}  // namespace ostrel
