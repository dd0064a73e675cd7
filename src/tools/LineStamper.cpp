#include "tools/LineStamper.h"

#include "base/Values.h"

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
  const auto now = clock.LocalTime();
  std::string stamp =
      DateTimeText(FromSeconds(std::chrono::floor<std::chrono::seconds>(now).count()));
  stamp.erase(0, stamp.find(' ') + 1);
  return stamp + "." + std::to_string(1000 + now.count() % 1000).substr(1) + " ";
}

}  // namespace ostrel
