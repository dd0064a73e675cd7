#include "Options.h"

#include <charconv>

#include "Workers.h"

namespace ostrel::campaign {
namespace {

template <class Number>
bool Read(std::string_view text, Number& number) {
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  return read.ec == std::errc{} && read.ptr == text.data() + text.size();
}

}  // namespace

std::optional<Options> ReadOptions(int count, char** words, std::string_view what,
                                   std::uint64_t usual) {
  Options options{.count = usual, .processes = UsualProcesses(), .rest = {}};
  for (int i = 1; i < count; ++i) {
    std::string_view word = words[i];
    if (!word.starts_with("--")) {
      options.rest.emplace_back(word);
      continue;
    }
    word.remove_prefix(2);
    if (word == "tell") {
      options.tells = true;
      continue;
    }
    if (++i == count) return {};
    const bool isRead = word == what          ? Read(words[i], options.count)
                        : word == "seed"      ? Read(words[i], options.seed)
                        : word == "processes" ? Read(words[i], options.processes)
                                              : false;
    if (!isRead) return {};
  }
  return options;
}

}  // namespace ostrel::campaign
