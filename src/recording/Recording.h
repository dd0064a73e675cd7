#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Time.h"

namespace ostrel {

/// The kinds of lines of a recording; each has a letter of its own, by which its line starts.
enum class RecordedKind { Remark, Command, Sent, Received, Event, End };

/// One thing that happened on a recorded line.
struct RecordedEvent {
  Duration at{};  ///< since the recording began
  RecordedKind kind = RecordedKind::Remark;
  std::string text{};  ///< octets of the line, or words

  bool operator==(const RecordedEvent&) const = default;
};

/// Everything that went over a line, in order. Its text form is told in docs/recordings.md.
using Recording = std::vector<RecordedEvent>;

// Words of events.
inline constexpr std::string_view kOpenEvent = "open";
inline constexpr std::string_view kCarrierOnEvent = "carrier on";
inline constexpr std::string_view kCarrierOffEvent = "carrier off";
inline constexpr std::string_view kLostEvent = "lost";

/// First line of a recording in its text form.
inline constexpr std::string_view kLineRecordingHead = "ostrel recording 1";

/// A line of the text form, with its end; a time is a line of its own.
std::string RecordedLine(const RecordedEvent& event);
/// "@ 12.034", with its end.
std::string RecordedTime(Duration at);

/// Reads the text form. Nothing when it is none; `error` then tells why, with the line.
std::optional<Recording> ReadRecording(std::string_view text, std::string& error);

}  // namespace ostrel
