#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/EventLoop.h"
#include "platform/Line.h"
#include "recording/Recording.h"
#include "recording/Secrets.h"

namespace ostrel {

/// How a replay found its answer.
enum class ReplayMatch {
  InOrder,    ///< it was the next that the recording has
  Elsewhere,  ///< the recording has the same at another place
  Alike,      ///< the recording has one of the same kind, such as another time to set
  Unknown     ///< nothing of the kind was recorded: no answer
};

/// What a replay was asked, and whether it knew an answer.
struct ReplayedRequest {
  std::string request;      ///< octets, without secrets
  std::size_t answers = 0;  ///< lines of the answer
  ReplayMatch match = ReplayMatch::Unknown;
};

/// How long after a request a replay answers: as then, or at once where that took less than half a
/// second, for a program that does not wait for the machine on which it was recorded.
enum class ReplayPace { AsThen, Promptly };

/// The far end of a recorded line: it says what was said then, as long after each request as then.
/// A program that asks otherwise than recorded is answered by what it asks: by the nearest such
/// request of the recording, else by one of the same kind. Loop and line must outlive it.
class Replay final : public LineDevice {
 public:
  Replay(EventLoop& loop, LineEnd& line, Recording recording, ReplayPace pace = ReplayPace::AsThen);
  ~Replay() override;
  Replay(const Replay&) = delete;
  Replay& operator=(const Replay&) = delete;

  void Receive(std::string_view octets) override;
  void SetTerminalReady(bool ready) override;
  /// Called for each request.
  void OnRequest(std::function<void(const ReplayedRequest&)> observer) {
    observer_ = std::move(observer);
  }

 private:
  /// What was said after a request, up to the next one.
  struct Exchange {
    std::string request;  ///< empty for what came before any
    Duration at{};
    std::vector<RecordedEvent> answers{};
  };

  void AnswerPart();
  void Answer(const std::string& request);
  std::size_t Find(const std::string& request, ReplayMatch& match) const;
  void Play(const Exchange& exchange);
  void PlayNow(const RecordedEvent& event);
  void Forget();

  EventLoop& loop_;
  LineEnd& line_;
  ReplayPace pace_;
  std::vector<Exchange> exchanges_;
  bool startsWithCarrier_ = true;
  std::size_t next_ = 1;  ///< the exchange that comes next when all goes as recorded
  std::string part_;      ///< of a request that has not ended
  TimerId quiet_ = 0;     ///< until such a part counts as a request
  std::vector<TimerId> due_;
  Secrets secrets_;
  std::function<void(const ReplayedRequest&)> observer_;
};

}  // namespace ostrel
