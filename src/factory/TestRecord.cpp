#include "factory/TestRecord.h"

#include <charconv>

#include "base/Numbers.h"
#include "factory/GsmStates.h"

namespace ostrel {

bool Band::Holds(float value) const {
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
    case Kind::HasBits: {
      const auto word = RoundToEven<std::int32_t>(value), bits = RoundToEven<std::int32_t>(low);
      return word && bits && (*word & *bits) == *bits;
    }
    case Kind::GsmCode: {
      const auto state = RoundToEven<std::int16_t>(value);
      return state && GsmFailure(*state).empty();
    }
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
  if (!value) return {};
  constexpr int kDigits = 7;
  char digits[32];
  const auto end =
      std::to_chars(digits, digits + sizeof digits, *value, std::chars_format::general, kDigits)
          .ptr;
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
