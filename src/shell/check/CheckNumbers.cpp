#include <algorithm>
#include <array>
#include <cmath>

#include "blocks/expansion/ExpansionInputs.h"
#include "blocks/inputs/AnalogInputs.h"
#include "blocks/inputs/AuxiliaryInputs.h"
#include "blocks/inputs/FlagAlarms.h"
#include "blocks/inputs/InterfaceCodes.h"
#include "shell/check/CheckRules.h"
#include "shell/words/FieldWords.h"

namespace ostrel {
namespace {

/// The scale of one channel that is on.
struct Scale {
  const SectionMeta& section;
  int channel;
  bool hasSignal;  ///< start and full scale of the signal can be chosen
  float IE, FE, EqIE, EqFE;
};

template <class Record>
Scale ScaleOf(const SectionMeta& section, int channel, const Record& record, bool hasSignal) {
  return {section, channel, hasSignal, record.IE, record.FE, record.EqIE, record.EqFE};
}

std::vector<Scale> ScalesInUse(const Examined& file) {
  const TargetProfile& model = file.Model();
  const DeviceConf& conf = file.Conf();
  std::vector<Scale> scales;
  for (int i = 0; i < model.AnalogCount; ++i)
    if (const ConfAnalog& input = conf.Analog[i]; input.INTERFAZ != kInterfaceOff)
      scales.push_back(ScaleOf(AnalogInputs::kSection, i, input, !model.IsBQ));
  for (int i = 0; i < model.ModuloCount; ++i)
    if (const ConfModulo& input = conf.Modulo[i]; input.MODO == kModeAnalog)
      scales.push_back(ScaleOf(ExpansionInputs::kAnalog, i, input.A, true));
  return scales;
}

Finding AtScale(const Scale& scale, std::string_view word, const char* sentence) {
  return {SectionName(scale.section, scale.channel), std::string(word), sentence};
}

/// A number of any width; nothing for other kinds of fields.
std::optional<double> NumberOf(const FieldView& field) {
  if (const auto* number = std::get_if<const float*>(&field)) return **number;
  if (const auto* number = std::get_if<const std::int16_t*>(&field)) return **number;
  if (const auto* number = std::get_if<const std::int32_t*>(&field)) return **number;
  return {};
}

/// Whether a logger gets to know a number: a 0 in its place would be told.
bool IsNumberSent(const Examined& file, std::size_t index) {
  constexpr float kNone = 0;
  constexpr std::int16_t kNone16 = 0;
  constexpr std::int32_t kNone32 = 0;
  const FieldView& value = file.Fields()[index].value;
  if (std::holds_alternative<const float*>(value)) return file.IsSent(index, &kNone);
  if (std::holds_alternative<const std::int16_t*>(value)) return file.IsSent(index, &kNone16);
  return file.IsSent(index, &kNone32);
}

/// Whether a mask has bits for the days of a month and its last one, and nothing else.
bool IsMonth(const FieldView& field) {
  const double mask = *std::get<const double*>(field);
  return mask >= 0 && mask < std::ldexp(1.0, 32) && mask == std::floor(mask);
}

std::string RangeText(const FieldMeta& meta) {
  const SensibleRange open;
  std::string text = meta.range.least == open.least
                         ? "up to " + DecText(meta.range.most)
                         : DecText(meta.range.least) + " to " + DecText(meta.range.most);
  return meta.unit.empty() ? text : text + " " + std::string(meta.unit);
}

}  // namespace

std::vector<Finding> UselessScales(const Examined& file) {
  std::vector<Finding> found;
  for (const Scale& scale : ScalesInUse(file)) {
    if (scale.hasSignal && scale.IE == scale.FE)
      found.push_back(AtScale(scale, "FE",
                              "start of scale and full scale are the same signal, so that there "
                              "is no value: set up both"));
    else if (scale.hasSignal && scale.IE > scale.FE)
      found.push_back(AtScale(scale, "FE",
                              "full scale lies below the start of scale: exchange them, and their "
                              "values"));
    else if (scale.EqIE == scale.EqFE)
      found.push_back(AtScale(scale, "EqFE",
                              "both ends of the scale have the same value, so that the channel "
                              "never changes: set up both"));
    else if (scale.EqIE > scale.EqFE)
      found.push_back(AtScale(scale, "EqFE",
                              "the value falls as the signal rises: exchange the values, unless "
                              "the sensor is such a one"));
  }
  return found;
}

std::vector<Finding> UnknownInterfaces(const Examined& file) {
  std::vector<Finding> found;
  for (std::size_t i = 0; i < file.Fields().size(); ++i) {
    const ConstField& field = file.Fields()[i];
    const auto number = NumberOf(field.value);
    // An analog expansion input without an interface has a rule of its own.
    if (!number || field.id.word != "INTERFAZ" || field.id.section == &ExpansionInputs::kAnalog ||
        std::ranges::count(field.meta.codes, *number, &CodeWords::code) > 0)
      continue;
    found.push_back({field.Section(),
                     field.Key(),
                     {"there is no interface %1, and the logger keeps the one that it has: choose "
                      "another one",
                      {DecText(*number)}}});
  }
  return found;
}

std::vector<Finding> NumbersBeyondLogger(const Examined& file) {
  std::vector<Finding> found;
  for (const ConstField& field : file.Fields()) {
    if (field.meta.sense == FieldSense::Month && !IsMonth(field.value))
      found.push_back({field.Section(), field.Key(),
                       "the days of a month are no whole number from 0 to 4294967295: choose the "
                       "days anew"});
    const auto number = NumberOf(field.value);
    if (!number) continue;
    if (field.meta.sense == FieldSense::Condition &&
        (*number < 0 || *number > FlagAlarms::kChannels))
      found.push_back({field.Section(),
                       field.Key(),
                       {"there is no flag %1: choose 0 for always, or 1 to 16 for F0 to F15",
                        {DecText(*number)}}});
    if (field.id.word == "TIMEBASE" && *number < 0)
      found.push_back({field.Section(), field.Key(),
                       "a time base is never below 0: write its seconds, or 0 for off"});
  }
  return found;
}

std::vector<Finding> SenselessNumbers(const Examined& file) {
  std::vector<Finding> found;
  for (std::size_t i = 0; i < file.Fields().size(); ++i) {
    const ConstField& field = file.Fields()[i];
    const auto number = NumberOf(field.value);
    const SensibleRange& range = field.meta.range;
    if (!number || (*number >= range.least && *number <= range.most) || !IsNumberSent(file, i))
      continue;
    found.push_back({field.Section(),
                     field.Key(),
                     {"%1 makes no sense here, where %2 does: correct it",
                      {DecText(*number), RangeText(field.meta)}}});
  }
  return found;
}

}  // namespace ostrel
