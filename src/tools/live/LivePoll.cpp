#include "tools/live/LivePoll.h"

#include <algorithm>

namespace ostrel {

LivePoll::LivePoll(ToolContext& context) : context_(context) {}

LivePoll::~LivePoll() { context_.platform.loop.Cancel(timer_); }

std::shared_ptr<const void> LivePoll::KeepGoing() {
  std::shared_ptr<const void> kept = kept_.lock();
  if (!kept) kept_ = kept = std::make_shared<const char>();
  if (timer_ == 0)
    timer_ = context_.platform.loop.Every(kLivePeriod, "live rounds", [this] { Tick(); });
  return kept;
}

void LivePoll::Tick() {
  if (kept_.expired()) return context_.platform.loop.Cancel(std::exchange(timer_, 0));
  Read();
}

void LivePoll::Read() {
  if (!context_.Connected || (Rests && Rests())) return;
  Background& reading = context_.comms.Reading();
  std::optional<LiveRound> round;
  reading.Run(Background::Cut::BetweenMessages, [&] {
    context_.comms.ReadRealTime();
    if (reading.IsCut()) return;
    round = Present();
    context_.comms.ReadDeviceRTC();
  });
  if (!round) return;
  told_ = context_.platform.loop.Now();
  rounds_.Tell(*round);
}

bool LivePoll::IsPresent() const {
  const bool isOfThisSession =
      std::ranges::any_of(context_.live.reads, [](const LiveRead& read) { return read.hasCome; });
  if (!context_.Connected || !told_ || !isOfThisSession || (Rests && Rests())) return false;
  if (context_.comms.Reading().Runs()) return true;
  return !context_.comms.LinkBusy && context_.platform.loop.Now() - *told_ <= kLivePresent;
}

LiveRound LivePoll::Present() const {
  return TakeRound(context_.live, context_.profile, context_.info,
                   WallTimeOf(context_.platform.clock));
}

}  // namespace ostrel
