#include "desktop/session/LinkState.h"

#include <algorithm>

#include "desktop/forms/Words.h"
#include "shell/Configurator.h"
#include "shell/session/RemainingTime.h"

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
    case SessionPhase::Updating:
      return Words::tr("Updating");
    case SessionPhase::Closing:
      return Words::tr("Closing");
  }
  return {};
}

RequestWait WaitOf(const Configurator& configurator) {
  if (!configurator.session.RequestWaits()) return RequestWait::None;
  return configurator.Connected ? RequestWait::GeneralPage : RequestWait::Session;
}

/// The age of an answer that nobody waits for, in steps of four times the one before up to a
/// minute, then of a minute: words that change each second would be laid out and drawn each second,
/// for as long as the session rests.
Duration InSteps(Duration age) {
  constexpr Duration kMinute = std::chrono::minutes(1);
  if (age >= kMinute) return age - age % kMinute;
  Duration step = std::chrono::seconds(5);
  while (4 * step <= age) step *= 4;
  return std::min(step, age);
}

/// How a session stands in which no dialogue runs.
QString OpenWords(const LinkLife& life) {
  switch (life.health) {
    case LinkHealth::NoSession:
    case LinkHealth::Alive:
      break;
    case LinkHealth::Resting:
      return Words::tr("Open, last answer %1 ago")
          .arg(ToQt(DurationText(InSteps(life.sinceAnswer))));
    case LinkHealth::Silent:
      return Words::tr("Silent, last answer %1 ago").arg(ToQt(DurationText(life.sinceAnswer)));
    case LinkHealth::Lost:
      return Words::tr("Line lost");
  }
  return PhaseWords(SessionPhase::Open);
}

QString BusyWords(const LinkState& state) {
  if (state.list == ListWork::Reading) return Words::tr("Reading the voice-call list");
  if (state.list == ListWork::Writing) return Words::tr("Writing the voice-call list");
  return PhaseWords(state.phase);
}

QString WithStep(const QString& words, int step) {
  constexpr int kSteps = 3;
  return step > 0 ? Words::tr("%1, step %2 of %3").arg(words).arg(step).arg(kSteps) : words;
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
          .life = configurator.session.Life(),
          .silentSeconds = silent >= kWorthTelling ? static_cast<int>(silent) : 0,
          .wait = WaitOf(configurator),
          .list = configurator.session.VoiceList()};
}

QString LinkStateWords(const LinkState& state) {
  const bool isOpen = state.phase == SessionPhase::Open && state.list == ListWork::None;
  const QString standing = isOpen ? OpenWords(state.life) : BusyWords(state);
  const QString words = WithStep(WithWait(standing, state.wait), state.step);
  if (state.silentSeconds == 0 || (isOpen && state.life.health != LinkHealth::Alive)) return words;
  return Words::tr("%1, silent for %2 s").arg(words).arg(state.silentSeconds);
}

}  // namespace ostrel
