#pragma once

#include <string>
#include <vector>

#include "model/DeviceConf.h"

namespace ostrel {

/// Keys of the nodes that the tree shows in red: those of the expansion inputs that are in use.
std::vector<std::string> RedNodes(const DeviceConf& conf);

}  // namespace ostrel
