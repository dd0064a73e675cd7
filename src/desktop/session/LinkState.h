#pragma once

#include <QString>

#include "shell/session/LinkLife.h"

namespace ostrel {

class Configurator;

/// What a transfer that has been asked for still waits for.
enum class RequestWait { None, Session, GeneralPage };

/// What the link is doing, as the session bar tells it.
struct LinkState {
  SessionPhase phase = SessionPhase::Closed;
  LinkLife life{};
  int silentSeconds = 0;  ///< how long an answer has been awaited in vain; 0 below 2 s
  RequestWait wait = RequestWait::None;
  ListWork list = ListWork::None;  ///< with the voice-call list
  int step = 0;                    ///< of the three transfers of a guarded writing; 0 for any other
};

LinkState LinkStateOf(Configurator& configurator);

/// "Reading", "Reading, silent for 4 s", "Silent, last answer 0:12 ago".
QString LinkStateWords(const LinkState& state);

}  // namespace ostrel
