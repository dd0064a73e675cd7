#include "link/UploadPlan.h"

#include "base/Utf8.h"
#include "link/LinkTimes.h"
#include "link/dialogues/NumberedStatements.h"

namespace ostrel {
namespace {

/// "#", two digits of checksum, ";", the command, three digits of number, carriage return.
constexpr std::size_t kFrameOctets = 4 + 2 + 3 + 1;

}  // namespace

UploadPlan PlanUpload(const std::vector<std::string>& statements, std::int32_t features) {
  UploadPlan plan{.octets = kFrameOctets};
  for (const std::string& statement : statements)
    plan.octets += kFrameOctets + CharacterCount(statement);
  const std::chrono::milliseconds window{RefusalWindowMs(features)};
  plan.duration = LineTime(plan.octets) + window * static_cast<std::int64_t>(statements.size());
  return plan;
}

Duration ReadingTime(int records) {
  constexpr std::size_t kUsualOctets = 45;  // of a record's frame
  return LineTime(kUsualOctets * static_cast<std::size_t>(records));
}

}  // namespace ostrel
