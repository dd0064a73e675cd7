#pragma once

#include <functional>
#include <memory>
#include <vector>

namespace ostrel {

/// The dialogues that tell how far they are.
enum class DialogueKind { Download, Upload, VoiceReading, VoiceWriting };

/// Whether it is a configuration that a dialogue moves.
constexpr bool MovesConfiguration(DialogueKind kind) {
  return kind == DialogueKind::Download || kind == DialogueKind::Upload;
}

/// How far a dialogue is.
struct Progress {
  enum class Stage {
    Begun,
    Step,
    Closing,  ///< an upload is about to ask the logger to take everything over
    Done,
    Failed
  };


  DialogueKind kind;
  Stage stage;
  int step = 0;      ///< records or statements that have passed in the attempt under way; in a
                     ///< reading of the voice-call list the place that is due
  int expected = 0;  ///< how many there will be; 0 while that is not known
};

/// Hands the progress of dialogues to whoever listens, in the order of listening.
class ProgressFeed {
 public:
  using Listener = std::function<void(const Progress&)>;
  /// Keeps a listener listening as long as it lives.
  using Subscription = std::shared_ptr<const Listener>;

  [[nodiscard]] Subscription Listen(Listener listener);
  void Tell(const Progress& progress);

 private:
  std::vector<std::weak_ptr<const Listener>> listeners_;
};

}  // namespace ostrel
