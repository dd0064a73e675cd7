#include "cli/DifferenceText.h"

#include <utility>

#include "shell/FieldWords.h"

namespace ostrel::cli {
namespace {

void PrintList(Console& console, const Comparison& comparison, bool isSent) {
  std::string section;
  for (const Difference& difference : comparison.differences) {
    if (difference.isSent != isSent) continue;
    const std::string here = difference.Section();
    if (std::exchange(section, here) != here)
      console.Out() << here << " (" << SectionWords(difference.id) << ")\n";
    console.Out() << "  " << difference.Key() << " (" << KeyWords(difference.id, difference.meta)
                  << "): " << difference.beforeWords << " -> " << difference.afterWords << '\n';
  }
}

}  // namespace

void PrintDifferences(Console& console, const Comparison& comparison) {
  PrintList(console, comparison, true);
  std::size_t unsent = 0;
  for (const Difference& difference : comparison.differences) unsent += difference.isSent ? 0U : 1U;
  if (unsent == 0) return;
  console.Out() << "not sent to this logger:\n";
  PrintList(console, comparison, false);
}

void WriteDifferences(JsonWriter& json, const Comparison& comparison) {
  json.ArrayMember("differences", [&] {
    for (const Difference& difference : comparison.differences)
      json.Object([&] {
        json.Member("section", difference.Section());
        json.Member("key", difference.Key());
        json.Member("before", difference.beforeWords);
        json.Member("after", difference.afterWords);
        json.Member("sent", difference.isSent);
      });
  });
}

}  // namespace ostrel::cli
