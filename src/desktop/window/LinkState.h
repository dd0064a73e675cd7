#pragma once

#include <QString>

#include "shell/SessionState.h"

namespace ostrel {

class Configurator;

/// What a transfer that has been asked for still waits for.
enum class RequestWait { None, Session, GeneralPage };

/// What the link is doing, as the status bar tells it.
struct LinkState {
  SessionPhase phase = SessionPhase::Closed;
  int silentSeconds = 0;  ///< how long an answer has been awaited in vain; 0 below 2 s
  RequestWait wait = RequestWait::None;

  bool operator==(const LinkState&) const = default;
};

LinkState LinkStateOf(Configurator& configurator);

/// "Reading", "Reading, silent for 4 s".
QString LinkStateWords(const LinkState& state);

}  // namespace ostrel
