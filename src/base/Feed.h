#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace ostrel {

/// Hands what happens to whoever listens, in the order of listening.
template <class Event>
class Feed {
 public:
  using Listener = std::function<void(const Event&)>;
  /// Keeps a listener listening as long as it lives.
  using Subscription = std::shared_ptr<const Listener>;

  [[nodiscard]] Subscription Listen(Listener listener) {
    auto subscription = std::make_shared<const Listener>(std::move(listener));
    listeners_.push_back(subscription);
    return subscription;
  }

  void Tell(const Event& event) {
    std::erase_if(listeners_, [](const auto& listener) { return listener.expired(); });
    // A listener may bring or take others while it is called.
    const auto called = listeners_;
    for (const auto& listener : called)
      if (const Subscription alive = listener.lock()) (*alive)(event);
  }

 private:
  std::vector<std::weak_ptr<const Listener>> listeners_;
};

}  // namespace ostrel
