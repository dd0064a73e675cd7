#include "desktop/TransferWatch.h"

#include <utility>

namespace ostrel {

void TransferWatch::Look(TimePoint now) {
  const TransferKind kind = configurator_.session.Running();
  if (kind != running_) Begin(now, kind);
  const ProgressBar& bar = configurator_.general.Session().PBar;
  // A full bar says that the transfer is over, not how many steps it had.
  if (Running() && bar.Value() < bar.Maximum() && bar.Value() != time_.Done())
    time_.Step(now, bar.Value());
}

void TransferWatch::Begin(TimePoint now, TransferKind kind) {
  running_ = kind;
  time_.Start(now, kind == TransferKind::Writing
                       ? static_cast<int>(configurator_.comms.ComposeStatements().size())
                       : records_.Expected(configurator_.profile.TargetType));
}

void TransferWatch::Ended(const TransferEnd& end) {
  const TransferKind watched = std::exchange(running_, TransferKind::None);
  if (end.done && end.kind == TransferKind::Reading && watched == end.kind)
    records_.Keep(configurator_.profile.TargetType, time_.Done());
}

}  // namespace ostrel
