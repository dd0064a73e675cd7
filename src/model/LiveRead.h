#pragma once

#include <chrono>

namespace ostrel {

/// The answers that bring live values. The values of one come together, or not at all.
enum class LiveAnswer {
  Modules0,
  Modules32,
  Modules64,
  Modbus,
  Counters,
  Flows,
  Masks,
  Math,
  MathRaw,
  Aux
};
inline constexpr int kLiveAnswers = 10;

/// The answer that brings an expansion input: each brings a run of them.
constexpr LiveAnswer AnswerOfModule(int index) {
  constexpr int kModulesAnAnswer = 32;
  return static_cast<LiveAnswer>(static_cast<int>(LiveAnswer::Modules0) + index / kModulesAnAnswer);
}

/// After how many rounds without it a value counts as stale.
inline constexpr int kRoundsToStale = 2;

/// What became of one answer in the rounds of a session.
struct LiveRead {
  bool hasCome = false;            ///< at least once
  int missed = 0;                  ///< rounds in which it failed since it came last
  std::chrono::milliseconds at{};  ///< local wall time at which it came last

  bool IsStale() const { return !hasCome || missed >= kRoundsToStale; }

  void Note(bool came, std::chrono::milliseconds now) {
    missed = came ? 0 : missed + 1;
    if (!came) return;
    hasCome = true;
    at = now;
  }
};

}  // namespace ostrel
