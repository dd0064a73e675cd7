#pragma once

#include <array>

#include "pages/ChannelPage.h"

namespace ostrel {

/// A flag of the logger: the alarm that its change raises, and nothing else.
class FlagChannel {
 public:
  using Record = ConfFlag;
  static constexpr ChannelTraits kTraits{.page = PageId::Flags,
                                         .form = "Flags",
                                         .title = "Alarma en flag ",
                                         .help = "Flag",
                                         .channels = 16};
  static constexpr std::array<ThresholdBox, 0> kThresholds{};

  FlagChannel(Form&, const PageContext&) {}

  static auto& Records(DeviceConf& conf) { return conf.Flag; }
  void Load(const ConfFlag&) {}
  void Save(ConfFlag&) const {}
  void CheckNumbers() {}
};

using Flags = ChannelPage<FlagChannel>;

}  // namespace ostrel
