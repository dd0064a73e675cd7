#pragma once

#include <string>
#include <vector>

#include "model/TargetProfile.h"
#include "platform/Files.h"

namespace ostrel {

/// What stands in a file at `path` that a configuration of the model does not write: each as
/// "[SECTION] KEY", in the order of the file. Saving there would lose it. Empty where nothing
/// stands.
std::vector<std::string> ForeignKeys(Files& files, const std::string& path,
                                     const TargetProfile& profile);

/// The first few of these in one line, and how many more there are.
std::string ForeignKeysText(const std::vector<std::string>& keys);

}  // namespace ostrel
