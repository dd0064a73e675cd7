#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Time.h"

namespace ostrel {

/// What an upload puts on the line, and how long that takes at 9600 bit/s when nothing is refused.
struct UploadPlan {
  std::size_t octets = 0;  ///< of all frames, the closing one included
  Duration duration{};
};

/// The plan of an upload of these statements to a logger of these features.
UploadPlan PlanUpload(const std::vector<std::string>& statements, std::int32_t features);

/// About how long a download of so many records takes at 9600 bit/s.
Duration ReadingTime(int records);

}  // namespace ostrel
