#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Numbers.h"
#include "base/Utf8.h"

namespace ostrel {

/// A boolean of the model, 16 bits wide: True is -1, False 0. Any value but 0 counts as true, yet
/// only -1 is written as "True".
struct Bool16 {
  std::int16_t value = 0;

  constexpr Bool16() = default;
  template <std::same_as<bool> B>
  constexpr explicit Bool16(B isTrue) : value(isTrue ? -1 : 0) {}

  constexpr explicit operator bool() const { return value != 0; }
  bool operator==(const Bool16&) const = default;
};

inline constexpr Bool16 kTrue{true};
inline constexpr Bool16 kFalse{false};

/// A time of day in seconds since midnight, from 0 to 86399.
struct TimeOfDay {
  std::int32_t seconds = 0;

  bool operator==(const TimeOfDay&) const = default;
};

/// "True" for -1 and "False" for every other value.
std::string BoolText(Bool16 value);

/// True for exactly "True"; False for any other text, the empty one included.
Bool16 TextBool(std::string_view text);

/// The time of day of a count of seconds. A count of exactly 86400, the end of the day, is first
/// changed to 86399. Nothing for a negative count, nor for an hour above 23.
std::optional<TimeOfDay> SecondsToTime(std::int32_t& seconds);

/// "H:MM:SS" on the 24-hour clock, the hour without a leading zero. A value outside the day gives
/// the nearer end of it.
std::string TimeText(TimeOfDay time);

/// Reads "H:MM" or "H:MM:SS", each part of one or two digits, with blanks around the whole; a date
/// with slashes in front of it is passed over.
/// Nothing for any other text, nor for a time that does not exist.
std::optional<TimeOfDay> TextTime(std::string_view text);

/// Seven characters "0" or "1" for the days of a week mask, the lowest bit first. Bit 7 is not
/// shown.
std::string WeekText(std::uint8_t week);

/// The 32 bits of a mask of days of the month, as characters "0" and "1", the lowest bit first.
/// What lies above bit 31 is not shown.
std::string Dec2Bin(double mask);

/// Comma-separated field of a text, counted from 1; 0 counts as 1. There is no quoting. Empty
/// beyond the last field. A view into `text`.
std::string_view FieldOf(std::string_view text, int field);

/// The text with every "," replaced by ".".
std::string CommaToPoint(std::string_view text);

/// A number as it is typed where the comma is the decimal sign: with a point for the comma when
/// that is its only separator and makes it a number; else the text as it is.
std::string WithDecimalPoint(std::string_view text);

/// Moves a value right by one bit; the top bit becomes 0.
constexpr std::uint16_t ShiftRight1(std::uint16_t value) {
  return static_cast<std::uint16_t>(value >> 1U);
}

/// Takes one octet into a CRC-16 of the reflected polynomial 0xA001.
constexpr void CrcStep(std::uint16_t& sum, std::uint8_t octet) {
  sum ^= octet;
  for (int bit = 0; bit < 8; ++bit) {
    const bool isSet = (sum & 1U) != 0;
    sum = ShiftRight1(sum);
    if (isSet) sum ^= 0xA001U;
  }
}

}  // namespace ostrel
