#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/SessionState.h"

namespace ostrel {

/// Part of a sentence in English, without a capital and a full stop. "%1" and "%2" stand where its
/// arguments go. A face that speaks other languages knows the part by its text.
struct Phrase {
  std::string text{};
  std::vector<std::string> arguments{};

  bool operator==(const Phrase&) const = default;
};

/// What a fault is told with. All but the first part may be empty.
struct FaultWords {
  Phrase what{};
  Phrase remedy{};   ///< what helps
  Phrase outcome{};  ///< how the logger stands now
  Phrase pages{};    ///< what the pages show now, for a face that has pages
};

/// The words for a fault of a session, without any password. `port` names what stands behind the
/// port.
FaultWords WordsOf(const SessionFault& fault, std::string_view port);

/// A text with its arguments in their places.
std::string Filled(std::string_view text, const std::vector<std::string>& arguments);
inline std::string Filled(const Phrase& phrase) { return Filled(phrase.text, phrase.arguments); }

}  // namespace ostrel
