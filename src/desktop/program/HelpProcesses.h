#pragma once

#include <string>

#include "platform/Dialogs.h"
#include "platform/Processes.h"

namespace ostrel {

/// Starts programs. Where a help page is asked for that was not supplied, our own page of that word
/// is shown, in the window's language; where there is none either, says so.
class HelpProcesses final : public Processes {
 public:
  /// `real` starts what is there; `dialogs` only tells. `ownPages` is the folder of our own pages.
  HelpProcesses(Processes& real, Dialogs& dialogs, std::string ownPages)
      : real_(real), dialogs_(dialogs), ownPages_(std::move(ownPages)) {}

  bool Start(std::string_view commandLine) override;

 private:
  Processes& real_;
  Dialogs& dialogs_;
  std::string ownPages_;
};

}  // namespace ostrel
