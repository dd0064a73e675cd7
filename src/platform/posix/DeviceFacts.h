#pragma once

#include <string>

#include "platform/PortFacts.h"

namespace ostrel {

/// What the node of a device tells without opening it: its group, and who has it open. No path
/// leads to nothing.
PortFacts FactsOfDevice(const std::string& path);

}  // namespace ostrel
