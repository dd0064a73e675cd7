#include "desktop/TransferWatch.h"

#include <utility>

#include "shell/Configurator.h"

namespace ostrel {
std::optional<LinkState::Kind> TransferWatch::Look(TimePoint now) {
  const LinkState::Kind kind = LinkStateOf(configurator_).kind;
  const bool transfers = kind == LinkState::Kind::Reading || kind == LinkState::Kind::Writing;
  const ProgressBar& bar = configurator_.general.Session().PBar;
  if (transfers && !running_) Begin(now, kind);
  if (transfers) {
    // A full bar says that the transfer is over, not how many steps it had.
    if (bar.Value() < bar.Maximum() && bar.Value() != time_.Done()) time_.Step(now, bar.Value());
    return {};
  }
  const auto ended = std::exchange(running_, {});
  if (ended == LinkState::Kind::Reading &&
      configurator_.comms.Fault().kind == LinkFault::Kind::None)
    records_.Keep(configurator_.profile.TargetType, time_.Done());
  return ended;
}

void TransferWatch::Begin(TimePoint now, LinkState::Kind kind) {
  running_ = kind;
  const bool isUpload = kind == LinkState::Kind::Writing;
  time_.Start(now, isUpload ? static_cast<int>(configurator_.comms.ComposeStatements().size())
                            : records_.Expected(configurator_.profile.TargetType));
}

}  // namespace ostrel
