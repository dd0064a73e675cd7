#pragma once

#include "platform/Dialogs.h"
#include "platform/Processes.h"

namespace ostrel {

/// Starts programs; where a help page is asked for that the installation does not have, says so.
class HelpProcesses final : public Processes {
 public:
  /// `real` starts what is there.
  explicit HelpProcesses(Processes& real) : real_(real) {}

  bool Start(std::string_view commandLine) override;

  /// Asks nothing, only tells; set when the dialogs stand.
  Dialogs* dialogs = nullptr;

 private:
  Processes& real_;
};

}  // namespace ostrel
