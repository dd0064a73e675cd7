#include "link/Comms.h"

#include <algorithm>
#include <utility>

#include "link/WireText.h"

namespace ostrel {

Comms::Comms(const Platform& platform, const LinkRecords& records, LinkHooks hooks)
    : platform_(platform), records_(records), hooks_(std::move(hooks)), MainTimer_(platform.loop) {
  platform_.port.SetOnComm([this] {
    const bool changed = platform_.port.CommEvent() == kCommEventCarrier;
    if (changed && !platform_.port.CDHolding() && hooks_.carrierLost) hooks_.carrierLost();
  });
}

Comms::~Comms() {
  platform_.port.SetOnComm({});
  if (opened_) platform_.port.SetPortOpen(false);
}

void Comms::SetWire(std::vector<WireSection> sections, std::vector<WireBlock> blocks) {
  sections_.clear();
  // The first one of a key counts.
  for (WireSection& section : sections)
    sections_.try_emplace(std::string(section.key), std::move(section.read));
  blocks_ = std::move(blocks);
}

Duration Comms::SilentFor() const {
  if (!LinkBusy || !awaitedSince_) return Duration::zero();
  return platform_.loop.Now() - *awaitedSince_;
}

LinkFault Comms::FaultNow(LinkFault::Kind kind, int number, std::string text) const {
  if (heldOut_) kind = LinkFault::Kind::LineHeld;
  if (platform_.port.LineLost()) kind = LinkFault::Kind::LineLost;
  if (!PortOpen()) kind = LinkFault::Kind::PortClosed;
  return {kind, number, std::move(text)};
}

LinkFault Comms::WaitFault(int number) const {
  if (platform_.loop.Now() >= limit_) return FaultNow(LinkFault::Kind::OutOfTime, number);
  return FaultNow(damaged_ ? LinkFault::Kind::BadChecksum : LinkFault::Kind::Silence, number);
}

bool Comms::Fail(LinkFault::Kind kind, int number, std::string text) {
  fault_ = FaultNow(kind, number, std::move(text));
  return false;
}

bool Comms::FailWaiting(int number) {
  fault_ = WaitFault(number);
  return false;
}

void Comms::Note(std::string_view what, std::string_view text) const {
  if (!Trace) return;
  constexpr std::size_t kStampWidth = 9;
  std::string line = std::to_string(platform_.loop.Now() / std::chrono::milliseconds(1));
  if (line.size() < kStampWidth) line.insert(0, kStampWidth - line.size(), ' ');
  Trace(line.append(" ").append(what).append(MaskCode(text)));
}

Comms::Limit::Limit(Comms& comms, Duration span)
    : comms_(comms),
      former_(
          std::exchange(comms.limit_, std::min(comms.limit_, comms.platform_.loop.Now() + span))) {}

Duration Comms::TimeFor(std::size_t messages) const {
  constexpr int kAttempts = 3;
  constexpr Duration kLongestHold = std::chrono::seconds(10);
  return static_cast<int>(messages) * kAttempts * std::chrono::milliseconds(ReplyTimeout) +
         kLongestHold;
}

Comms::Dialogue::Dialogue(Comms& comms)
    : comms_(comms), wasBusy_(comms.LinkBusy), wasOpen_(comms.PortOpen()) {
  comms.LinkBusy = true;
  comms.heldOut_ = false;
  comms.awaitedSince_ = comms.platform_.loop.Now();
}

Comms::Dialogue::~Dialogue() {
  comms_.LinkBusy = wasBusy_;
  comms_.heldOut_ = false;
}

}  // namespace ostrel
