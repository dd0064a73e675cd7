#include <algorithm>
#include <array>
#include <map>
#include <optional>

#include "base/Utf8.h"
#include "blocks/Configuration.h"
#include "blocks/GprsParameters.h"
#include "blocks/MacroPool.h"
#include "blocks/VoiceNumbers.h"
#include "shell/check/CheckRules.h"

namespace ostrel {
namespace {

/// The line of a place of the pool, taken apart.
struct PooledLine {
  int place = 0;
  MacroLine line;
};

Finding AtPlace(int place, Phrase sentence) {
  const FieldId id{&MacroPool::kSection, -1, "LINE", {.place = place}};
  return {SectionName(id), KeyName(id, PlaceForm::InBrackets), std::move(sentence)};
}

/// The lines that a logger gets.
std::vector<PooledLine> SentLines(const Examined& file) {
  std::vector<PooledLine> lines;
  for (int place = 0; place < kMacroPlacesSent; ++place)
    if (const auto line = ReadMacroLine(file.Conf().Macro.LINE[place]))
      lines.push_back({place, *line});
  return lines;
}

std::string NameOf(const MacroLine& line) {
  return (line.isEquation ? "F" : "MACRO") + std::to_string(line.number);
}

/// What a logger knows of macros and equations, by their numbers.
class SentPool {
 public:
  explicit SentPool(const Examined& file) {
    for (const PooledLine& one : SentLines(file))
      (one.line.isEquation ? equations_ : macros_)[one.line.number] = !one.line.command.empty();
  }
  bool HasEquation(int number) const { return equations_.contains(number); }
  /// Why starting a macro does nothing; nothing where it does something.
  std::optional<Phrase> WhyNothing(int number) const {
    const auto found = macros_.find(number);
    const std::string name = std::to_string(number);
    if (found == macros_.end())
      return Phrase{"macro %1 does not exist: write it or choose another one", {name}};
    if (found->second) return {};
    return Phrase{"macro %1 is empty: give it a command or choose another one", {name}};
  }

 private:
  std::map<int, bool> macros_, equations_;  ///< by number, whether there is something in it
};

/// Runs `look` on each number of a sense that a logger gets to know.
template <class Look>
void EachSent(const Examined& file, FieldSense sense, const Look& look) {
  const std::int16_t none = 0;
  for (std::size_t i = 0; i < file.Fields().size(); ++i) {
    const ConstField& field = file.Fields()[i];
    const auto* number = std::get_if<const std::int16_t*>(&field.value);
    if (number && field.meta.sense == sense && **number > 0 && file.IsSent(i, &none))
      look(field, **number);
  }
}

}  // namespace

std::vector<Finding> BrokenMacros(const Examined& file) {
  std::vector<Finding> found;
  for (int place = 0; place < kMacroPlacesSent; ++place) {
    const std::string& text = file.Conf().Macro.LINE[place];
    const auto line = ReadMacroLine(text);
    const bool isMacro = line && (line->isEquation || line->number < kMacroPlaces);
    if (text.empty() || isMacro) continue;
    found.push_back(AtPlace(place,
                            "the line is neither MACRO and a number up to 55 nor F and a number, "
                            "with the command in one pair of braces: write it anew"));
  }
  return found;
}

std::vector<Finding> EquationsWithoutFlag(const Examined& file) {
  std::vector<Finding> found;
  for (const auto& [place, line] : SentLines(file))
    if (line.isEquation && line.number >= kEquations)
      found.push_back(
          AtPlace(place, {"there is no flag %1: equations are F0 to F15", {NameOf(line)}}));
  return found;
}

std::vector<Finding> MacrosBeyondMemory(const Examined& file) {
  std::size_t used = 0;
  for (int place = 0; place < kMacroPlacesSent; ++place)
    used += CharacterCount(file.Conf().Macro.LINE[place]);
  constexpr std::size_t kRoom = kMacroMemory;
  if (used <= kRoom) return {};
  return {AtPlace(0, {"the lines have %1 characters more than the 1024 that a logger has room for: "
                      "shorten or remove some",
                      {std::to_string(used - kRoom)}})};
}

std::vector<Finding> UnsentMacros(const Examined& file) {
  int unsent = 0, first = 0;
  for (int place = kMacroPlaces - 1; place >= kMacroPlacesSent; --place) {
    if (file.Conf().Macro.LINE[place].empty()) continue;
    ++unsent;
    first = place;
  }
  if (unsent == 0) return {};
  return {
      AtPlace(first, {"a logger gets the first 40 lines, and %1 are left out of an upload: remove "
                      "what is not needed",
                      {std::to_string(unsent)}})};
}

std::vector<Finding> RepeatedMacros(const Examined& file) {
  std::vector<Finding> found;
  std::map<std::string, int> places;
  for (int place = 0; place < kMacroPlaces; ++place) {
    const auto line = ReadMacroLine(file.Conf().Macro.LINE[place]);
    if (!line) continue;
    const auto [former, isNew] = places.try_emplace(NameOf(*line), place);
    if (isNew) continue;
    found.push_back(AtPlace(place, {"%1 stands in line %2 already: give one of them another number",
                                    {NameOf(*line), std::to_string(former->second)}}));
  }
  return found;
}

std::vector<Finding> ActionsWithoutMacro(const Examined& file) {
  std::vector<Finding> found;
  const SentPool pool(file);
  EachSent(file, FieldSense::Action, [&](const ConstField& field, int action) {
    if (action > kMacrosOfActions) return;
    if (auto why = pool.WhyNothing(action - 1))
      found.push_back({field.Section(), field.Key(), std::move(*why)});
  });
  return found;
}

std::vector<Finding> ConditionsWithoutEquation(const Examined& file) {
  std::vector<Finding> found;
  const SentPool pool(file);
  EachSent(file, FieldSense::Condition, [&](const ConstField& field, int condition) {
    const int flag = condition - 1;
    // A flag that does not exist is told by another rule.
    if (flag >= kEquations || pool.HasEquation(flag)) return;
    found.push_back(
        {field.Section(),
         field.Key(),
         {"flag F%1 is the condition, and no equation sets it: write one or choose TRUE",
          {std::to_string(flag)}}});
  });
  return found;
}

std::vector<Finding> VoiceCallsWithoutMacro(const Examined& file) {
  const std::int16_t macro = file.Conf().AutVoz.MACRO;
  const std::string section = SectionName(VoiceNumbers::kSection, -1);
  if (macro < 0) return {};
  // A section without the key reads as macro 0. A file without the section is not about voice
  // calls; the pages, which have no file, always are.
  const bool isFile = file.Document().Find(kStampSection, kStampKey) != nullptr;
  if (isFile && !file.Document().SectionExists(section, section)) return {};
  auto why = SentPool(file).WhyNothing(macro);
  if (macro >= kVoiceMacros)
    why = Phrase{"voice calls start macros 0 to 39: choose one of these or none"};
  if (!why) return {};
  return {{section, "MACRO", std::move(*why)}};
}

std::vector<Finding> GprsWithoutApn(const Examined& file) {
  if (!file.Conf().Gprs.APN_SERVER.empty()) return {};
  int alarms = 0;
  VisitEnabledAlarms(file, [&](const AlarmPlace&, const AlarmBlock& alarm) {
    if (alarm.GPRS) ++alarms;
  });
  if (alarms == 0) return {};
  return {{SectionName(GprsParameters::kSection, -1),
           "APN_SERVER",
           {"alarms notify by GPRS, %1 in all, and there is no APN: give one",
            {std::to_string(alarms)}}}};
}

std::vector<Finding> GprsWithoutServer(const Examined& file) {
  constexpr std::array<std::string_view, 3> kNone{"", "0", "0.0.0.0"};
  const ConfGprs& gprs = file.Conf().Gprs;
  const bool hasServer = std::ranges::find(kNone, gprs.SERVER_IP) == kNone.end();
  if (!gprs.ENABLED || hasServer) return {};
  return {{SectionName(GprsParameters::kSection, -1), "SERVER_IP",
           "GPRS is enabled without a server: give its address"}};
}

}  // namespace ostrel
