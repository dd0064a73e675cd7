#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/qt/QtEventLoop.h"

namespace ostrel {

/// Whoever takes the lines of standard input.
struct InputTaker {
  std::function<void(std::string line)> onLine;
  std::function<void()> onEnd;
};

/// Puts together the lines of what is read in parts.
class LineJoiner {
 public:
  explicit LineJoiner(InputTaker taker) : taker_(std::move(taker)) {}

  void Take(std::string_view octets) {
    for (const char c : octets)
      if (c == '\n')
        taker_.onLine(std::exchange(line_, {}));
      else if (c != '\r')
        line_ += c;
  }
  /// The last line may lack its end.
  void End() {
    if (!line_.empty()) taker_.onLine(std::exchange(line_, {}));
    taker_.onEnd();
  }

 private:
  InputTaker taker_;
  std::string line_;  ///< the one under way
};

/// Hands over the lines of standard input, each as it comes, and then its end, as long as what is
/// returned lives. What was read for it is lost to whoever reads standard input later. The set of
/// the system underneath brings this.
std::shared_ptr<void> WatchInputLines(QtEventLoop& loop, InputTaker taker);

}  // namespace ostrel
