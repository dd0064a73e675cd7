#pragma once

#include <windows.h>

#include <QWinEventNotifier>
#include <cstddef>
#include <functional>
#include <optional>

#include "platform/qt/QtEventLoop.h"
#include "platform/windows/Handle.h"

namespace ostrel {

/// A call that the system carries out meanwhile, and that wakes the loop at its end. One may be
/// under way at a time. It must be abandoned before memory that the call uses goes.
class OverlappedCall {
 public:
  /// `onEnd` runs on the loop; it is to `End` the call.
  OverlappedCall(QtEventLoop& loop, std::function<void()> onEnd);
  OverlappedCall(const OverlappedCall&) = delete;
  OverlappedCall& operator=(const OverlappedCall&) = delete;

  OVERLAPPED* State() { return &state_; }
  bool IsUnderWay() const { return isUnderWay_; }
  /// Takes what a call that was just begun has given; false when it was refused.
  bool Begun(bool isDone);
  /// How many octets the ended call has moved; nothing after a failure, of which the system tells
  /// the last error.
  std::optional<std::size_t> End(HANDLE device);
  /// Breaks the call off and waits until the system has let go of its memory.
  void Abandon(HANDLE device);

 private:
  OVERLAPPED state_{};
  Handle event_;
  QWinEventNotifier notifier_;
  bool isUnderWay_ = false;
};

}  // namespace ostrel
