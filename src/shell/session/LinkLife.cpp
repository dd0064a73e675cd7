#include "shell/session/LinkLife.h"

#include "link/Comms.h"

namespace ostrel {
namespace {

constexpr Duration kOldestAnswer = std::chrono::seconds(5);
/// So long a question may be out before the age of the last answer counts against the logger: it
/// may have rested for long.
constexpr Duration kThinkingTime = std::chrono::seconds(1);

/// A long dialogue has stretches in which no answer is due; its dialogue knows them.
bool IsSilent(const Comms& comms, SessionPhase phase) {
  if (IsLongDialogue(phase)) return comms.SilentFor() > kOldestAnswer;
  return comms.SinceAnswer() > kOldestAnswer && comms.UnansweredFor() > kThinkingTime;
}

LinkHealth HealthOf(const Comms& comms, SessionPhase phase) {
  if (comms.LineLost()) return LinkHealth::Lost;
  if (IsSilent(comms, phase)) return LinkHealth::Silent;
  const bool isFresh = IsLongDialogue(phase) || comms.SinceAnswer() <= kOldestAnswer;
  return isFresh ? LinkHealth::Alive : LinkHealth::Resting;
}

}  // namespace

LinkLife LifeOf(const Comms& comms, bool connected, SessionPhase phase) {
  if (!connected) return {};
  return {HealthOf(comms, phase), comms.SinceAnswer()};
}

std::optional<Phrase> WhyWritingRests(const LinkLife& life) {
  switch (life.health) {
    case LinkHealth::NoSession:
      return Phrase{"nothing can be written without a session"};
    case LinkHealth::Silent:
      return Phrase{"nothing was sent, since the logger has not answered for %1 s",
                    {std::to_string(life.sinceAnswer / std::chrono::seconds(1))}};
    case LinkHealth::Lost:
      return Phrase{"nothing was sent, since the line to the logger is lost"};
    case LinkHealth::Alive:
    case LinkHealth::Resting:
      break;
  }
  return {};
}

}  // namespace ostrel
