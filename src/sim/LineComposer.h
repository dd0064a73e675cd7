#pragma once

#include <string>
#include <vector>

#include "sim/Configuration.h"

namespace ostrel::sim {

/// The configuration as records "KEY,fields" in the order of reporting.
std::vector<std::string> ConfigurationRecords(const Configuration& conf, const Identity& self);

}  // namespace ostrel::sim
