// Feeds a parser with kept inputs and with what becomes of them.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "Mutator.h"
#include "Target.h"
#include "campaign/Options.h"
#include "campaign/Workers.h"

namespace {

namespace fs = std::filesystem;
using namespace ostrel;

constexpr std::chrono::seconds kLongestInput{20};

std::string ReadFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The inputs of a folder in the order of their names.
std::vector<std::string> CorpusOf(const fs::path& folder) {
  std::vector<fs::path> paths;
  for (const auto& entry : fs::directory_iterator(folder)) paths.push_back(entry.path());
  std::ranges::sort(paths);
  std::vector<std::string> corpus;
  for (const fs::path& path : paths) corpus.push_back(ReadFile(path));
  return corpus;
}

/// One word a line.
std::vector<std::string> WordsOf(const fs::path& path) {
  std::ifstream file(path);
  std::vector<std::string> words;
  for (std::string word; std::getline(file, word);) words.push_back(word);
  return words;
}

void Take(const std::string& input) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

}  // namespace

int main(int count, char** words) {
  const auto options = campaign::ReadOptions(count, words, "inputs", 2000);
  if (!options || options->rest.size() != 1) {
    std::fputs("usage: fuzz_PARSER [--inputs N] [--seed S] [--processes P] CORPUS\n", stderr);
    return 2;
  }
  const fs::path folder = options->rest.front();
  const std::string parser = folder.filename().string();
  const fuzz::Mutator mutator(CorpusOf(folder), WordsOf(folder.string() + ".words"), options->seed);
  int deaths = 0;
  campaign::WorkOn(
      {options->count, options->processes, kLongestInput},
      [&](std::uint64_t number) { Take(mutator.Make(number)); },
      [&](const campaign::Death& death) {
        const std::string kept = "fuzz-" + parser + "-" + std::to_string(options->seed) + "-" +
                                 std::to_string(death.item);
        std::ofstream(kept, std::ios::binary) << mutator.Make(death.item);
        std::printf("%s: %s; the input is kept in %s\n", parser.c_str(), death.how.c_str(),
                    kept.c_str());
        ++deaths;
      });
  std::printf("%s: %llu inputs, %d bad\n", parser.c_str(),
              static_cast<unsigned long long>(options->count), deaths);
  return deaths == 0 ? 0 : 1;
}
