#include "shell/words/SettingLines.h"

#include <algorithm>
#include <map>
#include <unordered_map>

#include "pages/ActionCatalogue.h"

namespace ostrel {
namespace {

constexpr std::string_view kUnknownAction = "unknown to this model";

/// The actions of a model in words, by their numbers.
using ActionWords = std::map<std::int16_t, std::string>;

ActionWords WordsOfActions(const TargetProfile& model, const Translation& translate) {
  ActionWords words;
  for (const ActionItem& item : OfferedActions(model, translate)) words[item.number] = item.text;
  return words;
}

/// Whether a field belongs to another record or alarm than the one before it.
bool IsOfAnother(const FieldId& id, const FieldId& before) {
  return id.section != before.section || id.channel != before.channel ||
         id.slot.config != before.slot.config;
}

/// The fields to show: all, or those that say something beyond an empty configuration. Of an alarm
/// or a timer that is off nothing is said.
std::vector<ConstField> Chosen(const ModelConfiguration& configuration,
                               const SettingChoice& choice) {
  const auto& [profile, conf] = configuration;
  std::vector<ConstField> fields = FieldsOf(conf, profile);
  if (choice.all) return fields;
  const DeviceConf empty = EmptyConfiguration(profile, choice.translate);
  const std::vector<ConstField> emptyFields = FieldsOf(empty, profile);
  std::vector<ConstField> shown;
  bool isOff = false;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const ConstField& field = fields[i];
    if (i == 0 || IsOfAnother(field.id, fields[i - 1].id)) isOff = false;
    if (field.meta.sense == FieldSense::Enabled)
      isOff = !bool(*std::get<const Bool16*>(field.value));
    if (!isOff &&
        FieldText(field.value, profile.IsS100) != FieldText(emptyFields[i].value, profile.IsS100))
      shown.push_back(field);
  }
  return shown;
}

/// Puts fields into words.
class LineWriter {
 public:
  LineWriter(const TargetProfile& profile, const SettingChoice& choice)
      : isS100_(profile.IsS100),
        choice_(choice),
        actions_(WordsOfActions(profile, choice.translate)) {}

  void Add(std::vector<SettingLine>& lines, const ConstField& field) const {
    FieldId id = field.id;
    const bool isListed = field.meta.sense == FieldSense::Action && id.slot.place >= 0;
    if (isListed) id.slot.place = -1;
    const std::string value =
        isListed ? ActionText(**std::get_if<const std::int16_t*>(&field.value))
                 : ReadableValue(field.value, field.meta, isS100_, choice_.passwords, choice_.say);
    const auto same = isListed ? std::ranges::find(lines, id, &SettingLine::id) : lines.end();
    if (same == lines.end())
      lines.push_back(
          {id, KeyName(id, field.meta.placeForm), KeyWords(id, field.meta, choice_.say), value});
    else if (!value.empty())
      same->value += (same->value.empty() ? "" : "; ") + value;
  }

 private:
  /// The value of a place in a list of actions; empty for an empty place.
  std::string ActionText(std::int16_t number) const {
    if (number <= 0) return {};
    const auto found = actions_.find(number);
    return found == actions_.end() ? std::to_string(number) + " - " + choice_.say(kUnknownAction)
                                   : found->second;
  }

  bool isS100_;
  const SettingChoice& choice_;
  ActionWords actions_;
};

}  // namespace

std::vector<SettingSection> SettingsOf(const ModelConfiguration& configuration,
                                       const SettingChoice& choice) {
  const LineWriter writer(configuration.profile, choice);
  std::vector<SettingSection> sections;
  std::unordered_map<std::string, std::size_t> places;
  for (const ConstField& field : Chosen(configuration, choice)) {
    const auto [place, isNew] = places.try_emplace(field.Section(), sections.size());
    if (isNew) sections.push_back({place->first, field.page, field.id});
    writer.Add(sections[place->second].lines, field);
  }
  return sections;
}

}  // namespace ostrel
