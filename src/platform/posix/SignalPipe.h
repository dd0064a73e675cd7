#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "platform/qt/QtEventLoop.h"

namespace ostrel {

/// Brings the signals that end a program (from the keyboard, by `kill`, by a terminal that goes, by
/// a reader of the output that goes) to the event loop, where it is safe to act on them. One of
/// them may exist at a time. A read from the terminal that is under way ends when a signal comes.
///
/// A file that reaches the limit of the system fails to be written, and ends nothing.
///
/// A terminal or a reader that goes stays ignored where the program was started so, as by `nohup`.
class SignalPipe {
 public:
  SignalPipe(QtEventLoop& loop, std::function<void()> onSignal);
  ~SignalPipe();
  SignalPipe(const SignalPipe&) = delete;
  SignalPipe& operator=(const SignalPipe&) = delete;

  /// Whether a signal has come, be it that the loop has not got to it yet.
  static bool HasCome();

 private:
  void Drain() const;

  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace ostrel
