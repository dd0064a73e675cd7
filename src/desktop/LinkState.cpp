#include "desktop/LinkState.h"

#include "desktop/Words.h"
#include "shell/Configurator.h"

namespace ostrel {
namespace {

constexpr int kWorthTelling = 2;  // seconds

LinkState::Kind KindOf(Configurator& configurator) {
  if (!configurator.Connected)
    return configurator.comms.PortOpen() ? LinkState::Kind::Detecting : LinkState::Kind::Idle;
  switch (configurator.session.Running()) {
    case TransferKind::Reading:
      return LinkState::Kind::Reading;
    case TransferKind::Writing:
      return LinkState::Kind::Writing;
    case TransferKind::None:
      break;
  }
  return LinkState::Kind::Open;
}

QString KindWords(LinkState::Kind kind) {
  switch (kind) {
    case LinkState::Kind::Idle:
      return Words::tr("Idle");
    case LinkState::Kind::Detecting:
      return Words::tr("Detecting");
    case LinkState::Kind::Open:
      return Words::tr("Open", "the state of the link");
    case LinkState::Kind::Reading:
      return Words::tr("Reading");
    case LinkState::Kind::Writing:
      return Words::tr("Writing");
  }
  return {};
}

}  // namespace

LinkState LinkStateOf(Configurator& configurator) {
  const auto silent =
      std::chrono::duration_cast<std::chrono::seconds>(configurator.comms.SilentFor()).count();
  return {KindOf(configurator), silent >= kWorthTelling ? static_cast<int>(silent) : 0};
}

QString LinkStateWords(const LinkState& state) {
  const QString words = KindWords(state.kind);
  if (state.silentSeconds == 0) return words;
  return Words::tr("%1, silent for %2 s").arg(words).arg(state.silentSeconds);
}

}  // namespace ostrel
