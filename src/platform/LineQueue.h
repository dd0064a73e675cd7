#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "platform/EventLoop.h"

namespace ostrel {

/// One direction of a line: octets that were put on it and not taken off at its far end yet.
///
/// Paced, an octet needs its line time: how many have arrived follows from the clock, to the octet.
/// The wake-up comes after a carriage return, after 16 octets and after the last octet, so a long
/// stream costs a fraction of an event an octet. Unpaced, what was put arrives with the next events
/// of the loop, 4,096 octets at a time as a driver hands them over, never within `Put`.
class LineQueue {
 public:
  /// `onArrival` is called from the loop, to take what has arrived.
  LineQueue(EventLoop& loop, std::string_view name, std::function<void()> onArrival);
  ~LineQueue();
  LineQueue(const LineQueue&) = delete;
  LineQueue& operator=(const LineQueue&) = delete;

  /// Counts for what is put on an empty queue; changing it restarts the octet on the line.
  void SetPaced(bool paced);
  bool Paced() const { return paced_; }
  void Put(std::string_view octets);
  /// Octets that have arrived and were not taken.
  std::size_t Arrived() const;
  /// Octets that have not arrived.
  std::size_t Underway() const { return Held() - Arrived(); }
  /// Takes up to `most` of the octets that have arrived.
  std::string Take(std::size_t most);
  /// Stops the line, like a low CTS, or starts it again; the octet on the line starts anew.
  void Hold(bool hold);
  bool OnHold() const { return hold_; }
  /// Forgets the octets that have not arrived.
  void Discard();
  /// Lets everything arrive at once.
  void Flush();
  /// Forgets all octets.
  void Clear();

 private:
  std::size_t Held() const { return octets_.size() - first_; }
  std::size_t Coming() const;
  void Settle();
  void Restart();
  void Schedule();
  void WakeIn(Duration delay);
  void Wake();

  EventLoop& loop_;
  std::string name_;
  std::function<void()> onArrival_;
  bool paced_ = false;
  bool hold_ = false;
  std::string octets_;  ///< up to `first_` taken ones, then the held ones
  std::size_t first_ = 0;
  std::size_t ready_ = 0;    ///< held octets that are known to have arrived
  TimePoint start_{};        ///< when the line last began to move
  std::size_t settled_ = 0;  ///< octets that became ready since `start_`
  TimerId wake_ = 0;
};

}  // namespace ostrel
