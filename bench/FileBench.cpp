// Opening a configuration file: every key asked for once, against a plain reader that takes the
// file into a map in one pass and is asked the same.

#include <benchmark/benchmark.h>

#include <string>
#include <unordered_map>
#include <vector>

#include "BenchWorld.h"
#include "store/IniClass.h"

namespace ostrel {
namespace {

constexpr int kKeys = 23'000;
constexpr const char* kPath = "/large.ocf";

struct LargeFile {
  std::string text;
  std::vector<std::pair<std::string, std::string>> keys;  ///< section and key
};

/// As many sections and keys as the largest configuration has, in the shapes that pages write.
const LargeFile& Large() {
  static const LargeFile file = [] {
    LargeFile made;
    made.text = "[General]\r\nVERSION=OSTREL_S100";
    for (int section = 0; static_cast<int>(made.keys.size()) < kKeys; ++section) {
      const std::string name = "MINPUT.A" + NumText(section);
      made.text += "\r\n[" + name + "]";
      for (int n = 0; n < 160 && static_cast<int>(made.keys.size()) < kKeys; ++n) {
        const std::string key = "ACTHI(" + NumText(n % 4) + NumText(n / 4) + ")";
        made.text += "\r\n" + key + "=" + NumText(n);
        made.keys.emplace_back(name, key);
      }
    }
    return made;
  }();
  return file;
}

void CountKeys(benchmark::State& state) {
  state.counters["per_key"] = benchmark::Counter(
      kKeys, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void OpenByProfileRead(benchmark::State& state) {
  VirtualFiles files;
  files.contents[kPath] = Large().text;
  for ([[maybe_unused]] const auto _ : state) {
    IniTool tool(files);
    for (const auto& [section, key] : Large().keys)
      benchmark::DoNotOptimize(tool.ProfileRead(section, key, kPath));
  }
  CountKeys(state);
}
BENCHMARK(OpenByProfileRead)->Unit(benchmark::kMillisecond);

void OpenByPlainReader(benchmark::State& state) {
  VirtualFiles files;
  files.contents[kPath] = Large().text;
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
    for (const auto& [name, key] : Large().keys)
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
