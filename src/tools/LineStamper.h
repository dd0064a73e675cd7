#pragma once

#include <string>
#include <string_view>

#include "platform/Clock.h"

namespace ostrel {

/// Puts the time of day before each line of a text that comes in pieces of any length.
class LineStamper {
 public:
  /// A piece with `stamp` before each line that begins in it; an empty one puts nothing there.
  std::string Take(std::string_view piece, std::string_view stamp);

 private:
  bool isAtStart_ = true;
  bool isBehindReturn_ = false;
};

/// "09:05:07.250 "
std::string StampOf(const Clock& clock);

}  // namespace ostrel
