#include "link/Comms.h"
#include "link/LiveRequests.h"

namespace ostrel {
namespace {

constexpr int kAttempts = 3;
constexpr int kMaskBits = 16;

std::string OutputMessage(int index, bool on) {
  return (on ? "#47" : "#48") + std::to_string(index);
}

std::string SettingMessage(std::string_view command, std::int16_t index, std::int32_t value) {
  return std::string(command) + std::to_string(index) + "=" + std::to_string(value);
}

}  // namespace

/// Asks once. A missing or wrong answer leaves the values as they were.
bool Comms::Fetch(const LiveRequest& request) {
  if (!request.applies || !Ask(request.message) || !RxLine.starts_with(request.head)) return false;
  LineReader line(RxLine);
  request.fill(line);
  return true;
}

bool Comms::ReadTotalCount() {
  if (LinkBusy) return false;
  const Dialogue dialogue(*this);
  const Limit limit(*this, TimeFor(kAttempts));
  const LiveRequest request = TotalsRequest(records_.totals);
  for (int attempt = 0; attempt < kAttempts && Alive(); ++attempt)
    if (Fetch(request)) return true;
  return false;
}

bool Comms::ReadIOParameter() {
  if (LinkBusy) return false;
  const Dialogue dialogue(*this);
  const auto requests = NameRequests(records_.live, records_.profile, records_.info);
  const Limit limit(*this, TimeFor(requests.size()));
  for (const LiveRequest& request : requests) Fetch(request);
  return !dialogue.Cut();
}

bool Comms::ReadRealTime() {
  if (LinkBusy) return false;
  const Dialogue dialogue(*this);
  const auto requests = ValueRequests(records_.live, records_.profile, records_.info);
  const Limit limit(*this, TimeFor(requests.size()));
  bool hasMasks = false;
  for (const LiveRequest& request : requests)
    if (Fetch(request) && request.message == kMasksRequest) hasMasks = true;
  return hasMasks && !dialogue.Cut();
}

bool Comms::SetOutput(std::int16_t mask) {
  if (LinkBusy) return false;
  const Dialogue dialogue(*this);
  const Limit limit(*this, TimeFor(static_cast<std::size_t>(kMaskBits)));
  const auto bits = static_cast<std::uint16_t>(mask);
  for (int i = 0; i < records_.profile.OutputCount && i < kMaskBits; ++i)
    Ask(OutputMessage(i, (bits >> i & 1) != 0));
  return !dialogue.Cut();
}

bool Comms::SetSingleOutput(std::int16_t index, bool on) {
  if (LinkBusy) return false;
  const Dialogue dialogue(*this);
  const Limit limit(*this, TimeFor(1));
  Ask(OutputMessage(index, on));
  return !dialogue.Cut();
}

bool Comms::SetTotalCNT(std::int16_t index, std::int32_t value) {
  return Confirm(SettingMessage("#41CNT", index, value), "#BE1");
}

bool Comms::SetExpValue(std::int16_t index, std::int32_t value) {
  return Confirm(SettingMessage("#41EXP", index, value), "#BE1");
}

}  // namespace ostrel
