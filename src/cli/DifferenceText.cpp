#include "cli/DifferenceText.h"

#include <utility>

#include "shell/words/FieldWords.h"

namespace ostrel::cli {
namespace {

void PrintList(std::ostream& out, const Comparison& comparison, bool isSent) {
  std::string section;
  for (const Difference& difference : comparison.differences) {
    if (difference.isSent != isSent) continue;
    const std::string here = difference.Section();
    if (std::exchange(section, here) != here)
      out << here << " (" << SectionWords(difference.id) << ")\n";
    out << "  " << difference.Key() << " (" << KeyWords(difference.id, difference.meta)
        << "): " << difference.beforeWords << " -> " << difference.afterWords << '\n';
  }
}

}  // namespace

void PrintDifferences(std::ostream& out, const Comparison& comparison) {
  PrintList(out, comparison, true);
  std::size_t unsent = 0;
  for (const Difference& difference : comparison.differences) unsent += difference.isSent ? 0U : 1U;
  if (unsent == 0) return;
  out << "not sent to this logger:\n";
  PrintList(out, comparison, false);
}

Json DifferencesJson(const Comparison& comparison, std::optional<bool> isSent) {
  Json list = Json::array();
  for (const Difference& difference : comparison.differences)
    if (difference.isSent == isSent.value_or(difference.isSent))
      list.push_back({{"section", difference.Section()},
                      {"key", difference.Key()},
                      {"before", difference.beforeWords},
                      {"after", difference.afterWords},
                      {"sent", difference.isSent}});
  return list;
}

}  // namespace ostrel::cli
