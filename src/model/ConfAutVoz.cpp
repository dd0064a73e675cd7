#include "model/ConfAutVoz.h"

#include <algorithm>

#include "base/CodePage.h"
#include "base/Numbers.h"

namespace ostrel {
namespace {

/// Blanks of any kind that a table puts into a number: also the one that breaks no line.
std::string WithoutBlanks(std::string_view line) {
  constexpr std::string_view kFirmBlank = "\xC2\xA0";
  std::string text(line);
  for (std::size_t at; (at = text.find(kFirmBlank)) != std::string::npos;)
    text.erase(at, kFirmBlank.size());
  std::erase_if(text, [](char c) { return c == ' ' || c == '\t' || c == '\r'; });
  return text;
}

}  // namespace

void CalcCRC(ConfAutVoz& list) {
  std::uint16_t sum = 0xFFFF;
  for (int place = 0; place < list.AutVozCount; ++place)
    for (const char octet : ToCodePage(list.TEL[place]))
      CrcStep(sum, static_cast<std::uint8_t>(octet));
  list.AutVozCrc = static_cast<std::int16_t>(sum);
}

std::vector<std::string> NumbersOf(const ConfAutVoz& list) {
  std::vector<std::string> numbers;
  std::ranges::copy_if(list.TEL, std::back_inserter(numbers),
                       [](const std::string& number) { return !number.empty(); });
  return numbers;
}

void SetNumbers(ConfAutVoz& list, std::span<const std::string> numbers) {
  const std::size_t count = std::min(numbers.size(), list.TEL.size());
  for (std::size_t place = 0; place < list.TEL.size(); ++place)
    list.TEL[place] = place < count ? numbers[place] : std::string();
  list.AutVozCount = static_cast<std::int16_t>(count);
  CalcCRC(list);
}

std::vector<RefusedNumber> AddNumbers(std::string_view text, std::vector<std::string>& numbers,
                                      Repeated repeated) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";  // of UTF-8, as some editors write it
  if (text.starts_with(kMark)) text.remove_prefix(kMark.size());
  std::vector<RefusedNumber> refused;
  for (int line = 1; !text.empty(); ++line) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string number = WithoutBlanks(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    if (number.empty()) continue;
    if (!IsIntText(number))
      refused.push_back({line, number, NumberFault::NotANumber});
    else if (repeated == Repeated::Refused && std::ranges::count(numbers, number) > 0)
      refused.push_back({line, number, NumberFault::InTheListAlready});
    else if (numbers.size() >= static_cast<std::size_t>(kVoiceNumbers))
      refused.push_back({line, number, NumberFault::ListFull});
    else
      numbers.push_back(number);
  }
  return refused;
}

}  // namespace ostrel
