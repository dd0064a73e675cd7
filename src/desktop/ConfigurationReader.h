#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "shell/Comparison.h"

namespace ostrel {

/// What a file holds, read beside the present configuration without touching it.
struct FileContent {
  std::string model;  ///< display name of the model that the file is of
  std::vector<FieldLine> lines;
};

/// Reads a configuration file as the program itself would, no question asked. Nothing when it is no
/// configuration. `target` is the model to start from.
std::optional<FileContent> ReadConfiguration(const Platform& platform, const std::string& target,
                                             const std::string& path);

}  // namespace ostrel
