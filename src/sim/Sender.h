#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "platform/EventLoop.h"
#include "platform/Line.h"
#include "sim/Faults.h"

namespace ostrel::sim {

/// The logger's way out: frames messages, lets the faults of the line at them, and keeps order
/// where a fault delays. What needs no wait leaves in one piece at `Flush`.
class Sender {
 public:
  Sender(EventLoop& loop, LineEnd& line, FaultPlan& plan, std::function<void()> onCarrierDrop);
  ~Sender();
  Sender(const Sender&) = delete;
  Sender& operator=(const Sender&) = delete;

  /// Queues a message as a frame; with a `tear`, its second half that much later than its first.
  /// Where very much waits already it is lost.
  void Frame(std::string_view message, Duration tear = {});
  /// Queues octets that are no frame, such as the words of a console.
  void Text(std::string_view octets);
  /// What is queued behind this leaves that much later.
  void Wait(Duration wait) { pieces_.push_back({wait, {}, End::None}); }
  /// Sends what is queued.
  void Flush();
  /// Forgets what has not left.
  void Clear();

 private:
  enum class End { None, CarrierDrop, Vanish };
  struct Piece {
    Duration wait{};
    std::string octets;
    End end = End::None;
  };

  static constexpr std::size_t kMostWaiting = 4'194'304;

  Piece& Last();
  void Put(std::string_view octets);

  EventLoop& loop_;
  LineEnd& line_;
  FaultPlan& plan_;
  std::function<void()> onCarrierDrop_;
  std::deque<Piece> pieces_;
  std::size_t waiting_ = 0;  ///< octets in these
  TimerId wait_ = 0;
  bool gone_ = false;
};

}  // namespace ostrel::sim
