#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/EventLoop.h"

namespace ostrel {

/// A wait on virtual time that can never end, or that took more steps than allowed. Its text lists
/// the timers by name and due time.
class LoopStuck : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An event loop on virtual time: an idle wait jumps to the next due timer, so a wait of any length
/// costs no more than its events. Timers due at the same time are served in the order in which they
/// were set. Time stands still between events and outside waits.
class VirtualLoop final : public EventLoop {
 public:
  TimePoint Now() const override { return now_; }
  TimerId After(Duration delay, std::string_view name, Callback callback) override;
  /// An interval below 1 microsecond counts as 1.
  TimerId Every(Duration interval, std::string_view name, Callback callback) override;
  void Cancel(TimerId timer) override;
  /// What is due at the deadline itself is still served. Throws `LoopStuck`.
  bool RunUntil(const Condition& condition, TimePoint deadline) override;
  /// Throws `LoopStuck` when called over and over without time moving: a wait that spins on this
  /// never ends on virtual time.
  void PumpEvents() override;

  /// Serves everything that falls due within `span`.
  void RunFor(Duration span);
  /// Moves time without serving anything, like a computation that holds the loop up.
  void HoldUp(Duration span);
  /// Steps (timers served) that a single wait may take; 10 million at first.
  void SetStepLimit(std::size_t steps) { stepLimit_ = steps; }
  /// Timers served since the start.
  std::uint64_t Steps() const { return steps_; }
  /// How often an idle wait had to go on to a later time.
  std::uint64_t Wakings() const { return wakings_; }
  /// One line a pending timer: due time in ms, name and, if periodic, interval.
  std::string ListTimers() const;

 private:
  struct Timer {
    std::string name;
    std::shared_ptr<const Callback> callback;  ///< empty in a free slot
    TimePoint due{};
    Duration interval{};         ///< zero for a single shot
    std::uint64_t sequence = 0;  ///< order of setting; tells a live queue entry from a stale one
    std::uint32_t generation = 0;
  };
  struct Entry {
    TimePoint due;
    std::uint64_t sequence;
    std::uint32_t slot;
  };

  static bool Later(const Entry& a, const Entry& b);
  TimerId Add(Duration delay, Duration interval, std::string_view name, Callback callback);
  void Arm(std::uint32_t slot);
  void Free(std::uint32_t slot);
  const Entry* Next();
  void Serve(const Entry& entry);
  [[noreturn]] void Stuck(const std::string& why) const;

  TimePoint now_{};
  std::vector<Timer> timers_;
  std::vector<std::uint32_t> freeSlots_;
  std::vector<Entry> queue_;  ///< a heap with the earliest entry on top; may hold stale entries
  std::uint64_t nextSequence_ = 1;
  std::uint64_t steps_ = 0;
  std::uint64_t wakings_ = 0;
  std::size_t stepLimit_ = 10'000'000;
  std::size_t pumpsInPlace_ = 0;
};

}  // namespace ostrel
