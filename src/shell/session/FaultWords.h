#pragma once

#include <string_view>

#include "shell/session/SessionState.h"
#include "shell/words/Phrase.h"

namespace ostrel {

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

}  // namespace ostrel
