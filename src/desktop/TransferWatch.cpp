#include "desktop/TransferWatch.h"

#include <utility>

#include "platform/EventLoop.h"

namespace ostrel {

TransferWatch::TransferWatch(Configurator& configurator, Settings& settings)
    : configurator_(configurator),
      records_(settings),
      subscription_(configurator.comms.OnProgress([this](const auto& told) { Follow(told); })) {}

void TransferWatch::Follow(const Progress& progress) {
  const TimePoint now = configurator_.context.platform.loop.Now();
  if (progress.stage == Progress::Stage::Begun) {
    running_ = configurator_.session.Running();
    time_.Start(now, Expected(running_));
  } else if (progress.stage == Progress::Stage::Step) {
    time_.Step(now, progress.step);
  }
}

int TransferWatch::Expected(TransferKind kind) const {
  return kind == TransferKind::Writing
             ? static_cast<int>(configurator_.comms.ComposeStatements().size())
             : records_.Expected(configurator_.profile.TargetType);
}

void TransferWatch::Ended(const TransferEnd& end) {
  const TransferKind watched = std::exchange(running_, TransferKind::None);
  if (end.done && end.kind == TransferKind::Reading && watched == end.kind)
    records_.Keep(configurator_.profile.TargetType, time_.Done());
}

}  // namespace ostrel
