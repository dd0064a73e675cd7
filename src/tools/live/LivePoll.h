#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "base/Feed.h"
#include "model/LiveRound.h"
#include "tools/ToolContext.h"

namespace ostrel {

/// Twice a second, as far as the line keeps up.
inline constexpr Duration kLivePeriod = std::chrono::milliseconds(500);
/// How long a round tells how things are, where no other one is under way.
inline constexpr Duration kLivePresent = std::chrono::seconds(5);

/// Reads the live values of the session, and hands each round to whoever listens: the monitors, the
/// plots, a recording.
///
/// A monitor reads while it has the front. Beside that, rounds go on for whoever keeps them going,
/// whichever page is in front. A tick that finds a round under way does nothing, so that together
/// they read no more often than the line bears: whoever shows live values follows the rounds, not
/// its own ticks.
class LivePoll {
 public:
  explicit LivePoll(ToolContext& context);
  ~LivePoll();
  LivePoll(const LivePoll&) = delete;
  LivePoll& operator=(const LivePoll&) = delete;

  using RoundFeed = Feed<LiveRound>;
  /// Hands the rounds to a listener, as long as the subscription lives.
  [[nodiscard]] RoundFeed::Subscription OnRound(RoundFeed::Listener listener) {
    return rounds_.Listen(std::move(listener));
  }
  /// Keeps the rounds going as long as the result lives.
  [[nodiscard]] std::shared_ptr<const void> KeepGoing();

  /// Whether the line is somebody's own now, and no round may begin. Null where it never is.
  std::function<bool()> Rests;

  /// Whether the values of the last round are those of this moment: a round has come lately or is
  /// under way, and nobody else has the line.
  bool IsPresent() const;
  /// One round: the live values and the logger's clock. Tells it, whatever came, when it was not
  /// cut; nothing is told or sent while no session stands or another dialogue has the line.
  void Read();
  /// The round as the records hold it now.
  LiveRound Present() const;

 private:
  void Tick();

  ToolContext& context_;
  RoundFeed rounds_;
  std::weak_ptr<const void> kept_;  ///< lives while someone keeps the rounds going
  TimerId timer_ = 0;               ///< runs since someone did so first
  std::optional<TimePoint> told_;   ///< when the last round was; nothing before the first
};

}  // namespace ostrel
