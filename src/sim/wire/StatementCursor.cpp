#include "sim/wire/StatementCursor.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <system_error>
#include <utility>

namespace ostrel::sim {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

}  // namespace

void StatementCursor::Fail(std::string why) {
  if (Failed()) return;
  why_ = std::move(why);
  why_.append(" at \"").append(rest_.substr(0, 20)).append("\"");
  rest_ = {};
}

bool StatementCursor::Has(std::string_view token) {
  if (Failed() || !rest_.starts_with(token)) return false;
  rest_.remove_prefix(token.size());
  return true;
}

bool StatementCursor::HasToken(std::string_view token) {
  const bool whole = rest_.size() <= token.size() || rest_[token.size()] == ',';
  return whole && Has(token);
}

void StatementCursor::Expect(std::string_view token) {
  if (!Has(token)) Fail(std::string(token) + " expected");
}

void StatementCursor::End() {
  if (!rest_.empty()) Fail("end expected");
}

std::string StatementCursor::Text() {
  const std::string_view text = rest_.substr(0, rest_.find(','));
  if (std::ranges::any_of(text, IsControl)) {
    Fail("control character");
    return {};
  }
  rest_.remove_prefix(text.size());
  return std::string(text);
}

std::string_view StatementCursor::TakeDigits() {
  const auto end = std::ranges::find_if_not(rest_, IsDigit);
  const std::string_view digits(rest_.begin(), end);
  rest_.remove_prefix(digits.size());
  return digits;
}

std::int64_t StatementCursor::Bounded(std::string_view digits, bool negative, std::int64_t first,
                                      std::int64_t last) {
  std::int64_t value = 0;
  const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (parsed.ec != std::errc{} || (digits.size() > 1 && digits[0] == '0')) {
    Fail("whole number expected");
    return 0;
  }
  if (negative) value = -value;
  if (value < first || value > last) {
    Fail("number " + std::to_string(value) + " out of range");
    return 0;
  }
  return value;
}

int StatementCursor::Plain(int first, int last) {
  if (Failed()) return 0;
  return static_cast<int>(Bounded(TakeDigits(), false, first, last));
}

int StatementCursor::Whole(int first, int last) {
  if (Failed()) return 0;
  const bool negative = Has("-");
  if (!negative) Expect(" ");
  return Failed() ? 0 : static_cast<int>(Bounded(TakeDigits(), negative, first, last));
}

std::uint32_t StatementCursor::Bits32() {
  constexpr auto kMost = std::numeric_limits<std::uint32_t>::max();
  Expect(" ");
  return Failed() ? 0 : static_cast<std::uint32_t>(Bounded(TakeDigits(), false, 0, kMost));
}

/// Takes the whole token as the magnitude of a number.
float StatementCursor::Finite(std::string_view token) {
  float value = 0;
  const auto parsed = std::from_chars(token.data(), token.data() + token.size(), value);
  const bool number = !token.empty() && (IsDigit(token[0]) || token[0] == '.');
  if (!number || parsed.ec != std::errc{} || parsed.ptr != token.data() + token.size() ||
      !std::isfinite(value)) {
    Fail("number expected");
    return 0;
  }
  rest_.remove_prefix(token.size());
  return value;
}

float StatementCursor::Decimal() {
  if (Failed()) return 0;
  const bool negative = Has("-");
  if (!negative) Expect(" ");
  const std::string_view token = rest_.substr(0, rest_.find(','));
  if (token.size() > 1 && token[0] == '0') Fail("zero in front");
  const float value = Failed() ? 0 : Finite(token);
  return negative ? -value : value;
}

float StatementCursor::PlainDecimal() {
  if (Failed()) return 0;
  const bool negative = Has("-");
  const std::string_view token = rest_.substr(0, rest_.find(','));
  if (token.starts_with('.')) Fail("digit expected in front of the point");
  if (token.size() > 1 && token[0] == '0' && token[1] != '.') Fail("zero in front");
  const float value = Failed() ? 0 : Finite(token);
  return negative ? -value : value;
}

Scale StatementCursor::TwoPoints() {
  Scale scale;
  Expect(",BSVAL=");
  scale.signalStart = Decimal();
  Expect(",FSVAL=");
  scale.signalEnd = Decimal();
  Expect(",BSUNIT=");
  scale.valueAtStart = Decimal();
  Expect(",FSUNIT=");
  scale.valueAtEnd = Decimal();
  return scale;
}

int StatementCursor::TimeOfDay() {
  const int hours = Plain(0, 23);
  int seconds = hours * 3600;
  for (const int unit : {60, 1}) {
    Expect(":");
    const std::string_view digits = TakeDigits();
    if (digits.size() != 2 || digits > "59") {
      Fail("time expected");
      return 0;
    }
    seconds += unit * ((digits[0] - '0') * 10 + (digits[1] - '0'));
  }
  return Failed() ? 0 : seconds;
}

int StatementCursor::Week() {
  int week = 0;
  const std::string_view digits = TakeDigits();
  for (std::size_t day = 0; day < digits.size() && day < 7; ++day) {
    if (digits[day] == '1') week |= 1 << day;
  }
  if (digits.size() != 7 || digits.find_first_not_of("01") != std::string_view::npos)
    Fail("week of seven digits expected");
  return Failed() ? 0 : week;
}

}  // namespace ostrel::sim
