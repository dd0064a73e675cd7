#include "platform/qt/QtEventLoop.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <algorithm>
#include <utility>

namespace ostrel {
namespace {

constexpr Duration kLongestAlarm = std::chrono::hours(1);

/// Stops a timer at the end of a scope, also when that is left by an exception.
struct Canceller {
  EventLoop& loop;
  TimerId timer;

  ~Canceller() { loop.Cancel(timer); }
};

}  // namespace

QtEventLoop::QtEventLoop() {
  clock_.start();
  alarm_.setSingleShot(true);
  alarm_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&alarm_, &QTimer::timeout, &alarm_, [this] { ServeOne(); });
}

TimePoint QtEventLoop::Now() const {
  return std::chrono::duration_cast<TimePoint>(std::chrono::nanoseconds(clock_.nsecsElapsed()));
}

TimerId QtEventLoop::After(Duration delay, std::string_view, Callback callback) {
  return Add(delay, Duration::zero(), std::move(callback));
}

TimerId QtEventLoop::Every(Duration interval, std::string_view, Callback callback) {
  interval = std::max<Duration>(interval, std::chrono::milliseconds(1));
  return Add(interval, interval, std::move(callback));
}

TimerId QtEventLoop::Add(Duration delay, Duration interval, Callback callback) {
  TimePoint due = Sum(Now(), std::max(delay, Duration::zero()));
  if (interval > Duration::zero()) due -= due % interval;
  timers_.push_back(
      {++lastId_, due, interval, std::make_shared<const Callback>(std::move(callback))});
  SetAlarm();
  return lastId_;
}

void QtEventLoop::Cancel(TimerId id) {
  std::erase_if(timers_, [id](const Timer& timer) { return timer.id == id; });
}

std::vector<QtEventLoop::Timer>::iterator QtEventLoop::Earliest() {
  return std::min_element(timers_.begin(), timers_.end(),
                          [](const Timer& a, const Timer& b) { return a.due < b.due; });
}

/// Sets the alarm for the earliest timer. A stale alarm is harmless: it sets the next one.
void QtEventLoop::SetAlarm() {
  const auto next = Earliest();
  if (next == timers_.end()) return;
  const Duration left = std::clamp(next->due - Now(), Duration::zero(), kLongestAlarm);
  const auto ms = std::chrono::ceil<std::chrono::milliseconds>(left);
  if (!alarm_.isActive() || alarm_.remainingTimeAsDuration() > ms) alarm_.start(ms);
}

/// Serves the earliest timer if it is due: one at a time, so that waits see each.
void QtEventLoop::ServeOne() {
  const auto next = Earliest();
  if (next == timers_.end() || next->due > Now()) {
    SetAlarm();
    return;
  }
  Timer timer = *next;
  timers_.erase(next);
  if (timer.interval > Duration::zero()) {
    // Armed before the call, so that ticks arrive in waits within it; whole intervals that were
    // missed are left out.
    const auto missed = (Now() - timer.due) / timer.interval;
    timer.due += (missed + 1) * timer.interval;
    timers_.push_back(timer);
  }
  SetAlarm();
  Guard(*timer.callback);
}

void QtEventLoop::Guard(const Callback& callback) {
  ++served_;
  try {
    callback();
  } catch (...) {
    if (waits_ == 0 && faultHandler_) {
      faultHandler_(std::current_exception());
    } else if (!fault_) {
      fault_ = std::current_exception();
    }
  }
}

/// One round of Qt's loop, as a wait under way; throws what a callback threw. Qt for Windows wakes
/// for what is put into its queue, serves that with the next round, and sleeps on in the same
/// round. So what stands there is served ahead of a sleep, and instead of it.
void QtEventLoop::Process(bool sleep) {
  ++waits_;
  const std::uint64_t before = served_;
  if (!fault_ && sleep) QCoreApplication::sendPostedEvents();
  sleep = sleep && served_ == before;
  if (!fault_)
    QEventLoop().processEvents(sleep ? QEventLoop::WaitForMoreEvents : QEventLoop::AllEvents);
  --waits_;
  if (fault_) std::rethrow_exception(std::exchange(fault_, nullptr));
}

bool QtEventLoop::RunUntil(const Condition& condition, TimePoint deadline) {
  if (condition()) return true;
  TimerId wake = 0;
  if (deadline != kNever) wake = After(deadline - Now(), "end of wait", [] {});
  const Canceller canceller{*this, wake};
  while (true) {
    const bool over = Now() >= deadline;
    Process(!over);
    if (condition()) return true;
    if (over) return false;
  }
}

void QtEventLoop::PumpEvents() { Process(false); }

}  // namespace ostrel
