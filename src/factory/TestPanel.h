#pragma once

#include <string>
#include <string_view>

#include "factory/TestRecord.h"

namespace ostrel {

/// What a line of a run is.
enum class StepKind {
  Work,     ///< what the run does
  Prompt,   ///< the same, of which the operator does a part
  Verdict,  ///< its end
};

/// Where a test run shows itself and asks its operator: a page, or a terminal. Texts are shown as
/// they stand, in every language.
class TestPanel {
 public:
  virtual ~TestPanel() = default;
  virtual void ShowStep(std::string_view text, StepKind kind) = 0;
  virtual void ShowMeasured(const Measurement& measured) = 0;
  /// The modem's signal.
  virtual void ShowSignal(int rssi) = 0;
  virtual void ShowSerial(const std::string& serial) = 0;
  /// Tells of a check that has failed, until the operator has seen it.
  virtual void TellFailure(const std::string& text) = 0;
  /// Asks for something to be done at the fixture, and waits until it is.
  virtual void Request(const std::string& text) = 0;
  /// Tells that something could not be done; true when it is to be tried again.
  virtual bool AskAgain(const std::string& text) = 0;
  /// Ends the session with the board; it need not have ended when this returns.
  virtual void CloseSession() = 0;
};

}  // namespace ostrel
