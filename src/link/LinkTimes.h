#pragma once

#include <cstddef>

#include "platform/Time.h"

namespace ostrel {

/// The times and counts of the link, each in one place. What ends in Ms is handed to a wait in
/// milliseconds.

// Waits for an answer.
inline constexpr int kCableReplyMs = 1000;
inline constexpr int kModemReplyMs = 10'000;
inline constexpr int kModemAnswerMs = 1000;
inline constexpr int kDialExtraMs = 30'000;  ///< on top of the reply wait
inline constexpr int kHangUpMs = 5000;
inline constexpr int kProbeReplyMs = 500;
inline constexpr int kTestReplyMs = 1000;  ///< of a board under test, on whatever line
inline constexpr int kRefusalMs = 200;     ///< for the refusal of a statement
inline constexpr int kFastRefusalMs = 10;
inline constexpr int kEraseMs = 10'000;   ///< on top of the reply wait, while a list is erased
inline constexpr int kVoicePauseMs = 50;  ///< behind each number of the voice-call list

// Waits of a firmware update.
inline constexpr int kFlashAnswerMs = 10'000;   ///< until the logger says that it erases its flash
inline constexpr int kFlashEraseMs = 50'000;    ///< until it has erased it
inline constexpr int kImageEndMs = 10'000;      ///< for its last word on the image
inline constexpr int kLoaderAnswerMs = 20'000;  ///< until it is ready for the loader
/// For a sign of life behind a block that has left: the time of its own octets, and to spare.
inline constexpr int kAliveMarkMs = 100;

/// How often a message is sent, and a dialogue tried, before it counts as failed.
inline constexpr int kLinkAttempts = 3;
inline constexpr int kCodePasses = 3;

// Silence around the escape of a modem.
inline constexpr int kGuardMs = 1000;
inline constexpr int kBetweenPlusMs = 200;

// Quiet on the line before something is said. A source that never stops is heard out for the
// longest time that stands beside it, and then spoken to all the same.
inline constexpr int kStaleMs = 100;  ///< without a line, ahead of a message
inline constexpr Duration kLongestStale = std::chrono::seconds(10);
inline constexpr int kOpeningQuietMs = 1000;  ///< without a frame, ahead of the first word
/// Enough for the rest of most downloads that a former session has broken off.
inline constexpr Duration kLongestOpeningQuiet = std::chrono::seconds(20);
inline constexpr Duration kStreamQuiet = std::chrono::milliseconds(300);  ///< without an octet
inline constexpr Duration kLongestStreamQuiet = std::chrono::seconds(10);

/// A line on which nothing has moved for so long is given up. Not shorter than any wait for a
/// reply, so that a busy logger or modem may hold the line as long as it may think.
inline constexpr Duration kLongestHold = std::chrono::seconds(10);
static_assert(kLongestHold >= std::chrono::milliseconds(kModemReplyMs));

// Total times, so that a source which never comes to an end cannot keep a dialogue. Those of a few
// messages have what silence would cost them, `Line::TimeFor`.
/// From the first command to the modem to the connection. A modem that answers "AT" and nothing
/// else is through with all commands and their repeats in 128 s; one that says nothing at all is
/// given up after "AT", in 7 s.
inline constexpr Duration kLongestDialling = std::chrono::seconds(150);
/// Of a dialogue that moves a configuration, a list or a firmware, which takes minutes.
inline constexpr Duration kAnyTime = kNever;

/// What is taken so soon behind the fall of the carrier was on its way before it.
inline constexpr Duration kCarrierTail = std::chrono::milliseconds(500);

// Octets.
inline constexpr int kReceiveBuffer = 8192;
/// Far above the longest answer of any logger.
inline constexpr std::size_t kLongestLine = 64 * 1024;

}  // namespace ostrel
