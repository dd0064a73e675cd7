#pragma once

#include <functional>
#include <string_view>

#include "link/Line.h"
#include "model/DeviceInfo.h"

namespace ostrel {

/// How a logger's refusal of a statement begins.
inline constexpr std::string_view kStatementRefused = "#BA0";

/// How long a statement waits for the refusal of a logger of these features, in ms.
int RefusalWindowMs(std::int32_t features);

/// Statements that go to a logger one after the other, each with a number of three digits that
/// rises from 0. A logger says nothing to a statement that it takes.
class NumberedStatements {
 public:
  /// `left` runs when a statement has left, ahead of the wait for its refusal.
  NumberedStatements(Line& line, const DeviceInfo& info, std::function<void()> left)
      : line_(line), info_(info), left_(std::move(left)) {}

  /// None has been sent yet.
  void Restart() { sent_ = 0; }
  int Sent() const { return sent_; }
  /// Sends one. The logger may refuse it within its window; silence is good.
  LinkFault Send(std::string_view statement);
  /// The message that closes what has been sent.
  std::string Closing() const;

 private:
  Line& line_;
  const DeviceInfo& info_;
  std::function<void()> left_;
  int sent_ = 0;
};

}  // namespace ostrel
