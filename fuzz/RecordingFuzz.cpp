// The text form of a recording.

#include "NoLine.h"
#include "Target.h"
#include "recording/Recording.h"
#include "recording/Replay.h"

namespace {

using namespace ostrel;

constexpr unsigned kPlayed = 8;
constexpr Duration kWhile = std::chrono::hours(1);

std::string TextOf(const Recording& recording) {
  std::string text(kLineRecordingHead);
  text += '\n';
  for (const RecordedEvent& event : recording)
    text.append(RecordedTime(event.at)).append(RecordedLine(event));
  return text;
}

/// Asks a replay all that was asked then.
void Play(const Recording& recording) {
  fuzz::NoLine line;
  Replay replay(line.loop, line, recording);
  replay.SetTerminalReady(true);
  for (const RecordedEvent& event : recording)
    if (event.kind == RecordedKind::Sent) replay.Receive(event.text);
  line.loop.RunFor(kWhile);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzz::TextOf(data, size);
  std::string why;
  const auto recording = ReadRecording(text, why);
  fuzz::Require(recording.has_value() == why.empty(), "a refusal says why, and nothing else does");
  if (!recording) return 0;
  const auto again = ReadRecording(TextOf(*recording), why);
  fuzz::Require(again == recording, "a recording that is written and read stays");
  if (fuzz::IsChosen(text, kPlayed)) Play(*recording);
  return 0;
}
