#pragma once

#include <array>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/GeneralParameters.h"
#include "blocks/LineSection.h"
#include "blocks/Receiver.h"
#include "blocks/inputs/FlowMeters.h"
#include "link/Statement.h"

namespace ostrel {

// Sampling rates of the flow meters, in hertz.
inline constexpr std::int16_t kSlowSampling = 64;
inline constexpr std::int16_t kFastSampling = 256;

/// What all flow meters share: the sampling rate of a pressure logger, and the weights of their
/// pulses in the totalisers.
struct Sampling {
  static constexpr FieldMeta kRateMeta{"SAMPLERATE", "sampling rate in hertz"};
  static constexpr FieldMeta kWeightMeta{"TOTALRATIO", "weight of a pulse in the totaliser"};
  /// Weights that are emptied, and shown.
  static constexpr int kMeters = 8;

  static void Clear(DeviceConf& conf, const TargetProfile&, const Translation&);
  /// The weights stand in the sections of their meters, the rate in that of the general parameters.
  template <class Visit>
  static void Fields(auto& conf, const TargetProfile& profile, Visit& visit) {
    for (int meter = 0; meter < profile.CaudalCount; ++meter)
      AtRecord(FlowMeters::kSection, meter, visit)(kWeightMeta, conf.Caudal[meter].TOTALRATIO);
    if (profile.IsBQ) AtRecord(GeneralParameters::kSection, -1, visit)(kRateMeta, conf.SAMPLERATE);
  }
  static const std::array<LineSection, 2> kLines;

  /// 1 where the logger takes a sampling rate.
  static int Count(const Receiver& receiver) {
    return receiver.profile.IsBQ && receiver.Has(Feature::SampleRate) ? 1 : 0;
  }
  /// Adds the statement of the rate. The weights go with their meters.
  static void Compose(const DeviceConf& conf, const Receiver&, int, StatementList& out);
};

}  // namespace ostrel
