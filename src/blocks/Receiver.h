#pragma once

#include <cstdint>

#include "model/Features.h"
#include "model/TargetProfile.h"

namespace ostrel {

/// A firmware that can do everything.
inline constexpr std::int32_t kEveryFeature = -1;

/// The logger that statements are made for: its model, and what its firmware can do.
struct Receiver {
  const TargetProfile& profile;
  std::int32_t features = 0;  ///< as the logger reports them

  bool Has(Feature feature) const { return ostrel::Has(features, feature); }
};

}  // namespace ostrel
