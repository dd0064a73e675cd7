#include "cli/Fields.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "cli/Console.h"

namespace ostrel::cli {
namespace {

using Words = std::pair<std::string_view, std::string_view>;

// Words for readers alone: what stands in neither table is shown by its own name.
constexpr std::array kSectionWords{Words{"GENERAL", "general"},
                                   Words{"DIGITAL", "digital input"},
                                   Words{"ANALOG", "analog input"},
                                   Words{"GRUPO", "analog group"},
                                   Words{"FLAG", "flag"},
                                   Words{"CAUDAL", "flow meter"},
                                   Words{"CTIMER", "cyclic timer"},
                                   Words{"LTIMER", "long timer"},
                                   Words{"WTIMER", "weekly timer"},
                                   Words{"MTIMER", "monthly timer"},
                                   Words{"MODBUS", "MODBUS channel"},
                                   Words{"MATH", "math channel"},
                                   Words{"MACROS", "macros"},
                                   Words{"1WIRE", "1-Wire probe"},
                                   Words{"MINPUT", "expansion input"}};

constexpr std::array kKeyWords{Words{"NOMBRE", "name"},
                               Words{"CSM", "SMS centre"},
                               Words{"RENVT", "minutes between resends"},
                               Words{"RENVN", "resends"},
                               Words{"PTLF", "own number"},
                               Words{"RESTORE", "text of a restoration"},
                               Words{"TLFM", "telephone"},
                               Words{"UNIDAD", "unit"},
                               Words{"NC", "normally closed"},
                               Words{"HABIL", "enabled"},
                               Words{"REST", "restoration message"},
                               Words{"RENV", "resend"},
                               Words{"SMS", "notify by SMS"},
                               Words{"VOZ", "notify by SMS and voice"},
                               Words{"GPRS", "notify by GPRS"},
                               Words{"TEXTO", "text"},
                               Words{"MINIMO", "minimum"},
                               Words{"MAXIMO", "maximum"},
                               Words{"HISTERESIS", "hysteresis"},
                               Words{"PERSISTENCIA", "persistence"},
                               Words{"PERSIST", "persistence"},
                               Words{"REARM", "rearming"},
                               Words{"SIEMPRE", "always valid"},
                               Words{"INICIO", "valid from"},
                               Words{"FINAL", "valid until"},
                               Words{"SEMANA", "valid days"},
                               Words{"FLAG", "condition flag"},
                               Words{"ACTHI", "actions, high"},
                               Words{"ACTLO", "actions, low"},
                               Words{"ACTNO", "actions, normal"},
                               Words{"INTERFAZ", "interface"},
                               Words{"GRUPO", "group"},
                               Words{"SALIDA", "output"},
                               Words{"VOLTAJE", "voltage"},
                               Words{"PERIOD", "period"}};

template <class Table>
std::string_view Find(const Table& table, std::string_view word) {
  for (const auto& [known, words] : table)
    if (known == word) return words;
  return {};
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string WeekDays(std::uint8_t week) {
  constexpr std::array<std::string_view, 7> names{"Mo", "Tu", "We", "Th", "Fr", "Sa", "Su"};
  std::string days;
  for (std::size_t day = 0; day < names.size(); ++day)
    if ((week >> day & 1U) != 0) days += (days.empty() ? "" : " ") + std::string(names[day]);
  return days.empty() ? "no day" : days;
}

}  // namespace

std::vector<FieldEntry> FieldsOf(const Configurator& configurator, DeviceConf& conf) {
  std::vector<FieldEntry> fields;
  configurator.VisitFields(conf,
                           [&](const std::string& section, const std::string& key, FieldRef field) {
                             fields.push_back({section, key, field});
                           });
  return fields;
}

std::vector<SectionFields> BySection(const std::vector<FieldEntry>& fields) {
  std::vector<SectionFields> sections;
  for (const FieldEntry& entry : fields) {
    auto found = std::ranges::find(sections, entry.section, &SectionFields::name);
    if (found == sections.end()) found = sections.insert(found, {entry.section, {}});
    found->fields.push_back(entry);
  }
  return sections;
}

NumberedName SplitName(std::string_view name) {
  NumberedName split;
  const std::size_t bracket = name.find('(');
  const std::size_t wordEnd = std::min(bracket, name.find_last_not_of("0123456789 ") + 1);
  split.word = name.substr(0, wordEnd);
  const char* at = name.data() + wordEnd;
  const char* const end = name.data() + name.size();
  while (at != end) {
    int number = 0;
    const auto [after, error] = std::from_chars(at, end, number);
    if (error == std::errc() && IsDigit(*at)) split.numbers.push_back(number);
    at = error == std::errc() ? after : at + 1;
  }
  return split;
}

std::string ReadableValue(const FieldEntry& entry, bool isS100) {
  const std::string text = Printable(FieldText(entry.field, isS100));
  if (std::holds_alternative<std::string*>(entry.field)) return '"' + text + '"';
  if (const auto* flag = std::get_if<Bool16*>(&entry.field)) return bool(**flag) ? "yes" : "no";
  if (std::holds_alternative<ConfPhone*>(entry.field)) return text.empty() ? "free" : text;
  const auto* week = std::get_if<std::uint8_t*>(&entry.field);
  if (week && SplitName(entry.key).word == "SEMANA") return WeekDays(**week);
  return text.starts_with(' ') ? text.substr(1) : text;
}

std::string SectionWords(std::string_view section) {
  const NumberedName split = SplitName(section);
  const std::string_view words = Find(kSectionWords, split.word);
  if (words.empty()) return std::string(section);
  std::string shown(words);
  for (const int number : split.numbers) shown += " " + std::to_string(number);
  return shown;
}

std::string KeyWords(std::string_view key) {
  const NumberedName split = SplitName(key);
  const std::string words(Find(kKeyWords, split.word));
  if (words.empty()) return {};
  if (key.find('(') == std::string_view::npos)
    return split.numbers.empty() ? words : words + " " + std::to_string(split.numbers[0]);
  std::string shown = "alarm " + std::to_string(split.numbers[0]) + ", " + words;
  if (split.numbers.size() > 1) shown += ", place " + std::to_string(split.numbers[1]);
  return shown;
}

}  // namespace ostrel::cli
