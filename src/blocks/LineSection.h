#pragma once

#include <string_view>

#include "link/LineReader.h"
#include "model/DeviceConf.h"
#include "model/DeviceInfo.h"

namespace ostrel {

/// How the lines of one key of the configuration stream are read into a configuration. An index
/// beyond its array leaves by `BoundFailure`.
struct LineSection {
  std::string_view key;
  void (*read)(LineReader& line, DeviceConf& conf, const DeviceInfo& info);
};

}  // namespace ostrel
