#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "sim/wire/Scale.h"

namespace ostrel::sim {

// What numbers of 16 and 32 bits can hold.
inline constexpr int kLeast16 = std::numeric_limits<std::int16_t>::min();
inline constexpr int kMost16 = std::numeric_limits<std::int16_t>::max();
inline constexpr int kLeast32 = std::numeric_limits<std::int32_t>::min();
inline constexpr int kMost32 = std::numeric_limits<std::int32_t>::max();

/// Walks along a statement. The first thing that is not as it must be is kept as `Why`; from then
/// on every step does nothing and gives 0, so a grammar reads as a straight list of steps.
class StatementCursor {
 public:
  explicit StatementCursor(std::string_view statement) : rest_(statement) {}

  bool Failed() const { return !why_.empty(); }
  const std::string& Why() const { return why_; }
  void Fail(std::string why);
  /// The text that was not taken.
  std::string_view Rest() const { return rest_; }

  /// Takes a text if it comes next.
  bool Has(std::string_view token);
  /// The same for a whole token: behind it the statement ends or goes on with a comma.
  bool HasToken(std::string_view token);
  /// Takes a text that must come next.
  void Expect(std::string_view token);
  /// The statement must end here.
  void End();

  /// All up to a comma or the end; may be empty.
  std::string Text();
  /// Plain digits without a leading zero, within bounds.
  int Plain(int first, int last);
  /// A whole number with its place for the sign ("- 3" is none, " 3" and "-3" are), within bounds.
  int Whole(int first, int last);
  /// A decimal number with its place for the sign and no zero in front of the point.
  float Decimal();
  /// A decimal number without a place for the sign and with a digit in front of the point.
  float PlainDecimal();
  /// A whole number of up to 32 bits with its place for the sign, which is always blank.
  std::uint32_t Bits32();
  /// ",BSVAL=", ",FSVAL=", ",BSUNIT=" and ",FSUNIT=" with their numbers.
  Scale TwoPoints();
  /// A time of day "h:mm:ss" as seconds since midnight.
  int TimeOfDay();
  /// Seven digits 0 or 1, Monday first.
  int Week();

 private:
  std::string_view TakeDigits();
  std::int64_t Bounded(std::string_view digits, bool negative, std::int64_t first,
                       std::int64_t last);
  float Finite(std::string_view token);

  std::string_view rest_;
  std::string why_;
};

}  // namespace ostrel::sim
