#include "factory/TestRecord.h"

#include <charconv>

#include "base/Numbers.h"
#include "factory/GsmStates.h"

namespace ostrel {

bool Band::Holds(float value) const {
  const auto word = static_cast<std::uint32_t>(static_cast<std::int32_t>(value));
  const auto bits = static_cast<std::uint32_t>(static_cast<std::int32_t>(low));
  switch (kind) {
    case Kind::Within:
      return value >= low && value <= high;
    case Kind::AtMost:
      return !(value > high);
    case Kind::AtLeast:
      return !(value < low);
    case Kind::Below:
      return value < high;
    case Kind::Above:
      return value > low;
    case Kind::Equal:
      return value == low;
    case Kind::HasBits:
      return (word & bits) == bits;
    case Kind::GsmCode:
      return GsmFailure(static_cast<std::int16_t>(value)).empty();
  }
  return false;
}

std::string Band::Text() const {
  switch (kind) {
    case Kind::Within:
      return DecText(low) + ".." + DecText(high);
    case Kind::AtMost:
      return "<= " + DecText(high);
    case Kind::AtLeast:
      return ">= " + DecText(low);
    case Kind::Below:
      return "< " + DecText(high);
    case Kind::Above:
      return "> " + DecText(low);
    case Kind::Equal:
      return "= " + DecText(low);
    case Kind::HasBits:
      return "& " + DecText(low);
    case Kind::GsmCode:
      return "not 0, 2..8";
  }
  return {};
}

std::string Measurement::Text() const {
  constexpr int kDigits = 7;
  char digits[32];
  const auto end =
      std::to_chars(digits, digits + sizeof digits, value, std::chars_format::general, kDigits).ptr;
  return {digits, end};
}

std::string_view VerdictWord(TestVerdict verdict) {
  switch (verdict) {
    case TestVerdict::Passed:
      return "passed";
    case TestVerdict::Failed:
      return "failed";
    case TestVerdict::Stopped:
      return "stopped";
    case TestVerdict::BrokenOff:
      return "broken off";
  }
  return {};
}

}  // namespace ostrel
