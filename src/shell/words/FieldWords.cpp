#include "shell/words/FieldWords.h"

#include <algorithm>
#include <array>

#include "base/Printable.h"

namespace ostrel {
namespace {

constexpr std::array<std::string_view, 7> kDayNames{"Mo", "Tu", "We", "Th", "Fr", "Sa", "Su"};
constexpr std::string_view kNoDay = "no day", kLast = "last", kYes = "yes", kNo = "no",
                           kFree = "free", kAlarm = "alarm", kPlace = "place";

std::string DayNames(std::uint8_t week, const Translation& say) {
  std::string days;
  for (std::size_t day = 0; day < kDayNames.size(); ++day)
    if ((week >> day & 1U) != 0) days += (days.empty() ? "" : " ") + say(kDayNames[day]);
  return days.empty() ? say(kNoDay) : days;
}

std::string MonthDayNames(double month, const Translation& say) {
  const std::string days = Dec2Bin(month);
  std::string names;
  for (std::size_t day = 0; day < days.size(); ++day) {
    if (days[day] != '1') continue;
    names += (names.empty() ? "" : " ") +
             (day + 1 == days.size() ? say(kLast) : std::to_string(day + 1));
  }
  return names.empty() ? say(kNoDay) : names;
}

}  // namespace

std::string SectionWords(const FieldId& id, const Translation& say) {
  std::string words = say(id.section->words);
  if (id.channel >= 0) words += " " + std::to_string(id.channel);
  return words;
}

std::string KeyWords(const FieldId& id, const FieldMeta& meta, const Translation& say) {
  const auto& [config, place] = id.slot;
  std::string words;
  if (config >= 0) words = say(kAlarm) + " " + std::to_string(config) + ", ";
  words += say(meta.words);
  if (place < 0) return words;
  return words + (config >= 0 ? ", " + say(kPlace) + " " : " ") + std::to_string(place);
}

std::string ShownText(const FieldView& value, const FieldMeta& meta, bool isS100,
                      Passwords passwords) {
  std::string text = FieldText(value, isS100);
  return meta.isSecret && passwords == Passwords::Hidden && !text.empty() ? "****" : text;
}

std::string ReadableValue(const FieldView& value, const FieldMeta& meta, bool isS100,
                          Passwords passwords, const Translation& say) {
  const std::string text = Printable(ShownText(value, meta, isS100, passwords));
  if (std::holds_alternative<const std::string*>(value)) return '"' + text + '"';
  if (const auto* flag = std::get_if<const Bool16*>(&value)) return say(bool(**flag) ? kYes : kNo);
  if (std::holds_alternative<const ConfPhone*>(value)) return text.empty() ? say(kFree) : text;
  if (const CodeWords* code = CodeOf(value, meta)) return say(code->words);
  const auto* week = std::get_if<const std::uint8_t*>(&value);
  if (week && meta.sense == FieldSense::Week) return DayNames(**week, say);
  const auto* month = std::get_if<const double*>(&value);
  if (month && meta.sense == FieldSense::Month) return MonthDayNames(**month, say);
  const std::string number = text.starts_with(' ') ? text.substr(1) : text;
  return meta.unit.empty() ? number : number + " " + say(meta.unit);
}

std::vector<std::string> FieldPhrases() {
  std::vector<std::string> phrases(kDayNames.begin(), kDayNames.end());
  for (const std::string_view text : {kNoDay, kLast, kYes, kNo, kFree, kAlarm, kPlace})
    phrases.emplace_back(text);
  return phrases;
}

const CodeWords* CodeOf(const FieldView& value, const FieldMeta& meta) {
  const auto* number = std::get_if<const std::int16_t*>(&value);
  if (!number) return nullptr;
  const auto found = std::ranges::find(meta.codes, **number, &CodeWords::code);
  return found == meta.codes.end() ? nullptr : &*found;
}

}  // namespace ostrel
