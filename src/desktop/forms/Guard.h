#pragma once

#include <functional>

namespace ostrel {

/// Runs what an event of the user does. An exception must not pass through Qt: the guard catches it
/// and shows it, and the program goes on.
using Guard = std::function<void(const std::function<void()>&)>;

}  // namespace ostrel
