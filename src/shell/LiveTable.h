#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "model/RealTimeData.h"
#include "model/TargetProfile.h"

namespace ostrel {

// The live values of a logger as lists, for those who show all of them.

/// One measured channel.
struct LiveMeasure {
  int index;
  std::variant<float, std::int32_t> value;
  std::string name, unit;
};

/// The measured channels of one kind.
struct LiveGroup {
  std::string_view key;
  std::string_view title;
  std::vector<LiveMeasure> measures;
};

/// States told by the bits of a mask, the lowest one first.
struct LiveStates {
  std::string_view key;
  std::string_view title;
  std::uint32_t mask;
  int count;
};

/// The kinds that a model with some firmware has.
std::vector<LiveGroup> LiveGroups(const RealTimeData& live, const TargetProfile& model,
                                  std::int32_t features);
std::vector<LiveStates> LiveStatesOf(const RealTimeData& live, const TargetProfile& model);

/// A value in figures.
std::string LiveText(const LiveMeasure& measure);

}  // namespace ostrel
