// How long a round of live values takes on a line of 960 octets a second, against what its octets
// and the quiet ahead of each request alone take.

#include <benchmark/benchmark.h>

#include "BenchWorld.h"

namespace ostrel {
namespace {

/// Argument: the model by its place in `sim::kModels`.
void PacedLiveRound(benchmark::State& state) {
  constexpr Duration kQuiet = std::chrono::milliseconds(100);  // ahead of a request
  for ([[maybe_unused]] const auto _ : state) {
    BenchWorld world(sim::kModels[static_cast<std::size_t>(state.range(0))], true);
    Configurator& program = world.program;
    if (!program.session.Open(BenchWorld::kPort, "") || !program.session.CompleteInfo())
      return state.SkipWithError("no session");
    Duration floor{};
    int requests = 0;
    world.logger->OnExchange([&](const sim::Exchange& exchange) {
      ++requests;
      floor += kQuiet + LineTime(BenchWorld::FrameOctets(exchange.request.size() - 1)) +
               LineTime(BenchWorld::FrameOctets(exchange.reply.size() - 1));
    });
    const TimePoint start = world.loop.Now();
    program.livePoll.Read();
    const Duration took = world.loop.Now() - start;
    state.counters["requests"] = requests;
    state.counters["line_s"] = Seconds(took);
    state.counters["floor_s"] = Seconds(floor);
    state.counters["ratio"] = Seconds(took) / Seconds(floor);  // at most 1.05
  }
}
BENCHMARK(PacedLiveRound)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ostrel
