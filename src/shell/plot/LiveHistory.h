#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "model/LiveRound.h"

namespace ostrel {

/// A moment of universal time since 1 January 1970 at midnight.
using Moment = std::chrono::milliseconds;

/// A stretch of time, both ends within.
struct TimeSpan {
  Moment from, to;

  Moment Length() const { return to - from; }
  bool operator==(const TimeSpan&) const = default;
};

/// A point of a curve. A value that is no number breaks the curve.
struct CurvePoint {
  Moment at;
  double value;
};

/// One value over time: what it is called, as it was told last.
struct LiveSeries {
  LiveId id;
  std::string name, unit;
};

/// The live rounds of a logger over time. Of values that did not come in a round it keeps that they
/// did not. The oldest rounds go when the memory for it is used up: 60 values twice a second fill
/// it in more than 24 hours.
class LiveHistory {
 public:
  static constexpr std::size_t kMostOctets = 48'000'000;
  /// Rounds further apart than this are not joined by a line: nobody was reading meanwhile.
  static constexpr Moment kPause = std::chrono::seconds(30);

  explicit LiveHistory(std::size_t mostOctets = kMostOctets) : mostOctets_(mostOctets) {}

  /// Takes a round. A clock that was set back stands still until it has caught up.
  void Add(const LiveRound& round);
  void Clear();

  /// Every value that a round has told, by kind and index.
  const std::vector<LiveSeries>& Series() const { return series_; }
  const LiveSeries* Find(LiveId id) const;
  /// From the first round to the last one; nothing while there is none.
  std::optional<TimeSpan> Span() const;
  /// How far the local time of the last round was ahead of universal time.
  std::chrono::minutes UtcOffset() const { return offset_; }
  /// Octets that it takes.
  std::size_t Octets() const { return octets_; }

  /// A curve for a chart that is `columns` pixels wide: at most the first, least, greatest and last
  /// value of each column and a break, and the points next to either end. What a finer curve would
  /// show, this one does.
  std::vector<CurvePoint> Curve(LiveId id, const TimeSpan& span, int columns) const;
  /// The value of the last round up to a moment; nothing where it did not come, or nobody read.
  std::optional<double> ValueAt(LiveId id, Moment at) const;
  /// Runs `visit` on the rounds of a stretch, with the given values of each by kind and index, in
  /// whatever order they are asked for.
  void ForEachRound(const TimeSpan& span, std::vector<LiveId> ids,
                    const std::function<void(const LiveRound&)>& visit) const;

 private:
  /// The values of one kind and index; those of a kind are as wide as their numbers need.
  using Column = std::variant<std::vector<std::uint8_t>, std::vector<std::int32_t>,
                              std::vector<float>, std::vector<double>>;
  /// Rounds that follow each other, and have the same values.
  struct Chunk {
    Moment start;
    std::chrono::minutes offset;
    std::vector<LiveId> ids{};
    std::vector<std::uint32_t> after{};  ///< milliseconds from the start
    std::vector<Column> columns{};       ///< one for each of `ids`
    bool isSteady = true;                ///< no two of its rounds have a pause between them

    Moment At(std::size_t round) const { return start + Moment(after[round]); }
    Moment Last() const { return At(after.size() - 1); }
    const Column* Find(LiveId id) const;
    /// The first round that is not before a moment; their count where all are.
    std::size_t FirstFrom(Moment at) const;
    std::size_t Octets() const;
  };
  class Thinner;

  void Learn(const LiveRound& round);
  Chunk& Begin(const LiveRound& round, Moment at);
  std::deque<Chunk>::const_iterator ChunkAt(Moment at) const;
  static double ValueOf(const Column& column, std::size_t round);

  std::size_t mostOctets_;
  std::size_t octets_ = 0;
  std::chrono::minutes offset_{};
  std::vector<LiveSeries> series_;
  std::deque<Chunk> chunks_;
};

}  // namespace ostrel
