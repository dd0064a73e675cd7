#pragma once

#include "pages/AlarmChannelPage.h"

namespace ostrel {

/// A flag of the logger: the alarm that its change raises, and nothing else.
class FlagChannel {
 public:
  using Record = ConfFlag;
  static constexpr std::string_view kForm = "Flags";
  static constexpr std::string_view kTitle = "Alarma en flag ";
  static constexpr std::string_view kHelp = "Flag";
  static constexpr std::string_view kSection = "FLAG";
  static constexpr int kChannels = 16;
  static constexpr int kConfigsShown = 1;

  FlagChannel(Form&, const PageContext& context) : context_(context) {}

  static ThresholdBoxes Thresholds() { return {}; }
  static auto& Records(DeviceConf& conf) { return conf.Flag; }
  static void ClearFields(ConfFlag&) {}
  void Load(const ConfFlag&) {}
  void Save(ConfFlag&) const {}
  void AfterClear() {}
  bool Activate() { return false; }
  void CheckNumbers() {}
  std::vector<WireSection> WireSections();
  std::vector<WireBlock> WireBlocks();

 private:
  const PageContext& context_;
};

using Flags = AlarmChannelPage<FlagChannel>;

}  // namespace ostrel
