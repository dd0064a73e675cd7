#pragma once

#include <string_view>

namespace ostrel {

/// Starting other programs; injected because a test must not.
class Processes {
 public:
  virtual ~Processes() = default;
  /// Starts a command line in a normal window and does not wait. False when it cannot be started.
  virtual bool Start(std::string_view commandLine) = 0;
};

}  // namespace ostrel
