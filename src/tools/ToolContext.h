#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "link/Comms.h"
#include "model/RealTimeData.h"
#include "model/TargetProfile.h"
#include "platform/Dialogs.h"

namespace ostrel {

/// What all tools share: the session of one configurator, and who asks the operator.
struct ToolContext {
  Comms& comms;
  Dialogs& dialogs;
  const TargetProfile& profile;
  const TotalCounts& totals;
  const bool& Connected;
  /// The text in the language in use.
  std::function<std::string(std::string_view text)> Translate;
};

}  // namespace ostrel
