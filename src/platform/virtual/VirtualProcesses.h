#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Processes.h"

namespace ostrel {

/// Records command lines and starts nothing.
class VirtualProcesses final : public Processes {
 public:
  std::vector<std::string> started;  ///< each command line, whether it "started" or not
  bool fails = false;                ///< nothing can be started while set

  bool Start(std::string_view commandLine) override {
    started.emplace_back(commandLine);
    return !fails;
  }
};

}  // namespace ostrel
