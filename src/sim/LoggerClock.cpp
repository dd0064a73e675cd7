#include <chrono>

#include "sim/Logger.h"
#include "sim/wire/NumberText.h"

namespace ostrel::sim {
namespace {

constexpr int kCentury = 2000;
constexpr std::size_t kClockDigits = 12;

/// Reads "YYMMDDhhmmss"; an invalid time when that is what it says, or when it is none.
DateTime ReadClockDigits(std::string_view digits) {
  DateTime none{.month = 0};
  if (digits.size() != kClockDigits ||
      digits.find_first_not_of("0123456789") != std::string_view::npos)
    return none;
  const auto pair = [digits](std::size_t n) {
    return (digits[2 * n] - '0') * 10 + (digits[2 * n + 1] - '0');
  };
  return {kCentury + pair(0), pair(1), pair(2), pair(3), pair(4), pair(5)};
}

}  // namespace

std::int64_t Logger::Seconds() const {
  return std::chrono::floor<std::chrono::seconds>(loop_.Now()).count();
}

DateTime Logger::Clock() const { return FromSeconds(Seconds() + clockAhead_); }

void Logger::SetClock(const DateTime& now) { clockAhead_ = ToSeconds(now) - Seconds(); }

bool Logger::AnswerReadClock(std::string_view rest) {
  if (!rest.empty()) return false;
  const DateTime now = Clock();
  std::string message = "#A2";
  for (const int part : {now.year % 100, now.month, now.day, now.hour, now.minute, now.second})
    AppendPadded(message, part, 2);
  Reply(message);
  return true;
}

bool Logger::AnswerSetClock(std::string_view rest) {
  const DateTime now = ReadClockDigits(rest);
  const bool valid = IsValid(now);
  if (valid) SetClock(now);
  Reply(valid ? "#A3" : "#A30");
  return true;
}

}  // namespace ostrel::sim
