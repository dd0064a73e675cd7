#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "link/LineReader.h"
#include "model/DeviceInfo.h"
#include "model/RealTimeData.h"
#include "model/TargetProfile.h"

namespace ostrel {

/// One question to a logger, and how its answer is read.
struct LiveRequest {
  std::string message;
  std::string_view head;  ///< the first three characters of the answer
  bool applies;           ///< whether this model and firmware know it
  std::function<void(LineReader&)> fill;
  LiveRead* read = nullptr;  ///< where it is noted whether live values came; null for other answers
};

/// The request whose answer carries the masks of inputs, outputs and flags.
inline constexpr std::string_view kMasksRequest = "#23";

/// The totals of the counters.
LiveRequest TotalsRequest(TotalCounts& totals);

/// What fetches names and units, in the order of asking.
std::vector<LiveRequest> NameRequests(RealTimeData& live, const TargetProfile& profile,
                                      const DeviceInfo& info);

/// What refreshes the live values, in the order of asking.
std::vector<LiveRequest> ValueRequests(RealTimeData& live, const TargetProfile& profile,
                                       const DeviceInfo& info);

}  // namespace ostrel
