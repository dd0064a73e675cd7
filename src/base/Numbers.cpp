#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <utility>

namespace ostrel {
namespace {

constexpr int kFloatDigits = std::numeric_limits<float>::digits10 + 1;
constexpr int kDoubleDigits = std::numeric_limits<double>::digits10;
/// Beyond this an exponent decides alone; it stays far from the limits of the type.
constexpr int kExponentLimit = 100'000;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBlank(char c) { return c == ' ' || c == '\t'; }

/// A number above zero as its significant digits, the first of them worth 10^exponent.
struct Digits {
  std::string digits;
  int exponent = 0;
};

Digits SignificantDigits(double number, int count) {
  std::array<char, 40> buffer{};
  const auto [end, _] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                      std::chars_format::scientific, count - 1);
  const char* const mark = std::find(buffer.data(), end, 'e');
  Digits result;
  std::copy_if(std::as_const(buffer).data(), mark, std::back_inserter(result.digits), IsDigit);
  std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, result.exponent);
  result.digits.erase(result.digits.find_last_not_of('0') + 1);
  return result;
}

/// For numbers below 1 alone: larger ones always stand in plain digits.
void AppendScientific(const Digits& number, std::string& text) {
  text += number.digits[0];
  if (number.digits.size() > 1) text.append(".").append(number.digits, 1);
  text.append(number.exponent > -10 ? "E-0" : "E-").append(std::to_string(-number.exponent));
}

void AppendPlain(const Digits& number, std::string& text) {
  if (number.exponent < 0) {
    text.append(".").append(static_cast<std::size_t>(-number.exponent - 1), '0');
    text += number.digits;
    return;
  }
  const auto wholeDigits = static_cast<std::size_t>(number.exponent) + 1;
  text.append(number.digits, 0, wholeDigits);
  if (number.digits.size() > wholeDigits)
    text.append(".").append(number.digits, wholeDigits);
  else
    text.append(wholeDigits - number.digits.size(), '0');
}

std::string FloatText(double number, int digitCount) {
  constexpr int kLowestPlain = -6;
  if (!std::isfinite(number)) return NumText(0);
  if (std::abs(number) < std::pow(10, digitCount) && number == std::floor(number))
    return NumText(static_cast<std::int64_t>(number));
  const Digits digits = SignificantDigits(std::abs(number), digitCount);
  std::string text(1, number < 0 ? '-' : ' ');
  if (digits.exponent < kLowestPlain)
    AppendScientific(digits, text);
  else
    AppendPlain(digits, text);
  return text;
}

/// The parts of a decimal number at the head of a text.
struct Scan {
  bool isNumber = false;
  bool isNegative = false;
  bool hasPoint = false;
  std::string_view magnitude;  ///< digits, point and exponent, without the sign
  std::size_t end = 0;         ///< position behind the number
};

/// Length of the exponent at the head of a text: the letter, a sign and digits; 0 when there is
/// none.
std::size_t ExponentLength(std::string_view text) {
  if (text.empty() || (text[0] != 'E' && text[0] != 'e')) return 0;
  const std::size_t start = text.size() > 1 && (text[1] == '+' || text[1] == '-') ? 2 : 1;
  std::size_t end = start;
  while (end < text.size() && IsDigit(text[end])) ++end;
  return end > start ? end : 0;
}

Scan ScanNumber(std::string_view text) {
  Scan scan;
  std::size_t position = 0;
  while (position < text.size() && IsBlank(text[position])) ++position;
  if (position < text.size() && (text[position] == '+' || text[position] == '-'))
    scan.isNegative = text[position++] == '-';
  const std::size_t start = position;
  for (; position < text.size(); ++position) {
    if (IsDigit(text[position]))
      scan.isNumber = true;
    else if (text[position] == '.' && !scan.hasPoint)
      scan.hasPoint = true;
    else
      break;
  }
  if (!scan.isNumber) return scan;
  position += ExponentLength(text.substr(position));
  scan.magnitude = text.substr(start, position - start);
  scan.end = position;
  return scan;
}

/// The exponent of a scanned number as it is written, kept within `kExponentLimit`.
int WrittenExponent(std::string_view magnitude) {
  const std::size_t mark = magnitude.find_first_of("eE");
  if (mark == std::string_view::npos) return 0;
  std::string_view digits = magnitude.substr(mark + 1);
  const bool isNegative = digits[0] == '-';
  if (isNegative || digits[0] == '+') digits.remove_prefix(1);
  int exponent = 0;
  for (const char digit : digits)
    exponent = std::min(exponent * 10 + (digit - '0'), kExponentLimit);
  return isNegative ? -exponent : exponent;
}

/// True when a scanned number is above 1. Asked only of numbers beyond the range of a double, where
/// that tells the too large from the too small.
bool IsLarge(std::string_view magnitude) {
  const std::string_view mantissa = magnitude.substr(0, magnitude.find_first_of("eE"));
  const std::size_t first = mantissa.find_first_of("123456789");
  if (first == std::string_view::npos) return false;
  const auto place = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
  return place - static_cast<std::int64_t>(first) + WrittenExponent(magnitude) > 0;
}

/// All digits that it takes to read the very same number back, without an exponent.
template <class Number>
std::string AllDigits(Number number) {
  if (!std::isfinite(number) || number == 0) return "0";
  std::array<char, 400> buffer{};
  const auto [end, _] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed);
  return {buffer.data(), end};
}

}  // namespace

std::string NumText(float number) { return FloatText(double{number}, kFloatDigits); }
std::string NumText(double number) { return FloatText(number, kDoubleDigits); }

double NumVal(std::string_view text) {
  const Scan scan = ScanNumber(text);
  if (!scan.isNumber) return 0;
  double value = 0;
  const char* const begin = scan.magnitude.data();
  const auto result = std::from_chars(begin, begin + scan.magnitude.size(), value);
  if (result.ec == std::errc::result_out_of_range || !std::isfinite(value))
    value = IsLarge(scan.magnitude) ? std::numeric_limits<double>::max() : 0;
  return scan.isNegative && value != 0 ? -value : value;
}

std::string DecText(float number) { return AllDigits(number); }
std::string DecText(double number) { return AllDigits(number); }

bool IsFloatText(std::string_view text) {
  const Scan scan = ScanNumber(text);
  return scan.isNumber &&
         std::all_of(text.begin() + static_cast<std::ptrdiff_t>(scan.end), text.end(), IsBlank);
}

bool IsIntText(std::string_view text) {
  return IsFloatText(text) && text.find('.') == std::string_view::npos;
}

}  // namespace ostrel
