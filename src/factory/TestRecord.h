#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DateTime.h"
#include "platform/Time.h"

namespace ostrel {

/// What a measured value must be.
struct Band {
  enum class Kind {
    Within,   ///< from `low` to `high`, both included
    AtMost,   ///< up to `high`
    AtLeast,  ///< from `low` on
    Below,    ///< less than `high`
    Above,    ///< more than `low`
    Equal,    ///< `low` exactly
    HasBits,  ///< a word with all bits of `low`
    GsmCode,  ///< a code of the modem that tells no failure
  } kind = Kind::Within;
  float low = 0;
  float high = 0;

  /// Whether a value lies in the band; compared in single precision.
  bool Holds(float value) const;
  /// "4.4..4.8", "<= 0.7", "= 5".
  std::string Text() const;
};

/// One value that a test has judged of a board.
struct Measurement {
  std::string name;
  std::optional<float> value;  ///< nothing where the reading did not come, and an older one counted
  Band band;
  bool passed = false;

  /// The value in up to 7 digits, as many as a single-precision number has; empty for none.
  std::string Text() const;
};

enum class TestVerdict {
  Passed,
  Failed,
  Stopped,    ///< by the operator
  BrokenOff,  ///< the line has gone
};

/// "passed", "failed", "stopped", "broken off": words of records, the same in every language.
std::string_view VerdictWord(TestVerdict verdict);

/// What one test run of one board came to.
struct TestRecord {
  std::string test{};   ///< "main", "ka2", "bq"
  std::string model{};  ///< display name
  DateTime startedAt{};
  Duration duration{};         ///< up to the record, ahead of the end of the session
  std::string operatorName{};  ///< who tested
  std::string station{};       ///< where
  std::string serial{};        ///< as the board tells it at the end
  std::string givenSerial{};   ///< the board has confirmed it in this run; empty for none
  bool checked = false;  ///< false when the board did not confirm the first order: what hangs on it
                         ///< was left out
  TestVerdict verdict = TestVerdict::Failed;
  std::vector<Measurement> values{};
  std::vector<std::string> failures{};  ///< as the operator was told
};

}  // namespace ostrel
