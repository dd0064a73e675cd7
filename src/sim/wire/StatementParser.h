#pragma once

#include <string>
#include <string_view>

#include "sim/Configuration.h"

namespace ostrel::sim {

/// Applies one statement of an upload to a configuration. Returns why it is refused, an empty text
/// when it is taken; a refused statement may leave the configuration half changed.
std::string ApplyStatement(std::string_view statement, const Identity& self, Configuration& conf);

}  // namespace ostrel::sim
