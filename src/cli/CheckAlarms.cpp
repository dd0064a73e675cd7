#include <array>
#include <map>

#include "base/Channels.h"
#include "cli/CheckRules.h"
#include "model/Features.h"

namespace ostrel::cli {
namespace {

/// The fields of one alarm configuration, by the words of their keys.
struct AlarmFields {
  std::string section;
  int config = 0;
  std::map<std::string, std::size_t, std::less<>> byWord;  ///< indices of fields

  /// A yes-or-no field; No where the kind of alarm has none of this name.
  bool Flag(const Examined& file, std::string_view word) const {
    const auto found = byWord.find(word);
    if (found == byWord.end()) return false;
    const auto* flag = std::get_if<Bool16*>(&file.fields[found->second].field);
    return flag && bool(**flag);
  }
  std::string Key(const Examined& file, std::string_view word) const {
    return file.fields[byWord.find(word)->second].key;
  }
};

/// The alarms that are enabled and that the model's logger gets to know.
std::vector<AlarmFields> EnabledAlarms(const Examined& file) {
  std::map<std::pair<std::string, int>, AlarmFields> alarms;
  for (std::size_t i = 0; i < file.fields.size(); ++i) {
    const FieldEntry& entry = file.fields[i];
    const NumberedName name = SplitName(entry.key);
    if (name.numbers.size() != 1 || entry.key.find('(') == std::string::npos) continue;
    AlarmFields& alarm = alarms[{entry.section, name.numbers.front()}];
    alarm.section = entry.section;
    alarm.config = name.numbers.front();
    alarm.byWord[std::string(name.word)] = i;
  }
  std::vector<AlarmFields> enabled;
  for (auto& [place, alarm] : alarms) {
    if (!alarm.Flag(file, "HABIL")) continue;
    Bool16 off = kFalse;
    if (file.probe.Changes(alarm.byWord.find("HABIL")->second, FieldRef(&off)))
      enabled.push_back(std::move(alarm));
  }
  return enabled;
}

using Channels = std::pair<std::string_view, std::string_view>;

/// How the channels of a section are called in the masks of telephones.
constexpr std::array<Channels, 7> kChannels{{{"DIGITAL", "DI"},
                                             {"ANALOG", "AI"},
                                             {"CAUDAL", "FL"},
                                             {"MODBUS", "MB"},
                                             {"MINPUT", "EX"},
                                             {"FLAG", "FG"},
                                             {"1WIRE", "PB"}}};

/// The token of the channel of a section; empty for what no mask can name.
std::string TokenOf(const std::string& section, bool isS100) {
  const NumberedName name = SplitName(section);
  const std::string_view word = name.word.substr(0, name.word.find('.'));
  for (const auto& [known, prefix] : kChannels) {
    if (known != word || name.numbers.size() != 1) continue;
    std::string token = std::string(prefix) + std::to_string(name.numbers.front());
    return ChannelToToken(TokenToChannel(token), isS100) == token ? token : std::string();
  }
  return {};
}

/// Whether a telephone gets the alarms of a channel, as the firmware in question keeps its mask.
bool Admits(const ConfPhone& phone, const std::string& token, const Examined& file) {
  const bool isShort = file.features && !Has(*file.features, Feature::ExtendedMasks);
  if (phone.MASKMODE == 0 && !isShort) return true;
  bool isNamed = false;
  bool isEmpty = true;
  for (int place = 0; place < kMaskPlaces; ++place) {
    const std::string named = ChannelToToken(phone.ListaMask[place], file.Model().IsS100);
    if (named.empty() || (isShort && !IsShortMaskToken(named))) continue;
    isEmpty = false;
    isNamed = isNamed || named == token;
  }
  if (isShort) return isEmpty || isNamed;
  return phone.MASKMODE == 1 ? isNamed : !isNamed;
}

bool AnyAdmits(const Examined& file, const std::string& token) {
  for (const FieldEntry& entry : file.fields)
    if (auto* const* phone = std::get_if<ConfPhone*>(&entry.field))
      if (!(*phone)->TLF.empty() && Admits(**phone, token, file)) return true;
  return false;
}

}  // namespace

bool IsShortMaskToken(std::string_view token) {
  return token.size() == 3 &&
         (token.starts_with("AI") || (token.starts_with("DI") && token < "DI8"));
}

std::vector<Finding> AlarmsForNobody(const Examined& file) {
  std::vector<Finding> found;
  for (const AlarmFields& alarm : EnabledAlarms(file)) {
    if (!alarm.Flag(file, "SMS") && !alarm.Flag(file, "VOZ")) continue;
    const std::string token = TokenOf(alarm.section, file.Model().IsS100);
    if (token.empty() || AnyAdmits(file, token)) continue;
    found.push_back({alarm.section, alarm.Key(file, "HABIL"),
                     "the alarm notifies, but no telephone's mask admits " + token +
                         ": add a telephone or widen a mask"});
  }
  return found;
}

std::vector<Finding> AlarmsNeverValid(const Examined& file) {
  std::vector<Finding> found;
  for (const AlarmFields& alarm : EnabledAlarms(file)) {
    const auto week = alarm.byWord.find("SEMANA");
    if (week == alarm.byWord.end() || alarm.Flag(file, "SIEMPRE")) continue;
    const auto* days = std::get_if<std::uint8_t*>(&file.fields[week->second].field);
    if (days && (**days & 0x7F) == 0)
      found.push_back({alarm.section, file.fields[week->second].key,
                       "the alarm is enabled but valid on no day, which a logger takes for "
                       "disabled: choose days"});
  }
  return found;
}

}  // namespace ostrel::cli
