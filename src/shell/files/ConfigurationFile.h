#pragma once

#include <optional>
#include <string>
#include <string_view>

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

/// The name of the model that a file's stamp leads to; empty when it leads to none.
std::string_view ModelOfStamp(std::string_view stamp);

/// Reads a configuration file beside the present configuration, no question asked. `present` is
/// the model in use, whose counts stay where the file's model does not set them. Nothing when the
/// file is no configuration of any model.
std::optional<ModelConfiguration> ReadConfiguration(Files& files, const std::string& path,
                                                    const TargetProfile& present,
                                                    const Translation& translate);

/// The same of the octets of a file.
std::optional<ModelConfiguration> ReadContent(std::string octets, const TargetProfile& present,
                                              const Translation& translate);

/// The octets of the file that a configuration is saved as.
std::string ContentOf(Files& files, const DeviceConf& conf, const TargetProfile& profile);

}  // namespace ostrel
