#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"

namespace ostrel {

/// The voice-call list of a configuration. Neither a download nor an upload carries it: it has a
/// dialogue of its own.
struct VoiceNumbers {
  static constexpr SectionMeta kSection{"AUT_VOZ", "voice-call list", ""};

  /// Empties numbers and macro. The acknowledgement stays: it stands in files alone, so that no
  /// reading could bring it back.
  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile&, Visit& visit) {
    Describe(conf.AutVoz, AtRecord(kSection, -1, visit));
  }
  static constexpr std::array<LineSection, 0> kLines{};
  /// No reading of a configuration brings the list.
  static void AsSent(DeviceConf& read, const DeviceConf& sent, const Receiver&) {
    read.AutVoz = sent.AutVoz;
  }
};

}  // namespace ostrel
