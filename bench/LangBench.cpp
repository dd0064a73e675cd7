// A look-up in a full table of texts: the last row of 401, and the scan that it stands for.

#include <benchmark/benchmark.h>

#include "lang/Lang.h"
#include "platform/virtual/VirtualFiles.h"

namespace ostrel {
namespace {

constexpr const char* kTablePath = "/Lang.txt";

std::string Key(int row) { return "Texto de la fila numero " + std::to_string(row); }

struct FullTable {
  FullTable() {
    std::string text = "{Espa\xF1ol}{English}";
    for (int row = 1; row < kLangRows; ++row)
      text += "\r\n{" + Key(row) + "}{Text of row " + std::to_string(row) + "}";
    files.contents[kTablePath] = text;
    lang.Init();
    lang.SetSelectedLang(2);
  }

  VirtualFiles files;
  Lang lang{files, kTablePath};
};

void LookUp(benchmark::State& state) {
  FullTable table;
  const std::string key = Key(kLangRows - 1);
  for ([[maybe_unused]] const auto _ : state) benchmark::DoNotOptimize(table.lang.Translate(key));
}
BENCHMARK(LookUp);

void Scan(benchmark::State& state) {
  FullTable table;
  const std::string key = Key(kLangRows - 1);
  for ([[maybe_unused]] const auto _ : state) {
    for (int row = 0; row < table.lang.LangCount(); ++row)
      if (table.lang.GetString(1, row) == key) {
        benchmark::DoNotOptimize(table.lang.GetString(2, row));
        break;
      }
  }
}
BENCHMARK(Scan);

}  // namespace
}  // namespace ostrel
