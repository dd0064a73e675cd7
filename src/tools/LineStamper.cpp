#include "tools/LineStamper.h"

namespace ostrel {

std::string LineStamper::Take(std::string_view piece, std::string_view stamp) {
  std::string stamped;
  for (const char c : piece) {
    // A line ends with either of the two, or with both.
    const bool endsPair = c == '\n' && isBehindReturn_;
    if (isAtStart_ && !endsPair) stamped += stamp;
    stamped += c;
    isBehindReturn_ = c == '\r';
    isAtStart_ = c == '\r' || c == '\n';
  }
  return stamped;
}

std::string StampOf(const Clock& clock) {
  const std::string stamp = StampText(clock.LocalTime());
  return stamp.substr(stamp.find(' ') + 1) + " ";
}

}  // namespace ostrel
