#include "shell/check/CheckRules.h"

#include <algorithm>
#include <array>
#include <set>
#include <unordered_map>
#include <utility>

#include "base/Channels.h"
#include "base/Printable.h"
#include "base/Utf8.h"
#include "blocks/TelephoneWire.h"
#include "blocks/VoiceNumbers.h"
#include "blocks/bus/ModbusBus.h"
#include "blocks/bus/ModbusChannels.h"
#include "model/Features.h"
#include "pages/ActionCatalogue.h"
#include "store/ProfileIndex.h"

namespace ostrel {
namespace {

constexpr std::size_t kMostStatements = 999;

/// Whether an upload to the logger would carry the text of a field.
bool IsTextSent(const Examined& file, std::size_t index) {
  const std::string other = "x";
  return std::holds_alternative<const ConfPhone*>(file.Fields()[index].value) ||
         file.IsSent(index, &other);
}

/// Why a text cannot stand in a statement; empty for one that can.
std::string_view TroubleOf(const std::string& text, FieldSense sense) {
  const bool isStatement = sense == FieldSense::Statement;
  if (!isStatement && text.find(',') != std::string::npos)
    return "a comma ends the text on the line: write something else for it";
  if (!isStatement && text.find_first_of("{}") != std::string::npos)
    return "a brace encloses commands on the line: write something else for it";
  return UpToControl(text).size() < text.size() ? "a control character breaks the line: remove it"
                                                : "";
}

std::vector<Finding> BrokenTexts(const Examined& file) {
  std::vector<Finding> found;
  for (std::size_t i = 0; i < file.Fields().size(); ++i) {
    const ConstField& field = file.Fields()[i];
    const std::string* text = TextOf(field.value);
    if (!text || text->empty()) continue;
    const std::string_view trouble = TroubleOf(*text, field.meta.sense);
    if (trouble.empty() || !IsTextSent(file, i)) continue;
    found.push_back({field.Section(), field.Key(), std::string(trouble)});
  }
  return found;
}

std::vector<Finding> TooManyStatements(const Examined& file) {
  const std::size_t count = file.StatementCount();
  if (count <= kMostStatements) return {};
  return {{"",
           "",
           {"%1 statements, and their numbers have three digits: set up less",
            {std::to_string(count)}}}};
}

std::vector<Finding> LongTexts(const Examined& file) {
  std::vector<Finding> found;
  for (const ConstField& field : file.Fields()) {
    const std::string* text = TextOf(field.value);
    if (!text || field.meta.longest == 0) continue;
    const auto length = static_cast<int>(CharacterCount(*text));
    if (length > field.meta.longest)
      found.push_back({field.Section(),
                       field.Key(),
                       {"%1 characters, and its box takes %2: shorten it",
                        {std::to_string(length), std::to_string(field.meta.longest)}}});
  }
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
bool IsReadRight(const FieldView& field, std::string_view value, bool isS100) {
  const std::string_view text = Trimmed(value);
  const std::string read = FieldText(field, isS100);
  if (text.empty() || text == Trimmed(read) || TextOf(field)) return true;
  if (const auto* time = std::get_if<const TimeOfDay*>(&field)) return TextTime(text) == **time;
  return IsFloatText(text) && NumVal(text) == NumVal(read);
}

/// Whether the absence of a key has a meaning of its own: files of earlier programs lack it.
bool MayBeAbsent(const ConstField& field, const IniClass& document) {
  const std::string section = field.Section();
  if (field.id.section == &ModbusBus::kSection)
    return field.id.word != "BAUD" && !document.Find(section, std::string(ModbusBus::kRole));
  return field.id.section == &ModbusChannels::kSection && field.id.word == ModbusChannels::kSize &&
         document.Find(section, std::string(ModbusChannels::kEarlierSize));
}

std::vector<Finding> MisreadValues(const Examined& file) {
  std::vector<Finding> found;
  for (std::size_t i = 0; i < file.Fields().size(); ++i) {
    const ConstField& field = file.Fields()[i];
    const std::string* value = file.Written(i);
    if (!value || MayBeAbsent(field, file.Document()) ||
        IsReadRight(field.value, *value, file.Model().IsS100))
      continue;
    found.push_back({field.Section(),
                     field.Key(),
                     {"%1 is no value for this: it is read as %2",
                      {*value, std::string(Trimmed(file.ValueText(field)))}}});
  }
  return found;
}

std::vector<Finding> MissingSections(const Examined& file) {
  std::vector<std::string> missing;
  for (const ConstField& field : file.Fields()) {
    std::string section = field.Section();
    if (!missing.empty() && missing.back() == section) continue;
    if (!file.Document().SectionExists("", section)) missing.push_back(std::move(section));
  }
  if (missing.empty()) return {};
  if (missing.size() == 1)
    return {{missing.front(), "", "the section is missing, and is read as empty"}};
  return {{missing.front(),
           "",
           {"this section and %1 more are missing, and are read as empty",
            {std::to_string(missing.size() - 1)}}}};
}

/// One finding a section. A free telephone slot has no key.
std::vector<Finding> MissingKeys(const Examined& file) {
  std::vector<Finding> found;
  int missing = 0;
  for (std::size_t i = 0; i < file.Fields().size(); ++i) {
    const ConstField& field = file.Fields()[i];
    if (file.Written(i) || std::holds_alternative<const ConfPhone*>(field.value) ||
        MayBeAbsent(field, file.Document()))
      continue;
    const std::string section = field.Section(), key = field.Key();
    if (!file.Document().SectionExists("", section)) continue;
    if (found.empty() || found.back().section != section) {
      found.push_back({section, key, "the key is missing, and is read as empty"});
      missing = 0;
    } else {
      found.back().sentence = {
          "this key and %1 more of the section are missing, and are read as empty",
          {std::to_string(++missing)}};
    }
  }
  return found;
}

std::vector<Finding> UnknownActions(const Examined& file) {
  std::set<std::int16_t> offered;
  for (const ActionItem& item :
       OfferedActions(file.Model(), [](std::string_view name) { return std::string(name); }))
    offered.insert(item.number);
  std::vector<Finding> found;
  for (const ConstField& field : file.Fields()) {
    const auto* number = std::get_if<const std::int16_t*>(&field.value);
    if (!number || field.meta.sense != FieldSense::Action || **number <= 0) continue;
    if (!offered.contains(**number))
      found.push_back({field.Section(),
                       field.Key(),
                       {"the %1 has no action %2: choose another one or 0",
                        {file.Model().TargetName, std::to_string(**number)}}});
  }
  return found;
}

std::vector<Finding> UnsentSettings(const Examined& file) {
  std::vector<Finding> found;
  if (!file.Features()) return found;
  for (std::size_t i = 0; i < file.Fields().size(); ++i) {
    if (!file.IsSet(i) || !file.IsUnknownToFirmware(i)) continue;
    const ConstField& field = file.Fields()[i];
    found.push_back({field.Section(), field.Key(),
                     "this firmware does not take the setting: it is left out of an upload"});
  }
  return found;
}

std::vector<Finding> UnsentMasks(const Examined& file) {
  std::vector<Finding> found;
  if (!file.Features() || Has(*file.Features(), Feature::ExtendedMasks)) return found;
  for (const ConstField& field : file.Fields()) {
    const auto* phone = std::get_if<const ConfPhone*>(&field.value);
    if (!phone || (*phone)->TLF.empty() || (*phone)->MASKMODE == 0) continue;
    std::string dropped;
    for (int place = 0; place < kMaskPlaces; ++place) {
      const std::string token = ChannelToToken((*phone)->ListaMask[place], file.Model().IsS100);
      if (!token.empty() && !IsShortMaskToken(token)) dropped += " " + token;
    }
    if (!dropped.empty())
      found.push_back({field.Section(),
                       field.Key(),
                       {"this firmware knows masks of DI0 to DI7 and AI0 to AI3 alone, so these "
                        "are left out:%1",
                        {dropped}}});
    if ((*phone)->MASKMODE == 2)
      found.push_back({field.Section(), field.Key(),
                       "this firmware takes a mask as the channels to include, never to exclude"});
  }
  return found;
}

std::vector<Finding> BadNumbers(const Examined& file) {
  std::vector<Finding> found;
  for (const ConstField& field : file.Fields())
    if (const auto* text = std::get_if<const std::string*>(&field.value);
        text && field.id.section == &VoiceNumbers::kSection && !(*text)->empty() &&
        !IsIntText(**text))
      found.push_back({field.Section(), field.Key(), {"%1 is no telephone number", {**text}}});
  for (const ConstField& field : file.Fields()) {
    const auto* phone = std::get_if<const ConfPhone*>(&field.value);
    if (!phone || (*phone)->TLF.empty()) continue;
    const std::string& number = (*phone)->TLF;
    if (!IsIntText(number))
      found.push_back({field.Section(), field.Key(), {"%1 is no telephone number", {number}}});
    else if (CharacterCount(number) < kShortestNumber)
      found.push_back({field.Section(), field.Key(),
                       "a number of fewer than 3 digits does not read back from a logger"});
  }
  return found;
}

std::vector<Finding> SharedNumbers(const Examined& file) {
  std::vector<Finding> found;
  std::set<std::string> seen;
  for (const ConstField& field : file.Fields()) {
    const auto* phone = std::get_if<const ConfPhone*>(&field.value);
    if (!phone || (*phone)->TLF.empty() || seen.insert((*phone)->TLF).second) continue;
    found.push_back({field.Section(),
                     field.Key(),
                     {"%1 stands in the list twice: remove one of them", {(*phone)->TLF}}});
  }
  return found;
}

/// The values of a file by key, in a section each; of what stands twice, the first counts.
using WrittenKeys = std::unordered_map<std::string, const std::string*>;

/// The values as they stand in a file, one a field; null for those that stand nowhere.
std::vector<const std::string*> WrittenValues(const IniClass& document,
                                              const std::vector<ConstField>& fields) {
  std::unordered_map<std::string, WrittenKeys> sections;
  WrittenKeys* keys = nullptr;
  document.Visit([&](std::string_view name) { keys = &sections[NameRead(name)]; },
                 [&](std::string_view key, const std::string& value) {
                   if (keys) keys->try_emplace(NameRead(key), &value);
                 });
  std::vector<const std::string*> values(fields.size());
  std::string section;
  for (std::size_t i = 0; i < fields.size() && !sections.empty(); ++i) {
    // The fields of a section stand together.
    if (std::string own = fields[i].Section(); i == 0 || own != section) {
      section = std::move(own);
      const auto found = sections.find(NameRead(section));
      keys = found == sections.end() ? nullptr : &found->second;
    }
    if (!keys) continue;
    const auto found = keys->find(NameRead(fields[i].Key()));
    if (found != keys->end()) values[i] = found->second;
  }
  return values;
}

constexpr std::array<Rule, 46> kRules{{
    {"text-breaks-statement", Severity::Error,
     "a comma, a brace or a control character in a text that is sent", BrokenTexts},
    {"too-many-statements", Severity::Error, "more statements than an upload can number",
     TooManyStatements},
    {"modbus-out-of-range", Severity::Error, "a MODBUS address that the bus does not have",
     ModbusOutOfRange},
    {"number-out-of-range", Severity::Error, "a number or a flag that a logger refuses",
     NumbersBeyondLogger},
    {"probe-identity-broken", Severity::Error, "a probe's identity that is none", BrokenIdentities},
    {"expansion-out-of-range", Severity::Error,
     "an expansion input in a mode, on a module or in a group that does not exist",
     ExpansionOutOfRange},
    {"period-too-long", Severity::Error, "a long timer whose period does not fit its statement",
     LongPeriods},
    {"macro-broken", Severity::Error, "a line of the macros that is none", BrokenMacros},
    {"macro-memory-full", Severity::Error,
     "macros and equations with more characters in all than the 1024 of a logger's memory",
     MacrosBeyondMemory},
    {"equation-above-f15", Severity::Error, "an equation of a flag that does not exist",
     EquationsWithoutFlag},
    {kMissingSections, Severity::Error, "a section of the model that is not in the file",
     MissingSections},
    {kMissingKeys, Severity::Error, "a key of a section that is not in the file", MissingKeys},
    {"text-too-long", Severity::Warning, "a text longer than its box takes", LongTexts},
    {"value-cut", Severity::Warning, "a value of which the file's reader takes only a part",
     CutValues},
    {"text-not-kept", Severity::Warning, "a text that the file does not give back as it is",
     StrippedTexts},
    {"value-misread", Severity::Warning, "a value that is none of its kind", MisreadValues},
    {"action-not-offered", Severity::Warning, "an action that the model does not have",
     UnknownActions},
    {"alarm-for-nobody", Severity::Warning, "an alarm that no telephone is to get",
     AlarmsForNobody},
    {"alarm-never-valid", Severity::Warning, "an enabled alarm that is valid on no day",
     AlarmsNeverValid},
    {"thresholds-reversed", Severity::Warning, "an alarm whose minimum is above its maximum",
     WrongOrderOfThresholds},
    {"hysteresis-too-large", Severity::Warning, "a hysteresis larger than the band of its alarm",
     WideHysteresis},
    {"alarm-of-silent-channel", Severity::Warning, "an alarm on a channel that is off or not read",
     AlarmsOfSilentChannels},
    {"timer-never-runs", Severity::Warning, "an enabled timer without a period or a day",
     TimersThatNeverRun},
    {"timer-without-actions", Severity::Warning, "an enabled timer that runs no action",
     TimersWithoutActions},
    {"modbus-never-read", Severity::Warning, "a MODBUS channel that no timer reads",
     ModbusNeverRead},
    {"macro-number-twice", Severity::Warning, "a number that two macros or equations have",
     RepeatedMacros},
    {"macro-not-sent", Severity::Warning, "a line of the macros that a logger does not get",
     UnsentMacros},
    {"action-without-macro", Severity::Warning,
     "an action that starts a macro that does not exist or is empty", ActionsWithoutMacro},
    {"voice-macro-missing", Severity::Warning,
     "a macro of voice calls that does not exist or is empty", VoiceCallsWithoutMacro},
    {"condition-without-equation", Severity::Warning, "a condition that no equation sets",
     ConditionsWithoutEquation},
    {"gprs-without-apn", Severity::Warning, "alarms that notify by GPRS without an APN",
     GprsWithoutApn},
    {"gprs-without-server", Severity::Warning, "GPRS that is enabled without a server",
     GprsWithoutServer},
    {"mask-without-alarm", Severity::Warning,
     "a telephone's mask that names channels without an alarm", MasksWithoutAlarm},
    {"probe-identity-shared", Severity::Warning, "two probes with one identity", SharedIdentities},
    {"equation-without-channel", Severity::Warning,
     "an equation with a mask's word for a channel that the model does not have",
     EquationsOfMissingChannels},
    {"modbus-bit-rate", Severity::Warning, "a bit rate that the bus does not have", OddBitRates},
    {"modbus-not-kept", Severity::Warning, "a MODBUS setting that does not come back as it is",
     ModbusNotKept},
    {"expansion-input-shared", Severity::Warning, "two expansion inputs on one input of a module",
     SharedExpansionInputs},
    {"expansion-no-interface", Severity::Warning, "an analog expansion input without an interface",
     ExpansionWithoutInterface},
    {"setting-not-sent", Severity::Warning, "a setting that the firmware does not take",
     UnsentSettings},
    {"mask-not-sent", Severity::Warning, "a telephone's mask that the firmware cannot hold",
     UnsentMasks},
    {"bad-telephone", Severity::Warning, "a telephone number that is none", BadNumbers},
    {"telephone-twice", Severity::Warning, "a telephone that stands in the list twice",
     SharedNumbers},
    {"scale-useless", Severity::Warning, "a scale that spans nothing, or is the wrong way round",
     UselessScales},
    {"interface-unknown", Severity::Warning, "an interface that does not exist", UnknownInterfaces},
    {"number-senseless", Severity::Warning, "a number far outside what anybody means",
     SenselessNumbers},
}};

}  // namespace

Examined::Examined(const ModelConfiguration& configuration, std::optional<std::int32_t> features,
                   const IniClass& document, const Translation& translate)
    : configuration_(configuration),
      features_(features),
      document_(document),
      empty_(EmptyConfiguration(configuration.profile, translate)),
      fields_(FieldsOf(configuration.conf, configuration.profile)),
      emptyFields_(FieldsOf(std::as_const(empty_), configuration.profile)),
      written_(WrittenValues(document, fields_)),
      statements_(ComposeStatements(configuration.conf,
                                    {configuration.profile, features.value_or(kEveryFeature)})
                      .size()),
      sent_(configuration.conf, {configuration.profile, features.value_or(kEveryFeature)}) {}

bool Examined::IsSet(std::size_t index) const {
  return !IsSameValue(fields_[index].value, emptyFields_[index].value) &&
         ValueText(fields_[index]) != ValueText(emptyFields_[index]);
}

bool Examined::IsUnknownToFirmware(std::size_t index) const {
  const FieldView& empty = emptyFields_[index].value;
  if (!fullySent_) fullySent_.emplace(Conf(), Receiver{Model(), kEveryFeature});
  // Most records are the same to every firmware.
  return sent_.StatementsOf(index) != fullySent_->StatementsOf(index) &&
         !sent_.Changes(index, empty) && fullySent_->Changes(index, empty);
}

std::string Examined::ValueText(const ConstField& field) const {
  return FieldText(field.value, Model().IsS100);
}

std::string FindingText(const Finding& finding) { return Filled(FindingPhrase(finding)); }

Phrase FindingPhrase(const Finding& finding) {
  Phrase sentence = finding.sentence;
  for (std::string& argument : sentence.arguments) argument = Printable(argument);
  if (finding.section.empty()) return sentence;
  return {"%1: %2",
          {"[" + Printable(finding.section) + "]" + (finding.key.empty() ? "" : " ") +
           Printable(finding.key)},
          {std::move(sentence)}};
}

std::string SentenceText(const Finding& finding) { return Printable(Filled(finding.sentence)); }

std::span<const Rule> Rules() { return kRules; }

std::vector<FoundByRule> Examine(const Examined& file, std::span<const std::string> silenced) {
  std::vector<FoundByRule> found;
  for (const Rule& rule : Rules()) {
    if (std::ranges::find(silenced, rule.id) != silenced.end()) continue;
    for (Finding& finding : rule.examine(file)) found.push_back({&rule, std::move(finding)});
  }
  return found;
}

}  // namespace ostrel
