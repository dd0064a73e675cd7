// A day of live rounds: what it takes to keep it, and to thin its curves for a chart. The counter
// "octets" is the memory after 24 h of 60 values, twice a second; "hours" is how much of it is
// there.

#include <benchmark/benchmark.h>

#include <cmath>

#include "shell/plot/LiveHistory.h"

namespace ostrel {
namespace {

constexpr int kStates = 29;   // inputs, outputs and flags
constexpr int kNumbers = 31;  // the rest of 60
constexpr int kRoundsADay = 2 * 86'400;
constexpr int kPixels = 1200;
constexpr LiveRead kCame{.hasCome = true, .missed = 0, .at = {}};

void AddRound(LiveHistory& history, LiveRound& round, int number) {
  round.at.local = std::chrono::milliseconds(500) * number;
  for (LiveValue& value : round.values)
    if (value.on)
      value.on = number / 40 % 2 == 0;
    else
      value.number = std::sin(number / 900.0 + value.id.index) * 10 + number % 7;
  history.Add(round);
}

LiveRound MakeRound() {
  LiveRound round;
  for (int i = 0; i < kStates; ++i)
    round.values.push_back({{LiveKind::Flag, i}, "", "", {}, true, kCame});
  for (int i = 0; i < kNumbers; ++i)
    round.values.push_back({{LiveKind::Flow, i}, "", "m3/h", 0., {}, kCame});
  return round;
}

void KeepADay(benchmark::State& state) {
  LiveRound round = MakeRound();
  for ([[maybe_unused]] const auto _ : state) {
    LiveHistory history;
    for (int number = 0; number < kRoundsADay; ++number) AddRound(history, round, number);
    state.counters["octets"] = static_cast<double>(history.Octets());
    state.counters["hours"] = static_cast<double>(history.Span()->Length().count()) / 3'600'000;
  }
}
BENCHMARK(KeepADay)->Unit(benchmark::kMillisecond)->Iterations(1);

/// Six curves of a whole day, as each frame of a pan needs them.
void ThinSixCurvesOfADay(benchmark::State& state) {
  LiveHistory history;
  LiveRound round = MakeRound();
  for (int number = 0; number < kRoundsADay; ++number) AddRound(history, round, number);
  for ([[maybe_unused]] const auto _ : state)
    for (int i = 0; i < 6; ++i)
      benchmark::DoNotOptimize(history.Curve({LiveKind::Flow, i}, *history.Span(), kPixels));
}
BENCHMARK(ThinSixCurvesOfADay)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ostrel
