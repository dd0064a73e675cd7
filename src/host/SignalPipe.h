#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "platform/qt/QtEventLoop.h"

namespace ostrel {

/// Brings SIGINT and SIGTERM to the event loop, where it is safe to act on them. One of them may
/// exist at a time. A read from the terminal that is under way ends when a signal comes.
class SignalPipe {
 public:
  SignalPipe(QtEventLoop& loop, std::function<void()> onSignal);
  ~SignalPipe();
  SignalPipe(const SignalPipe&) = delete;
  SignalPipe& operator=(const SignalPipe&) = delete;

 private:
  void Drain() const;

  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace ostrel
