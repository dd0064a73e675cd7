#pragma once

#include <functional>
#include <memory>

#include "platform/qt/QtEventLoop.h"

class QWinEventNotifier;

namespace ostrel {

/// Brings what ends a program (Ctrl+C, Ctrl+Break, a console that is closed, the end of the user's
/// session) to the event loop, where it is safe to act on it. One of them may exist at a time.
class ConsoleEvents {
 public:
  ConsoleEvents(QtEventLoop& loop, std::function<void()> onEvent);
  ~ConsoleEvents();
  ConsoleEvents(const ConsoleEvents&) = delete;
  ConsoleEvents& operator=(const ConsoleEvents&) = delete;

  /// Whether one has come, be it that the loop has not got to it yet.
  static bool HasCome();

 private:
  std::unique_ptr<QWinEventNotifier> notifier_;
};

}  // namespace ostrel
