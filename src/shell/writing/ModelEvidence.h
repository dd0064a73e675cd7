#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "blocks/Clearing.h"
#include "model/DeviceConf.h"
#include "model/TargetProfile.h"

namespace ostrel {

// What a logger tells of its model, without being asked for it.

/// Display name of the model that the greeting of a logger names; empty when it names none.
std::string_view ModelInGreeting(std::string_view greeting);

/// Display names of the models that have every channel of which a download has brought anything.
/// `profile` is the model that the download was made for.
std::vector<std::string> ModelsThatFit(const DeviceConf& held, const TargetProfile& profile,
                                       const Translation& translate);

}  // namespace ostrel
