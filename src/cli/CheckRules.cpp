#include "cli/CheckRules.h"

#include <algorithm>
#include <array>
#include <set>

#include "base/Channels.h"
#include "model/Features.h"
#include "pages/ActionCatalogue.h"

namespace ostrel::cli {
namespace {

constexpr std::size_t kMostStatements = 999;
constexpr std::size_t kShortestNumber = 3;

/// The text of a field that is one or has one; null for others.
const std::string* TextOf(const FieldRef& field) {
  if (auto* const* text = std::get_if<std::string*>(&field)) return *text;
  if (auto* const* phone = std::get_if<ConfPhone*>(&field)) return &(*phone)->TLF;
  return nullptr;
}

bool HasControl(std::string_view text) {
  return std::ranges::any_of(
      text, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; });
}

/// Whether an upload to the logger would carry the text of a field.
bool IsTextSent(const Examined& file, std::size_t index) {
  std::string other = "x";
  const FieldRef& field = file.fields[index].field;
  return std::holds_alternative<ConfPhone*>(field) || file.probe.Changes(index, FieldRef(&other));
}

std::vector<Finding> BrokenTexts(const Examined& file) {
  std::vector<Finding> found;
  for (std::size_t i = 0; i < file.fields.size(); ++i) {
    const FieldEntry& entry = file.fields[i];
    const std::string* text = TextOf(entry.field);
    if (!text || text->empty()) continue;
    const bool hasComma = text->find(',') != std::string::npos;
    if ((!hasComma && !HasControl(*text)) || !IsTextSent(file, i)) continue;
    found.push_back({entry.section, entry.key,
                     hasComma ? "a comma ends the text on the line: write something else for it"
                              : "a control character breaks the line: remove it"});
  }
  return found;
}

std::vector<Finding> TooManyStatements(const Examined& file) {
  const std::size_t count = file.probe.Statements().size();
  if (count <= kMostStatements) return {};
  return {{"", "",
           std::to_string(count) + " statements, and their numbers have three digits: "
                                   "set up less"}};
}

std::vector<Finding> LongTexts(const Examined& file) {
  std::vector<Finding> found;
  for (const FieldEntry& entry : file.fields) {
    const std::string* text = TextOf(entry.field);
    if (!text) continue;
    const auto limit = file.limits.find(std::pair(std::string(SplitName(entry.section).word),
                                                  std::string(SplitName(entry.key).word)));
    const auto length = static_cast<int>(CharacterCount(*text));
    if (limit != file.limits.end() && length > limit->second)
      found.push_back({entry.section, entry.key,
                       std::to_string(length) + " characters, and its box takes " +
                           std::to_string(limit->second) + ": shorten it"});
  }
  return found;
}

std::vector<Finding> CutValues(const Examined& file) {
  std::vector<Finding> found;
  std::string section;
  file.document.Visit([&](std::string_view name) { section = name; },
                      [&](std::string_view key, std::string_view value) {
                        if (CharacterCount(value) <= kProfileValueLimit) return;
                        found.push_back({section, std::string(key),
                                         std::to_string(CharacterCount(value)) +
                                             " characters, of which only the first 254 are read: "
                                             "shorten it"});
                      });
  return found;
}

/// A value without the blanks around it.
std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos
             ? std::string_view()
             : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Whether a field holds what its text in the file says. Texts and telephones are taken as they
/// are.
bool IsReadRight(const FieldRef& field, std::string_view value, bool isS100) {
  const std::string_view text = Trimmed(value);
  const std::string read = FieldText(field, isS100);
  if (text.empty() || text == Trimmed(read) || TextOf(field)) return true;
  if (auto* const* time = std::get_if<TimeOfDay*>(&field)) return TextTime(text) == **time;
  return IsFloatText(text) && NumVal(text) == NumVal(read);
}

std::vector<Finding> MisreadValues(const Examined& file) {
  std::vector<Finding> found;
  for (const FieldEntry& entry : file.fields) {
    if (!file.document.KeyExists(entry.section, entry.key)) continue;
    const std::string value = file.document.ReadKey(entry.section, entry.key);
    const bool isS100 = file.Model().IsS100;
    if (IsReadRight(entry.field, value, isS100)) continue;
    found.push_back({entry.section, entry.key,
                     value + " is no value for this: it is read as " +
                         std::string(Trimmed(FieldText(entry.field, isS100)))});
  }
  return found;
}

std::vector<Finding> MissingSections(const Examined& file) {
  std::set<std::string> missing;
  for (const FieldEntry& entry : file.fields)
    if (!file.document.SectionExists("", entry.section)) missing.insert(entry.section);
  if (missing.empty()) return {};
  return {{*missing.begin(), "",
           missing.size() == 1 ? "the section is missing, and is read as empty"
                               : "this section and " + std::to_string(missing.size() - 1) +
                                     " more are missing, and are read as empty"}};
}

std::vector<Finding> UnknownActions(const Examined& file) {
  std::set<std::int16_t> offered;
  for (const ActionItem& item :
       OfferedActions(file.Model(), [](std::string_view name) { return std::string(name); }))
    offered.insert(item.number);
  std::vector<Finding> found;
  for (const FieldEntry& entry : file.fields) {
    const auto* number = std::get_if<std::int16_t*>(&entry.field);
    if (!number || !SplitName(entry.key).word.starts_with("ACT") || **number <= 0) continue;
    if (!offered.contains(**number))
      found.push_back({entry.section, entry.key,
                       "the " + file.Model().TargetName + " has no action " +
                           std::to_string(**number) + ": choose another one or 0"});
  }
  return found;
}

std::vector<Finding> UnsentSettings(const Examined& file) {
  std::vector<Finding> found;
  if (!file.features) return found;
  for (std::size_t i = 0; i < file.fields.size(); ++i) {
    if (!file.IsSet(i)) continue;
    const FieldEntry& entry = file.fields[i];
    const FieldRef& empty = file.emptyFields[i].field;
    if (!file.probe.Changes(i, empty) && file.fullProbe.Changes(i, empty))
      found.push_back({entry.section, entry.key,
                       "this firmware does not take the setting: it is left out of an upload"});
  }
  return found;
}

std::vector<Finding> UnsentMasks(const Examined& file) {
  std::vector<Finding> found;
  if (!file.features || Has(*file.features, Feature::ExtendedMasks)) return found;
  for (const FieldEntry& entry : file.fields) {
    auto* const* phone = std::get_if<ConfPhone*>(&entry.field);
    if (!phone || (*phone)->TLF.empty() || (*phone)->MASKMODE == 0) continue;
    std::string dropped;
    for (int place = 0; place < kMaskPlaces; ++place) {
      const std::string token = ChannelToToken((*phone)->ListaMask[place], file.Model().IsS100);
      if (!token.empty() && !IsShortMaskToken(token)) dropped += " " + token;
    }
    if (!dropped.empty())
      found.push_back({entry.section, entry.key,
                       "this firmware knows masks of DI0 to DI7 and AI0 to AI3 alone, so these "
                       "are left out:" +
                           dropped});
    if ((*phone)->MASKMODE == 2)
      found.push_back({entry.section, entry.key,
                       "this firmware takes a mask as the channels to include, never to exclude"});
  }
  return found;
}

std::vector<Finding> BadNumbers(const Examined& file) {
  std::vector<Finding> found;
  for (const FieldEntry& entry : file.fields) {
    auto* const* phone = std::get_if<ConfPhone*>(&entry.field);
    if (!phone || (*phone)->TLF.empty()) continue;
    const std::string& number = (*phone)->TLF;
    if (!IsIntText(number))
      found.push_back({entry.section, entry.key, number + " is no telephone number"});
    else if (CharacterCount(number) < kShortestNumber)
      found.push_back({entry.section, entry.key,
                       "a number of fewer than 3 digits does not read back from a logger"});
  }
  return found;
}

constexpr std::array<Rule, 12> kRules{{
    {"text-breaks-statement", Severity::Error,
     "a comma or a control character in a text that is sent", BrokenTexts},
    {"too-many-statements", Severity::Error, "more statements than an upload can number",
     TooManyStatements},
    {"text-too-long", Severity::Warning, "a text longer than its box takes", LongTexts},
    {"value-cut", Severity::Warning, "a value of which the file's reader takes only a part",
     CutValues},
    {"value-misread", Severity::Warning, "a value that is none of its kind", MisreadValues},
    {"section-missing", Severity::Warning, "a section of the model that is not in the file",
     MissingSections},
    {"action-not-offered", Severity::Warning, "an action that the model does not have",
     UnknownActions},
    {"alarm-for-nobody", Severity::Warning, "an alarm that no telephone is to get",
     AlarmsForNobody},
    {"alarm-never-valid", Severity::Warning, "an enabled alarm that is valid on no day",
     AlarmsNeverValid},
    {"setting-not-sent", Severity::Warning, "a setting that the firmware does not take",
     UnsentSettings},
    {"mask-not-sent", Severity::Warning, "a telephone's mask that the firmware cannot hold",
     UnsentMasks},
    {"bad-telephone", Severity::Warning, "a telephone number that is none", BadNumbers},
}};

}  // namespace

bool Examined::IsSet(std::size_t index) const {
  const bool isS100 = Model().IsS100;
  return FieldText(fields[index].field, isS100) != FieldText(emptyFields[index].field, isS100);
}

std::span<const Rule> Rules() { return kRules; }

}  // namespace ostrel::cli
