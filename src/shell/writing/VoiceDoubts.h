#pragma once

#include <optional>
#include <string>

#include "model/ConfAutVoz.h"

namespace ostrel {

/// What speaks against writing a voice-call list: a logger erases its own before it looks at a
/// number.
struct VoiceDoubt {
  enum class Kind {
    Empty,     ///< the logger would only lose its numbers
    NoNumber,  ///< a place holds something else
    TooMany,
    NoMacro  ///< voice calls do not start this one
  };

  Kind kind = Kind::Empty;
  int place = 0;         ///< of the first that is no number, as files count them
  std::string number{};  ///< what stands there
  int count = 0;         ///< how many are no numbers
};

/// The first doubt about a list; nothing where a logger would take it.
std::optional<VoiceDoubt> DoubtOfVoiceList(const ConfAutVoz& list);

}  // namespace ostrel
