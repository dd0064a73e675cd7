#include "shell/UploadPlan.h"

#include "base/Utf8.h"
#include "model/Features.h"

namespace ostrel {
namespace {

constexpr std::int64_t kOctetsPerSecond = 960;
/// "#", two digits of checksum, ";", the command, three digits of number, carriage return.
constexpr std::size_t kFrameOctets = 4 + 2 + 3 + 1;
constexpr Duration kFastWindow = std::chrono::milliseconds(10);
constexpr Duration kWindow = std::chrono::milliseconds(200);

}  // namespace

UploadPlan PlanUpload(const std::vector<std::string>& statements, std::int32_t features) {
  UploadPlan plan{.octets = kFrameOctets};
  for (const std::string& statement : statements)
    plan.octets += kFrameOctets + CharacterCount(statement);
  const Duration window = Has(features, Feature::FastRefusal) ? kFastWindow : kWindow;
  const Duration line =
      Duration(std::chrono::seconds(1)) * static_cast<std::int64_t>(plan.octets) / kOctetsPerSecond;
  plan.duration = line + window * static_cast<std::int64_t>(statements.size());
  return plan;
}

}  // namespace ostrel
