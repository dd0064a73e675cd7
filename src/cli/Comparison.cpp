#include "cli/Comparison.h"

#include <memory>
#include <utility>

#include "cli/Fields.h"
#include "cli/StatementProbe.h"
#include "shell/Comparison.h"

namespace ostrel::cli {
namespace {

/// The text of a field in a file as a person reads it: without a number's place for the sign, yes
/// and no; a dash for none.
std::string Plain(const std::string& text) {
  if (text.empty()) return "-";
  if (text == "True") return "yes";
  if (text == "False") return "no";
  return Printable(text.starts_with(' ') ? text.substr(1) : text);
}

void PrintList(Console& console, const Comparison& comparison, bool isSent) {
  std::string section;
  for (const Difference& difference : comparison.differences) {
    if (difference.isSent != isSent) continue;
    if (std::exchange(section, difference.section) != difference.section)
      console.Out() << Printable(section) << " (" << SectionWords(section) << ")\n";
    const std::string words = KeyWords(difference.key);
    console.Out() << "  " << Printable(difference.key) << (words.empty() ? "" : " (" + words + ")")
                  << ": " << difference.before << " -> " << difference.after << '\n';
  }
}

}  // namespace

Comparison Compare(Configurator& configurator, DeviceConf before, DeviceConf after,
                   std::optional<std::int32_t> features) {
  const bool isS100 = configurator.profile.IsS100;
  const auto fieldsBefore = FieldsOf(configurator, before);
  const auto fieldsAfter = FieldsOf(configurator, after);
  std::unique_ptr<StatementProbe> probeBefore, probeAfter;
  if (features) {
    probeBefore = std::make_unique<StatementProbe>(configurator, before, *features);
    probeAfter = std::make_unique<StatementProbe>(configurator, after, *features);
  }
  Comparison comparison;
  for (std::size_t i = 0; i < fieldsBefore.size(); ++i) {
    if (FieldText(fieldsBefore[i].field, isS100) == FieldText(fieldsAfter[i].field, isS100))
      continue;
    const bool isSent = !features || probeBefore->Changes(i, fieldsAfter[i].field) ||
                        probeAfter->Changes(i, fieldsBefore[i].field);
    comparison.differences.push_back({.section = fieldsBefore[i].section,
                                      .key = fieldsBefore[i].key,
                                      .before = ReadableValue(fieldsBefore[i], isS100),
                                      .after = ReadableValue(fieldsAfter[i], isS100),
                                      .isSent = isSent});
  }
  comparison.isSame = features ? probeBefore->Statements() == probeAfter->Statements()
                               : comparison.differences.empty();
  return comparison;
}

Comparison CompareModels(const Configurator& before, const Configurator& after) {
  Comparison comparison{.differences = {{.section = "GENERAL",
                                         .key = "VERSION",
                                         .before = before.profile.TargetName,
                                         .after = after.profile.TargetName}},
                        .isSame = false};
  for (const FieldDifference& field :
       CompareFields(FieldLines(before, before.conf), FieldLines(after, after.conf)))
    comparison.differences.push_back(
        {field.section, field.key, Plain(field.left), Plain(field.right)});
  return comparison;
}

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
        json.Member("section", difference.section);
        json.Member("key", difference.key);
        json.Member("before", difference.before);
        json.Member("after", difference.after);
        json.Member("sent", difference.isSent);
      });
  });
}

}  // namespace ostrel::cli
