#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "platform/EventLoop.h"

namespace ostrel {

/// The kinds of what a trace tells.
enum class TraceKind { Sent, Received, Modem, Remark };

/// One line of the trace.
struct TraceEntry {
  std::chrono::milliseconds time{};  ///< local, since 1 January 1970 at midnight
  TraceKind kind = TraceKind::Remark;
  std::string text{};  ///< "RxSer: #BF"

  /// "2026-03-02 09:05:07.012 RxSer: #BF".
  std::string Line() const;
};

/// Keeps what went over the line lately, for those who look afterwards: the last 10 minutes, and
/// never more than `kMost` lines.
class TraceLog {
 public:
  static constexpr Duration kSpan = std::chrono::minutes(10);
  static constexpr std::size_t kMost = 20'000;

  TraceLog(const EventLoop& loop, const Clock& clock) : loop_(loop), clock_(clock) {}

  /// Takes a line as the link tells it, with the stamp that it has there.
  void Add(std::string_view line);
  void Clear() { kept_.clear(); }
  /// Runs `show` on each entry that is not too old, the first one first.
  void ForEach(const std::function<void(const TraceEntry&)>& show);

  /// Runs after an entry has been added. Set by the face.
  std::function<void(const TraceEntry&)> OnAdded;

 private:
  struct Kept {
    TimePoint at;
    TraceEntry entry;
  };

  void Forget();

  const EventLoop& loop_;
  const Clock& clock_;
  std::deque<Kept> kept_;
};

}  // namespace ostrel
