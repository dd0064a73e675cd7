#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "link/Comms.h"
#include "model/DeviceConf.h"
#include "model/DeviceInfo.h"
#include "model/RealTimeData.h"
#include "model/TargetProfile.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/EventLoop.h"

namespace ostrel {

/// What all tools share: the session of one configurator, and who asks the operator.
struct ToolContext {
  Comms& comms;
  Dialogs& dialogs;
  const TargetProfile& profile;
  const TotalCounts& totals;
  const bool& Connected;
  const RealTimeData& live;
  const DeviceInfo& info;
  const DeviceConf& conf;
  EventLoop& loop;
  const Clock& clock;
  /// The text in the language in use.
  std::function<std::string(std::string_view text)> Translate;
  /// Opens a file to which rows are added as they come, in place of what it held; null when it may
  /// not be written, which `why` tells. Set by a face.
  std::function<std::unique_ptr<std::ostream>(const std::string& path, std::string& why)>
      openRecording{};
};

}  // namespace ostrel
