#pragma once

#include <functional>
#include <optional>
#include <string>

#include "link/Progress.h"
#include "platform/EventLoop.h"
#include "shell/session/RecordCounts.h"
#include "shell/session/RemainingTime.h"

namespace ostrel {

/// Follows a long dialogue: how many records, statements, octets or places of a list it will have,
/// how many are done, and what time is left. Every face shows its progress by this one.
class TransferWatch {
 public:
  TransferWatch(const EventLoop& loop, Settings& settings) : loop_(loop), counts_(settings) {}

  /// A download from a logger of a model comes next; it is expected to be as long as the last one.
  void BeginReading(const std::string& targetType);
  /// An upload of so many statements, or octets, comes next.
  void BeginWriting(int steps);
  /// A dialogue on a list of so many places comes next.
  void BeginList(int places) { Begin({}, places); }
  /// Takes how far the transfer is. A number that falls is a new attempt. A download that has
  /// brought everything tells how long the next one is expected to be.
  void Follow(const Progress& progress);
  /// The transfer has ended, whether it had begun or not.
  void End() { running_ = false; }

  bool Running() const { return running_; }
  int Done() const { return time_.Done(); }
  int Steps() const { return time_.Steps(); }
  /// Whether it is known how many steps there will be.
  bool KnowsSteps() const { return !time_.IsOverrun(); }
  /// Whether any attempt of the transfer has come to its last step.
  bool ReachedEnd() const { return reachedEnd_; }
  /// The time that is left, or nothing as long as no speed is known.
  std::optional<Duration> Left() const { return time_.Left(loop_.Now()); }

  /// Runs after each step. Set by the face.
  std::function<void()> OnStep;

 private:
  void Begin(std::string readFrom, int steps);

  const EventLoop& loop_;
  RecordCounts counts_;
  RemainingTime time_;
  bool running_ = false;
  bool reachedEnd_ = false;
  std::string readFrom_;  ///< type of the model that a download reads from; empty in an upload
};

}  // namespace ostrel
