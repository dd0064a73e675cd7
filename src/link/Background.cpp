#include "link/Background.h"

#include <utility>

#include "base/Scope.h"
#include "link/Line.h"

namespace ostrel {

Background::Background(EventLoop& loop, Line& line) : loop_(loop), line_(line) {}

Background::~Background() { loop_.Cancel(next_); }

void Background::Run(Cut cut, const std::function<void()>& reading) {
  if (line_.LinkBusy || runs_) return;
  cut_ = cut;
  isCut_ = false;
  const AtEnd ended([this] { End(); });
  const Lent runs(runs_, true);
  reading();
}

void Background::WhenFree(std::function<void()> action) {
  if (!runs_) return action();
  waiting_.push_back(std::move(action));
  if (cut_ == Cut::Never) return;
  isCut_ = true;
  line_.GiveWay();
}

bool Background::Behind(std::function<void()> action) {
  if (runs_) waiting_.push_back(std::move(action));
  return runs_;
}

/// A timer that is due at once comes ahead of those that would begin the next reading.
void Background::End() {
  if (waiting_.empty()) return;
  loop_.Cancel(next_);
  next_ = loop_.After(Duration::zero(), "what waited for the line", [this] {
    next_ = 0;
    for (const auto& action : std::exchange(waiting_, {})) WhenFree(action);
  });
}

}  // namespace ostrel
