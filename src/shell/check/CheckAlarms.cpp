#include <set>

#include "base/Channels.h"
#include "model/Features.h"
#include "shell/check/CheckRules.h"
#include "shell/words/Recipients.h"

namespace ostrel {
void VisitEnabledAlarms(const Examined& file, const AlarmVisitor& visit) {
  const Receiver receiver{file.Model(), file.Features().value_or(kEveryFeature)};
  VisitAlarms(file.Conf(), receiver, [&](const AlarmPlace& place, const AlarmBlock& alarm) {
    if (alarm.HABIL) visit(place, alarm);
  });
}

Finding AtField(const SectionMeta& section, int channel, std::string_view word, Phrase sentence) {
  return {SectionName(section, channel), std::string(word), std::move(sentence)};
}

Finding AtAlarm(const AlarmPlace& place, std::string_view word, Phrase sentence) {
  const FieldId id{place.section, place.channel, word, {.config = place.config}};
  return {SectionName(id), KeyName(id, PlaceForm::InBrackets), std::move(sentence)};
}

std::vector<Finding> AlarmsForNobody(const Examined& file) {
  std::vector<Finding> found;
  VisitEnabledAlarms(file, [&](const AlarmPlace& place, const AlarmBlock& alarm) {
    if (!alarm.SMS && !alarm.VOZ) return;
    const bool isS100 = file.Model().IsS100;
    const std::string token = MaskTokenOf(place, isS100);
    if (token.empty() || !RecipientsOf(file.Conf(), place, isS100, file.Features()).empty()) return;
    found.push_back(AtAlarm(place, "HABIL",
                            {"the alarm notifies, but no telephone's mask admits %1: add a "
                             "telephone or widen a mask",
                             {token}}));
  });
  return found;
}

std::vector<Finding> MasksWithoutAlarm(const Examined& file) {
  const bool isS100 = file.Model().IsS100;
  std::set<std::string> alarmed;
  VisitEnabledAlarms(file, [&](const AlarmPlace& place, const AlarmBlock&) {
    alarmed.insert(MaskTokenOf(place, isS100));
  });
  std::vector<Finding> found;
  for (const ConstField& field : file.Fields()) {
    const auto* phone = std::get_if<const ConfPhone*>(&field.value);
    if (!phone || (*phone)->TLF.empty() || (*phone)->MASKMODE == 0) continue;
    std::string silent;
    for (int place = 0; place < kMaskPlaces; ++place) {
      const std::string token = ChannelToToken((*phone)->ListaMask[place], isS100);
      if (!token.empty() && !alarmed.contains(token)) silent += " " + token;
    }
    if (!silent.empty())
      found.push_back({field.Section(),
                       field.Key(),
                       {"the mask names channels that have no enabled alarm:%1", {silent}}});
  }
  return found;
}

std::vector<Finding> AlarmsNeverValid(const Examined& file) {
  std::vector<Finding> found;
  VisitEnabledAlarms(file, [&](const AlarmPlace& place, const AlarmBlock& alarm) {
    if (alarm.valid.SIEMPRE || (alarm.valid.SEMANA & kAllDays) != 0) return;
    found.push_back(AtAlarm(place, "SEMANA",
                            "the alarm is enabled but valid on no day, which a logger takes for "
                            "disabled: choose days"));
  });
  return found;
}

}  // namespace ostrel
