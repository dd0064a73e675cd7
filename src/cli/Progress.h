#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/Console.h"
#include "link/Comms.h"
#include "platform/EventLoop.h"
#include "shell/RemainingTime.h"

namespace ostrel::cli {

/// Shows on a terminal how far a transfer is, with the time that remains. It takes its line away at
/// its end.
class Progress {
 public:
  /// `steps` is how many records or statements there will be, as far as known.
  Progress(Console& console, EventLoop& loop, Comms& comms, std::string_view label, int steps,
           bool isShown);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// The farthest step seen: how many records or statements have passed.
  int Farthest() const { return farthest_; }

 private:
  void Follow(const ostrel::Progress& progress);
  void Draw();

  Console& console_;
  EventLoop& loop_;
  std::string label_;
  bool isShown_;
  RemainingTime time_;
  int farthest_ = 0;
  std::string drawn_;
  ProgressFeed::Subscription subscription_;
};

}  // namespace ostrel::cli
