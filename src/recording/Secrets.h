#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ostrel {

/// Takes access codes and passwords out of the lines of a recording.
class Secrets {
 public:
  /// An octet line, with or without its end, in which "****" stands for each secret. A frame stays
  /// good or bad as it was: its two digits are those of what stands there now, so that they tell
  /// nothing either. An access code that was sent once is masked wherever it comes again.
  std::string Masked(std::string_view line);

 private:
  std::vector<std::string> codes_;  ///< as sent, from 3 characters on
};

/// Whether what has come of a line may be its end or the start of a secret, so that it must not be
/// shown before the whole line is there.
bool MayHoldSecret(std::string_view part);

}  // namespace ostrel
