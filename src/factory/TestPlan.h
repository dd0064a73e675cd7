#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel {

class TestRun;

/// The test of one model family.
struct TestPlan {
  std::string_view form;       ///< name of its page
  std::string_view word;       ///< as a command line and the records name it
  std::string_view modelName;  ///< display name of the model that it is for
  double scale;             ///< makes volts or degrees of what a board reads at its analog inputs
  std::string_view atRest;  ///< order that switches the fixture's outputs off
  /// What the operator sees to ahead of a run; empty for nothing.
  std::string_view hint;
  /// Everything ahead of the record and the end of the session.
  void (*steps)(TestRun& run);
  /// What the operator is asked for when the session has ended; empty for nothing.
  std::string_view lastRequest;
  /// Names of all that the run can measure, in its order.
  std::vector<std::string> (*values)();
};

/// Volts a step of a board's converter: the value of a single-precision number.
inline constexpr double kVoltsPerStep = 0.0024475F;

// One a family, each in a file of its own.
extern const TestPlan kTest;
extern const TestPlan kTestKA2;
extern const TestPlan kTestBQ;

/// All of them.
std::span<const TestPlan* const> TestPlans();

}  // namespace ostrel
