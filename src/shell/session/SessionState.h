#pragma once

#include <optional>

#include "link/LinkFault.h"

namespace ostrel {

/// What a session is doing.
enum class SessionPhase { Closed, Opening, Open, Reading, Writing, Updating, Closing };

/// Whether a phase carries a whole configuration over the line.
constexpr bool IsTransfer(SessionPhase phase) {
  return phase == SessionPhase::Reading || phase == SessionPhase::Writing;
}

/// What is done with the voice-call list, within a session that is open.
enum class ListWork { None, Reading, Writing };

/// Whether a phase is one long dialogue, which has stretches in which no answer is due.
constexpr bool IsLongDialogue(SessionPhase phase) {
  return IsTransfer(phase) || phase == SessionPhase::Updating;
}

/// What is known of the flash of a logger whose update did not come to its end.
enum class FlashState {
  Kept,     ///< it holds a firmware
  InDoubt,  ///< the order to erase it went out, and whether it was heard is not known
  Erased
};

/// How the question for an access code was answered while a session was opened.
enum class CodeAnswer { NotAsked, NotGiven, Given };

/// What a session failed of.
struct SessionFault {
  /// Opening, Reading, Writing or Updating; Open for any shorter dialogue.
  SessionPhase during = SessionPhase::Open;
  LinkFault link{};
  bool brokenOff = false;   ///< by the operator
  bool allSent = false;     ///< an upload had nothing left to send but its end
  bool unverified = false;  ///< an earlier upload of the session was taken over, not yet read back
  bool writingVoiceList = false;        ///< which begins with erasing the one that the logger holds
  FlashState flash = FlashState::Kept;  ///< behind an update
  CodeAnswer code = CodeAnswer::NotAsked;
};

/// What a session is doing, and what went wrong last.
struct SessionState {
  SessionPhase phase = SessionPhase::Closed;
  /// Why the last opening or transfer failed; nothing once another one, or closing, has begun.
  std::optional<SessionFault> failed{};
};

}  // namespace ostrel
