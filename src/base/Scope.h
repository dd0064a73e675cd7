#pragma once

#include <utility>

namespace ostrel {

/// Runs an action at the end of a scope, however that is left. The action must not throw.
template <class Action>
class AtEnd {
 public:
  explicit AtEnd(Action action) : action_(std::move(action)) {}
  ~AtEnd() { action_(); }
  AtEnd(const AtEnd&) = delete;
  AtEnd& operator=(const AtEnd&) = delete;

 private:
  Action action_;
};

/// Gives a variable another value until the end of a scope.
template <class T>
class Lent {
 public:
  Lent(T& variable, T value)
      : variable_(variable), kept_(std::exchange(variable, std::move(value))) {}
  ~Lent() { variable_ = std::move(kept_); }
  Lent(const Lent&) = delete;
  Lent& operator=(const Lent&) = delete;

 private:
  T& variable_;
  T kept_;
};

}  // namespace ostrel
