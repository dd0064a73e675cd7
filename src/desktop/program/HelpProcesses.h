#pragma once

#include "platform/Dialogs.h"
#include "platform/Processes.h"

namespace ostrel {

/// Starts programs; where a help page is asked for that the installation does not have, says so.
class HelpProcesses final : public Processes {
 public:
  /// `real` starts what is there; `dialogs` only tells.
  HelpProcesses(Processes& real, Dialogs& dialogs) : real_(real), dialogs_(dialogs) {}

  bool Start(std::string_view commandLine) override;

 private:
  Processes& real_;
  Dialogs& dialogs_;
};

}  // namespace ostrel
