#pragma once

#include <optional>

#include "platform/Time.h"
#include "shell/session/FaultWords.h"
#include "shell/session/SessionState.h"

namespace ostrel {

class Comms;

/// How the line of a session does.
enum class LinkHealth {
  NoSession,
  Alive,    ///< the logger has answered lately
  Resting,  ///< it was not asked lately, as on all pages but the general one: nothing is known
  Silent,   ///< it was asked, and its last answer is too old
  Lost      ///< the port's device, or the carrier, has gone
};

struct LinkLife {
  LinkHealth health = LinkHealth::NoSession;
  Duration sinceAnswer{};  ///< age of the last answer
};

/// How the line does, from what it has done: nothing is sent to find out.
LinkLife LifeOf(const Comms& comms, bool connected, SessionPhase phase);

/// Why nothing may be written on such a line; nothing where writing may be tried.
std::optional<Phrase> WhyWritingRests(const LinkLife& life);

}  // namespace ostrel
