#pragma once

#include <functional>
#include <vector>

#include "platform/EventLoop.h"

namespace ostrel {

class Line;

/// Reading that nobody waits for, such as live values and the information of the general page, and
/// its place behind what is asked for.
///
/// Such a reading waits on the event loop like any dialogue, so a click that arrives in it finds
/// the line taken, and whatever the click waited for would hold the reading up in turn. What the
/// operator asks for therefore goes through `WhenFree`.
class Background {
 public:
  Background(EventLoop& loop, Line& line);
  ~Background();
  Background(const Background&) = delete;
  Background& operator=(const Background&) = delete;

  /// Whether a reading may end behind any of its messages.
  enum class Cut { BetweenMessages, Never };
  /// Runs a reading, unless a dialogue runs.
  void Run(Cut cut, const std::function<void()>& reading);
  /// Runs what wants the line: at once, or from the event loop as soon as the reading under way has
  /// ended. A reading that may be cut ends behind the message under way.
  void WhenFree(std::function<void()> action);
  /// The same without haste; dropped, which false tells, while no reading runs.
  bool Behind(std::function<void()> action);
  /// Whether a reading is under way.
  bool Runs() const { return runs_; }
  /// Whether a reading was cut: what it has brought is not whole.
  bool IsCut() const { return isCut_; }

 private:
  /// Lets those who wait go ahead.
  void End();

  EventLoop& loop_;
  Line& line_;
  bool runs_ = false;
  Cut cut_ = Cut::Never;
  bool isCut_ = false;
  std::vector<std::function<void()>> waiting_;
  TimerId next_ = 0;
};

}  // namespace ostrel
