#pragma once

#include <optional>
#include <string>

#include "blocks/Clearing.h"
#include "model/DeviceConf.h"
#include "model/TargetProfile.h"
#include "platform/Files.h"

namespace ostrel {

/// A configuration with the model that it is of.
struct ModelConfiguration {
  TargetProfile profile;
  DeviceConf conf;
};

/// Reads a configuration file beside the present configuration, no question asked. `present` is
/// the model in use, whose counts stay where the file's model does not set them. Nothing when the
/// file is no configuration of any model.
std::optional<ModelConfiguration> ReadConfiguration(Files& files, const std::string& path,
                                                    const TargetProfile& present,
                                                    const Translation& translate);

/// Writes a configuration to a path, whole or not at all.
FileResult WriteConfiguration(Files& files, const std::string& path, const DeviceConf& conf,
                              const TargetProfile& profile);

}  // namespace ostrel
