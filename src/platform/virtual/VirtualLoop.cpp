#include "platform/virtual/VirtualLoop.h"

#include <algorithm>
#include <utility>

namespace ostrel {
namespace {

std::string Milliseconds(Duration t) {
  const std::string fraction = std::to_string(t.count() % 1000 + 1000);
  return std::to_string(t.count() / 1000) + "." + fraction.substr(1) + " ms";
}

}  // namespace

bool VirtualLoop::Later(const Entry& a, const Entry& b) {
  return a.due != b.due ? a.due > b.due : a.sequence > b.sequence;
}

TimerId VirtualLoop::After(Duration delay, std::string_view name, Callback callback) {
  return Add(delay, Duration::zero(), name, std::move(callback));
}

TimerId VirtualLoop::Every(Duration interval, std::string_view name, Callback callback) {
  interval = std::max(interval, Duration{1});
  Duration delay = interval;
  for (const Timer& timer : timers_)
    if (timer.callback && timer.interval == interval) delay = timer.due - now_;
  if (delay <= Duration::zero()) delay += interval;  // the one that runs is late itself
  return Add(delay, interval, name, std::move(callback));
}

TimerId VirtualLoop::Add(Duration delay, Duration interval, std::string_view name,
                         Callback callback) {
  if (freeSlots_.empty()) {
    freeSlots_.push_back(static_cast<std::uint32_t>(timers_.size()));
    timers_.emplace_back();
  }
  const std::uint32_t slot = freeSlots_.back();
  freeSlots_.pop_back();
  Timer& timer = timers_[slot];
  timer.name.assign(name);
  timer.callback = std::make_shared<const Callback>(std::move(callback));
  timer.due = Sum(now_, std::max(delay, Duration::zero()));
  timer.interval = interval;
  Arm(slot);
  // The lower half is never 0, so that 0 can stand for "no timer".
  return TimerId{timer.generation} << 32 | (slot + 1);
}

void VirtualLoop::Arm(std::uint32_t slot) {
  Timer& timer = timers_[slot];
  timer.sequence = nextSequence_++;
  queue_.push_back({timer.due, timer.sequence, slot});
  std::push_heap(queue_.begin(), queue_.end(), Later);
}

void VirtualLoop::Free(std::uint32_t slot) {
  Timer& timer = timers_[slot];
  timer.callback.reset();
  timer.sequence = 0;
  ++timer.generation;
  freeSlots_.push_back(slot);
}

void VirtualLoop::Cancel(TimerId id) {
  const std::uint32_t slot = static_cast<std::uint32_t>(id) - 1;
  if (slot >= timers_.size()) return;
  if (timers_[slot].callback && timers_[slot].generation == id >> 32) Free(slot);
}

const VirtualLoop::Entry* VirtualLoop::Next() {
  while (!queue_.empty()) {
    const Entry& top = queue_.front();
    if (timers_[top.slot].sequence == top.sequence) return &top;
    std::pop_heap(queue_.begin(), queue_.end(), Later);
    queue_.pop_back();
  }
  return nullptr;
}

void VirtualLoop::Serve(const Entry& entry) {
  const std::uint32_t slot = entry.slot;
  if (entry.due > now_) {
    now_ = entry.due;
    pumpsInPlace_ = 0;
    ++wakings_;
  }
  std::pop_heap(queue_.begin(), queue_.end(), Later);
  queue_.pop_back();
  ++steps_;
  Timer& timer = timers_[slot];
  const std::shared_ptr<const Callback> callback = timer.callback;
  if (timer.interval > Duration::zero()) {
    // Armed before the call, so that ticks arrive in waits within it; whole intervals that were
    // missed are left out.
    const auto missed = (now_ - timer.due) / timer.interval;
    timer.due = Sum(timer.due, (missed + 1) * timer.interval);
    Arm(slot);
  } else {
    Free(slot);
  }
  (*callback)();
}

bool VirtualLoop::RunUntil(const Condition& condition, TimePoint deadline) {
  for (std::size_t steps = 0; !condition(); ++steps) {
    const Entry* next = Next();
    if (!next && deadline == kNever) Stuck("nothing can wake a wait without a deadline");
    if (!next || next->due > deadline) {
      if (deadline <= now_) return false;
      // The condition may depend on the time itself.
      now_ = deadline;
      pumpsInPlace_ = 0;
      return condition();
    }
    if (steps >= stepLimit_) {
      Stuck("a wait took more than " + std::to_string(stepLimit_) + " steps");
    }
    Serve(*next);
  }
  return true;
}

void VirtualLoop::PumpEvents() {
  if (++pumpsInPlace_ > stepLimit_) Stuck("the loop was pumped over and over without time moving");
  const std::uint64_t end = nextSequence_;
  for (const Entry* next = Next(); next && next->due <= now_; next = Next()) {
    if (next->sequence >= end) break;
    Serve(*next);
  }
}

void VirtualLoop::RunFor(Duration span) {
  RunUntil([] { return false; }, Sum(now_, span));
}

void VirtualLoop::HoldUp(Duration span) {
  now_ = Sum(now_, span);
  pumpsInPlace_ = 0;
}

std::string VirtualLoop::ListTimers() const {
  std::vector<const Timer*> pending;
  for (const Timer& timer : timers_) {
    if (timer.callback) pending.push_back(&timer);
  }
  std::sort(pending.begin(), pending.end(), [](const Timer* a, const Timer* b) {
    return a->due != b->due ? a->due < b->due : a->sequence < b->sequence;
  });
  std::string list;
  for (const Timer* timer : pending) {
    list += "  at " + Milliseconds(timer->due) + ": " + timer->name;
    if (timer->interval > Duration::zero()) list += ", every " + Milliseconds(timer->interval);
    list += "\n";
  }
  return list;
}

void VirtualLoop::Stuck(const std::string& why) const {
  const std::string list = ListTimers();
  throw LoopStuck("Stuck at " + Milliseconds(now_) + ": " + why + ". Timers:\n" +
                  (list.empty() ? "  none\n" : list));
}

}  // namespace ostrel
