// Opening the same file with the key file reader of GLib, and asking it every key: a yardstick for
// the reader of the store.

#include <benchmark/benchmark.h>
#include <glib.h>

#include "LargeFile.h"

namespace ostrel {
namespace {

void OpenByGKeyFile(benchmark::State& state) {
  const LargeFile& file = LargeFile::Get();
  for ([[maybe_unused]] const auto _ : state) {
    GKeyFile* const keys = g_key_file_new();
    if (g_key_file_load_from_data(keys, file.text.data(), file.text.size(), G_KEY_FILE_NONE,
                                  nullptr) == FALSE)
      return state.SkipWithError("not read");
    for (const auto& [section, key] : file.keys) {
      char* const value = g_key_file_get_value(keys, section.c_str(), key.c_str(), nullptr);
      benchmark::DoNotOptimize(value);
      g_free(value);
    }
    g_key_file_free(keys);
  }
}
BENCHMARK(OpenByGKeyFile)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ostrel
