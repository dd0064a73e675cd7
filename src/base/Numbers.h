#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace ostrel {

/// The decimal text of a number, with a place for the sign in front: a blank, or "-" when it is
/// negative. The point is the decimal separator and no zero stands before it. A 32-bit float keeps
/// 7 significant digits, a 64-bit one 15; a large number stands in plain digits all the same. Only
/// numbers nearer to zero than 0.000001 take an exponent. Both zeros give " 0", and so does what is
/// no finite number. `NumVal` reads all of these back.
std::string NumText(float number);
std::string NumText(double number);
template <std::integral T>
requires(!std::same_as<T, bool>) std::string NumText(T number) {
  const std::string digits = std::to_string(number);
  return digits.starts_with('-') ? digits : " " + digits;
}

/// The number at the head of a text, 0 when there is none: leading blanks and tabs are skipped,
/// then comes a decimal number with optional sign, point and exponent; it ends at the first
/// character that cannot continue it. What is too large is the largest number of its sign, never
/// infinite.
double NumVal(std::string_view text);

/// The plain decimal text of a number, without a leading blank and never with an exponent, in as
/// many digits as it takes to read the very same float back. What is no finite number gives "0".
std::string DecText(float number);
std::string DecText(double number);

/// True for a decimal number with optional sign, point and exponent and nothing else; blanks and
/// tabs may stand around it, as in a box that shows `NumText`. A comma is always refused.
bool IsFloatText(std::string_view text);

/// The same without a point.
bool IsIntText(std::string_view text);

/// Rounds to the nearest whole number, halves to the even one; nothing when that is outside the
/// width of `T`, or when there is no number.
template <std::integral T>
std::optional<T> RoundToEven(double number) {
  double rounded = std::floor(number);
  const double rest = number - rounded;
  if (rest > 0.5 || (rest == 0.5 && std::fmod(rounded, 2.0) != 0)) ++rounded;
  const double end = std::ldexp(1.0, std::numeric_limits<T>::digits);
  const double lowest = std::numeric_limits<T>::is_signed ? -end : 0.0;
  if (!(rounded >= lowest && rounded < end)) return std::nullopt;
  return static_cast<T>(rounded);
}

/// The number as a 32-bit float; nothing when it is beyond the largest one, or no number.
inline std::optional<float> ToFloat(double number) {
  if (!(std::abs(number) <= std::numeric_limits<float>::max())) return std::nullopt;
  return static_cast<float>(number);
}

}  // namespace ostrel
