#include "desktop/window/LinkState.h"

#include "desktop/forms/Words.h"
#include "shell/Configurator.h"

namespace ostrel {
namespace {

constexpr int kWorthTelling = 2;  // seconds

QString PhaseWords(SessionPhase phase) {
  switch (phase) {
    case SessionPhase::Closed:
      return Words::tr("Idle");
    case SessionPhase::Opening:
      return Words::tr("Detecting");
    case SessionPhase::Open:
      return Words::tr("Open", "the state of the link");
    case SessionPhase::Reading:
      return Words::tr("Reading");
    case SessionPhase::Writing:
      return Words::tr("Writing");
    case SessionPhase::Closing:
      return Words::tr("Closing");
  }
  return {};
}

RequestWait WaitOf(const Configurator& configurator) {
  if (!configurator.session.RequestWaits()) return RequestWait::None;
  return configurator.Connected ? RequestWait::GeneralPage : RequestWait::Session;
}

QString WithWait(const QString& words, RequestWait wait) {
  switch (wait) {
    case RequestWait::None:
      break;
    case RequestWait::Session:
      return Words::tr("%1, a transfer waits for a session").arg(words);
    case RequestWait::GeneralPage:
      return Words::tr("%1, a transfer waits for the general page").arg(words);
  }
  return words;
}

}  // namespace

LinkState LinkStateOf(Configurator& configurator) {
  const auto silent =
      std::chrono::duration_cast<std::chrono::seconds>(configurator.comms.SilentFor()).count();
  return {.phase = configurator.session.State().phase,
          .silentSeconds = silent >= kWorthTelling ? static_cast<int>(silent) : 0,
          .wait = WaitOf(configurator)};
}

QString LinkStateWords(const LinkState& state) {
  const QString words = WithWait(PhaseWords(state.phase), state.wait);
  if (state.silentSeconds == 0) return words;
  return Words::tr("%1, silent for %2 s").arg(words).arg(state.silentSeconds);
}

}  // namespace ostrel
