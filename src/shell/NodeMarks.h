#pragma once

#include <string_view>

#include "model/DeviceConf.h"

namespace ostrel {

/// Whether the tree shows a node in red: that of an expansion input which is in use.
bool IsRedNode(std::string_view key, const DeviceConf& conf);

}  // namespace ostrel
