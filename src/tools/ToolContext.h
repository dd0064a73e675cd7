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
#include "platform/Files.h"
#include "platform/Platform.h"

namespace ostrel {

/// What all tools share: the session of one configurator, and who asks the operator.
struct ToolContext {
  const Platform& platform;
  Comms& comms;
  Dialogs& dialogs;
  const TargetProfile& profile;
  const TotalCounts& totals;
  const bool& Connected;
  const RealTimeData& live;
  const DeviceInfo& info;
  const DeviceConf& conf;
  std::string& ConfFilePath;
  /// The text in the language in use.
  std::function<std::string(std::string_view text)> Translate;
  /// Opens the help page of a word.
  std::function<void(std::string_view word)> ShowHelp;
  /// Opens or closes the session with the next tick.
  std::function<void()> IniCom_Click;
  /// Replaces the logger's firmware as a phase of the session.
  std::function<LinkResult(const FirmwareFiles&, const FirmwareDialogue::OnStage&)> SendFirmware;
  /// Opens a file to which is added as things come. Null when it cannot be, which `why` tells.
  OpenLogFile OpenLog;
  /// Opens a file to which rows are added as they come, in place of what it held; null when it may
  /// not be written, which `why` tells.
  OpenLogFile OpenRecording;
};

}  // namespace ostrel
