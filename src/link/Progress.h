#pragma once

#include "base/Feed.h"

namespace ostrel {

/// The dialogues that tell how far they are.
enum class DialogueKind { Download, Upload, VoiceReading, VoiceWriting, Firmware };

/// Whether it is a configuration that a dialogue moves.
constexpr bool MovesConfiguration(DialogueKind kind) {
  return kind == DialogueKind::Download || kind == DialogueKind::Upload;
}

/// Whether it is the voice-call list that a dialogue moves.
constexpr bool MovesVoiceList(DialogueKind kind) {
  return kind == DialogueKind::VoiceReading || kind == DialogueKind::VoiceWriting;
}

/// How far a dialogue is.
struct Progress {
  enum class Stage {
    Begun,
    Attempt,  ///< another attempt begins, be it the first
    Step,
    Closing,  ///< an upload is about to ask the logger to take everything over, or the logger has
              ///< said that it erases its firmware
    Done,
    Failed
  };

  DialogueKind kind;
  Stage stage;
  int step = 0;      ///< records or statements that have passed in the attempt under way; in a
                     ///< reading of the voice-call list the place that is due, of a firmware
                     ///< the octets that have left
  int expected = 0;  ///< how many there will be; 0 while that is not known
};

/// Tells how far dialogues are.
using ProgressFeed = Feed<Progress>;

}  // namespace ostrel
