// Opening a configuration file: every key asked for once, against a plain reader that takes the
// file into a map in one pass and is asked the same.

#include <benchmark/benchmark.h>

#include <string>
#include <unordered_map>

#include "BenchWorld.h"
#include "LargeFile.h"
#include "store/IniClass.h"

namespace ostrel {
namespace {

constexpr const char* kPath = "/large.ocf";

void CountKeys(benchmark::State& state) {
  state.counters["per_key"] = benchmark::Counter(
      kLargeFileKeys, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void OpenByProfileRead(benchmark::State& state) {
  VirtualFiles files;
  files.contents[kPath] = LargeFile::Get().text;
  for ([[maybe_unused]] const auto _ : state) {
    IniTool tool(files);
    for (const auto& [section, key] : LargeFile::Get().keys)
      benchmark::DoNotOptimize(tool.ProfileRead(section, key, kPath));
  }
  CountKeys(state);
}
BENCHMARK(OpenByProfileRead)->Unit(benchmark::kMillisecond);

void OpenByPlainReader(benchmark::State& state) {
  VirtualFiles files;
  files.contents[kPath] = LargeFile::Get().text;
  for ([[maybe_unused]] const auto _ : state) {
    const std::string text = *files.Read(kPath);
    std::unordered_map<std::string, std::string> values;
    std::string section;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = std::min(text.find('\n', at), text.size());
      std::string_view line(text.data() + at, end - at);
      if (line.ends_with('\r')) line.remove_suffix(1);
      if (line.starts_with('[')) {
        section = line.substr(1, line.size() - 2);
      } else if (const auto equals = line.find('='); equals != std::string_view::npos) {
        values[section + '\n' + std::string(line.substr(0, equals))] = line.substr(equals + 1);
      }
      at = end + 1;
    }
    for (const auto& [name, key] : LargeFile::Get().keys)
      benchmark::DoNotOptimize(values.at(name + '\n' + key));
  }
  CountKeys(state);
}
BENCHMARK(OpenByPlainReader)->Unit(benchmark::kMillisecond);

/// Saving and opening what the pages of this build hold.
void SaveAndRestore(benchmark::State& state) {
  BenchWorld world(sim::Model::BP);
  world.program.ConfFilePath = kPath;
  for ([[maybe_unused]] const auto _ : state) {
    world.program.SaveConf();
    if (world.program.RestoreConf() != RestoreResult::Loaded) return state.SkipWithError("restore");
  }
}
BENCHMARK(SaveAndRestore)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ostrel
