// How long transfers take on a line of 960 octets a second, against what the octets and the windows
// alone take; and how fast the program itself is when the line costs nothing.

#include <benchmark/benchmark.h>

#include <algorithm>

#include "BenchWorld.h"
#include "model/Features.h"

namespace ostrel {
namespace {

void Report(benchmark::State& state, Duration took, Duration ideal) {
  state.counters["line_s"] = Seconds(took);
  state.counters["ideal_s"] = Seconds(ideal);
  state.counters["ratio"] = Seconds(took) / Seconds(ideal);  // at most 1.02
}

/// Argument: the model by its place in `sim::kModels`.
sim::Model ModelOf(const benchmark::State& state) {
  return sim::kModels[static_cast<std::size_t>(state.range(0))];
}

void PacedDownload(benchmark::State& state) {
  for ([[maybe_unused]] const auto _ : state) {
    BenchWorld world(ModelOf(state), true);
    if (!world.program.session.Open(BenchWorld::kPort, ""))
      return state.SkipWithError("no session");
    const TimePoint start = world.loop.Now();
    if (!world.program.session.Download()) return state.SkipWithError("download");
    // The drain ahead of the request, the request, the stream.
    const Duration ideal = std::chrono::milliseconds(100) + LineTime(BenchWorld::FrameOctets(2)) +
                           LineTime(world.StreamOctets());
    Report(state, world.loop.Now() - start, ideal);
  }
}
BENCHMARK(PacedDownload)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);

void PacedUpload(benchmark::State& state) {
  for ([[maybe_unused]] const auto _ : state) {
    BenchWorld world(ModelOf(state), true);
    Configurator& program = world.program;
    if (!program.session.Open(BenchWorld::kPort, "") || !program.session.Download())
      return state.SkipWithError("no session");
    const bool isFast = Has(program.info.Features, Feature::FastRefusal);
    const Duration window = std::chrono::milliseconds(isFast ? 10 : 200);
    Duration ideal = LineTime(BenchWorld::FrameOctets(5) + BenchWorld::FrameOctets(3));
    for (const std::string& statement : program.comms.ComposeStatements())
      ideal += window + LineTime(BenchWorld::FrameOctets(5 + CharacterCount(statement)));
    const TimePoint start = world.loop.Now();
    if (!program.session.Upload()) return state.SkipWithError("upload");
    Report(state, world.loop.Now() - start, ideal);
  }
}
BENCHMARK(PacedUpload)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);

/// The image of a firmware update, of so many octets as stored, on the paced line. Its ratio is at
/// most 1.01.
void PacedFirmware(benchmark::State& state) {
  const FirmwareFiles files{std::string(static_cast<std::size_t>(state.range(0)), 'x'), ":"};
  for ([[maybe_unused]] const auto _ : state) {
    BenchWorld world(sim::Model::BP, true);
    if (!world.program.session.Open(BenchWorld::kPort, ""))
      return state.SkipWithError("no session");
    TimePoint begun{}, ended{};
    std::size_t mostQueued = 0;
    const auto listener = world.program.comms.OnProgress([&](const Progress& told) {
      if (told.stage == Progress::Stage::Begun) begun = world.loop.Now();
      if (told.stage == Progress::Stage::Step) ended = world.loop.Now();
      mostQueued = std::max(mostQueued, world.port.OutBufferCount());
    });
    if (!world.program.session.SendFirmware(files, [](FirmwareStage) {}))
      return state.SkipWithError("firmware");
    Report(state, ended - begun, LineTime(SentOctets(files.image.size())));
    state.counters["queued"] = static_cast<double>(mostQueued);  // at most 480
  }
}
BENCHMARK(PacedFirmware)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void DecodeStream(benchmark::State& state) {
  BenchWorld world(sim::Model::BP);
  if (!world.program.session.Open(BenchWorld::kPort, "")) return state.SkipWithError("no session");
  const std::size_t octets = world.StreamOctets();
  for ([[maybe_unused]] const auto _ : state)
    if (!world.program.comms.ReadConf()) return state.SkipWithError("download");
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(octets));
  state.counters["per_octet"] = benchmark::Counter(
      static_cast<double>(octets),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(DecodeStream)->Unit(benchmark::kMicrosecond);

/// A whole session: open, download, upload, close. At least 200 a second.
void Sessions(benchmark::State& state) {
  BenchWorld world(ModelOf(state));
  Configurator& program = world.program;
  for ([[maybe_unused]] const auto _ : state) {
    const bool done = program.session.Open(BenchWorld::kPort, "") && program.session.Download() &&
                      program.session.Upload();
    if (!done) return state.SkipWithError("session");
    program.session.Close(false);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(Sessions)->DenseRange(0, 5)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace ostrel
