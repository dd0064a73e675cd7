#include "link/Progress.h"

#include <utility>

namespace ostrel {

ProgressFeed::Subscription ProgressFeed::Listen(Listener listener) {
  auto subscription = std::make_shared<const Listener>(std::move(listener));
  listeners_.push_back(subscription);
  return subscription;
}

void ProgressFeed::Tell(const Progress& progress) {
  std::erase_if(listeners_, [](const auto& listener) { return listener.expired(); });
  // A listener may bring or take others while it is called.
  const auto called = listeners_;
  for (const auto& listener : called)
    if (const Subscription alive = listener.lock()) (*alive)(progress);
}

}  // namespace ostrel
