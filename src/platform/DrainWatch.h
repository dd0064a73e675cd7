#pragma once

#include <cstddef>
#include <functional>
#include <utility>

#include "platform/EventLoop.h"

namespace ostrel {

/// Wakes the loop while an output queue empties, since no driver tells when it has. It looks when
/// the queue can be empty at line speed; a queue that does not move is looked at ever more seldom,
/// down to once a second, until `Start` tells that it may move again.
class DrainWatch {
 public:
  /// `queued` counts the octets that wait.
  DrainWatch(EventLoop& loop, std::function<std::size_t()> queued)
      : loop_(loop), queued_(std::move(queued)) {}
  ~DrainWatch() { Stop(); }
  DrainWatch(const DrainWatch&) = delete;
  DrainWatch& operator=(const DrainWatch&) = delete;

  /// Octets were queued, or flow control may have let the line go.
  void Start();
  void Stop();

 private:
  void Look();

  EventLoop& loop_;
  std::function<std::size_t()> queued_;
  TimerId timer_ = 0;
  Duration pause_{};
  std::size_t seen_ = 0;  ///< octets at the last look
};

}  // namespace ostrel
