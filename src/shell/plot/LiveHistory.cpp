#include "shell/plot/LiveHistory.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>

namespace ostrel {
namespace {

constexpr std::size_t kRoundsAChunk = 1024;
constexpr int kFull = 16;  // values of a pixel column
constexpr double kGap = std::numeric_limits<double>::quiet_NaN();

// What stands for a value that did not come.
constexpr std::uint8_t kGapOf(std::uint8_t) { return 0xFF; }
constexpr std::int32_t kGapOf(std::int32_t) { return std::numeric_limits<std::int32_t>::min(); }
constexpr float kGapOf(float) { return std::numeric_limits<float>::quiet_NaN(); }
constexpr double kGapOf(double) { return kGap; }

template <class Cell>
bool IsGap(Cell cell) {
  if constexpr (std::is_integral_v<Cell>)
    return cell == kGapOf(cell);
  else
    return std::isnan(cell);
}

template <class Cell>
double NumberOf(Cell cell) {
  return IsGap(cell) ? kGap : static_cast<double>(cell);
}

template <class Cell>
Cell CellOf(const LiveValue& value) {
  if (!value.IsFresh()) return kGapOf(Cell{});
  return static_cast<Cell>(value.on ? double(*value.on) : *value.number);
}

Moment UniversalTime(const WallTime& time) { return time.local - time.utcOffset; }

}  // namespace

const LiveHistory::Column* LiveHistory::Chunk::Find(LiveId id) const {
  const auto found = std::ranges::lower_bound(ids, id);
  return found != ids.end() && *found == id ? &columns[std::size_t(found - ids.begin())] : nullptr;
}

std::size_t LiveHistory::Chunk::Octets() const {
  const auto octets = [](const auto& cells) { return cells.capacity() * sizeof(cells[0]); };
  std::size_t sum = sizeof(Chunk) + octets(ids) + octets(after) + octets(columns);
  for (const Column& column : columns) sum += std::visit(octets, column);
  return sum;
}

double LiveHistory::ValueOf(const Column& column, std::size_t round) {
  return std::visit([round](const auto& cells) { return NumberOf(cells[round]); }, column);
}

void LiveHistory::Clear() {
  chunks_.clear();
  series_.clear();
  octets_ = 0;
}

const LiveSeries* LiveHistory::Find(LiveId id) const {
  const auto found = std::ranges::lower_bound(series_, id, {}, &LiveSeries::id);
  return found != series_.end() && found->id == id ? &*found : nullptr;
}

std::optional<TimeSpan> LiveHistory::Span() const {
  if (chunks_.empty()) return {};
  return TimeSpan{chunks_.front().start, chunks_.back().Last()};
}

void LiveHistory::Learn(const LiveRound& round) {
  for (const LiveValue& value : round.values) {
    auto place = std::ranges::lower_bound(series_, value.id, {}, &LiveSeries::id);
    if (place == series_.end() || place->id != value.id)
      place = series_.insert(place, {value.id, {}, {}});
    if (place->name != value.name) place->name = value.name;
    if (place->unit != value.unit) place->unit = value.unit;
  }
}

LiveHistory::Chunk& LiveHistory::Begin(const LiveRound& round, Moment at) {
  Chunk& chunk = chunks_.emplace_back(Chunk{.start = at, .offset = round.at.utcOffset});
  chunk.after.reserve(kRoundsAChunk);
  chunk.ids.reserve(round.values.size());
  chunk.columns.reserve(round.values.size());
  for (const LiveValue& value : round.values) {
    chunk.ids.push_back(value.id);
    Column& column = chunk.columns.emplace_back(std::vector<float>());
    if (IsState(value.id.kind)) column = std::vector<std::uint8_t>();
    if (value.id.kind == LiveKind::Counter) column = std::vector<std::int32_t>();
    if (value.id.kind == LiveKind::MathRegister) column = std::vector<double>();
    std::visit([](auto& cells) { cells.reserve(kRoundsAChunk); }, column);
  }
  octets_ += chunk.Octets();
  while (octets_ > mostOctets_ && chunks_.size() > 1) {
    octets_ -= chunks_.front().Octets();
    chunks_.pop_front();
  }
  return chunks_.back();
}

void LiveHistory::Add(const LiveRound& round) {
  if (round.values.empty()) return;
  Learn(round);
  offset_ = round.at.utcOffset;
  Moment at = UniversalTime(round.at);
  if (!chunks_.empty()) at = std::max(at, chunks_.back().Last());
  const auto fits = [&](const Chunk& chunk) {
    return chunk.after.size() < kRoundsAChunk && chunk.offset == offset_ &&
           at - chunk.start <= Moment(std::numeric_limits<std::uint32_t>::max()) &&
           std::ranges::equal(chunk.ids, round.values, {}, {}, &LiveValue::id);
  };
  const bool goesOn = !chunks_.empty() && fits(chunks_.back());
  Chunk& chunk = goesOn ? chunks_.back() : Begin(round, at);
  chunk.isSteady = chunk.isSteady && (chunk.after.empty() || at - chunk.Last() <= kPause);
  chunk.after.push_back(static_cast<std::uint32_t>((at - chunk.start).count()));
  for (std::size_t i = 0; i < chunk.columns.size(); ++i)
    std::visit(
        [&](auto& cells) {
          cells.push_back(CellOf<std::decay_t<decltype(cells[0])>>(round.values[i]));
        },
        chunk.columns[i]);
}

std::size_t LiveHistory::Chunk::FirstFrom(Moment at) const {
  const auto within = std::ranges::partition_point(
      after, [&](std::uint32_t ms) { return start + Moment(ms) < at; });
  return std::size_t(within - after.begin());
}

/// The first chunk that reaches a moment.
std::deque<LiveHistory::Chunk>::const_iterator LiveHistory::ChunkAt(Moment at) const {
  return std::ranges::partition_point(chunks_,
                                      [at](const Chunk& chunk) { return chunk.Last() < at; });
}

/// Gathers the values of a pixel column into few points.
class LiveHistory::Thinner {
 public:
  Thinner(const TimeSpan& span, int columns)
      : from_(span.from),
        width_(std::max((span.Length() + Moment(columns - 1)) / columns, Moment(1))),
        end_(Moment::min()) {}

  void Take(Moment at, double value) {
    if (at >= end_) {
      Flush();
      end_ = from_ + ((at - from_) / width_ + 1) * width_;
      isBroken_ = false;
    }
    if (hasPoint_ && at - last_ > kPause) Break(last_ + Moment(1));
    hasPoint_ = true;
    last_ = at;
    if (std::isnan(value)) return Break(at);
    if (count_ == 0) points_[0] = points_[1] = points_[2] = {at, value};
    if (value < points_[1].value) points_[1] = {at, value};
    if (value > points_[2].value) points_[2] = {at, value};
    points_[3] = {at, value};
    ++count_;
  }
  /// Takes the cells of a column from one on, up to the first that is later than a moment.
  template <class Cell>
  void Take(const Chunk& chunk, const std::vector<Cell>& cells, std::size_t from, Moment to) {
    for (std::size_t i = from; i < cells.size();) {
      Take(chunk.At(i), NumberOf(cells[i]));
      if (chunk.At(i++) > to) return;
      if (chunk.isSteady) i = TakeRun(chunk, cells, i, chunk.FirstFrom(std::min(end_, to)));
    }
  }
  std::vector<CurvePoint> Curve() {
    Flush();
    return std::move(curve_);
  }

 private:
  /// Takes what follows in the same pixel column up to the next gap, as taking it one by one does;
  /// where it went on.
  template <class Cell>
  std::size_t TakeRun(const Chunk& chunk, const std::vector<Cell>& cells, std::size_t from,
                      std::size_t end) {
    if (count_ == 0) return from;
    Cell least = static_cast<Cell>(points_[1].value),
         greatest = static_cast<Cell>(points_[2].value);
    std::size_t leastAt = end, greatestAt = end, i = from;
    for (; i < end && !IsGap(cells[i]); ++i) {
      if (cells[i] < least) least = cells[leastAt = i];
      if (cells[i] > greatest) greatest = cells[greatestAt = i];
    }
    if (i == from) return i;
    if (leastAt < end) points_[1] = {chunk.At(leastAt), NumberOf(least)};
    if (greatestAt < end) points_[2] = {chunk.At(greatestAt), NumberOf(greatest)};
    last_ = chunk.At(i - 1);
    points_[3] = {last_, NumberOf(cells[i - 1])};
    count_ += static_cast<int>(i - from);
    return i;
  }
  /// Once a column: more of them would not be seen.
  void Break(Moment at) {
    if (isBroken_) return;
    isBroken_ = true;
    Flush();
    if (!curve_.empty() && !std::isnan(curve_.back().value)) curve_.push_back({at, kGap});
  }
  void Flush() {
    if (count_ == 0) return;
    if (points_[2].at < points_[1].at) std::swap(points_[1], points_[2]);
    // Where a column is crossed over and over, its extremes cover where the line comes and goes.
    const std::span points(points_);
    for (const CurvePoint& point : count_ > kFull ? points.subspan(1, 2) : points)
      if (curve_.empty() || curve_.back().at != point.at || std::isnan(curve_.back().value))
        curve_.push_back(point);
    count_ = 0;
  }

  Moment from_, width_, end_;
  Moment last_{};
  bool hasPoint_ = false;  ///< `last_` is of a round
  bool isBroken_ = false;
  int count_ = 0;
  std::array<CurvePoint, 4> points_{};  ///< first, least, greatest and last of the column
  std::vector<CurvePoint> curve_;
};

std::vector<CurvePoint> LiveHistory::Curve(LiveId id, const TimeSpan& span, int columns) const {
  Thinner thinner(span, columns);
  auto chunk = ChunkAt(span.from);
  // A line leads in from the round before, and out to the round behind.
  if (chunk != chunks_.begin())
    if (const Chunk& before = *std::prev(chunk); const Column* column = before.Find(id))
      thinner.Take(before.Last(), ValueOf(*column, before.after.size() - 1));
  for (; chunk != chunks_.end(); ++chunk) {
    const Column* column = chunk->Find(id);
    std::size_t i = chunk->FirstFrom(span.from);
    if (i > 0) --i;
    if (!column) {
      thinner.Take(chunk->At(i), kGap);
    } else {
      std::visit([&](const auto& cells) { thinner.Take(*chunk, cells, i, span.to); }, *column);
    }
    if (chunk->Last() > span.to) break;
  }
  return thinner.Curve();
}

std::optional<double> LiveHistory::ValueAt(LiveId id, Moment at) const {
  auto chunk =
      std::ranges::partition_point(chunks_, [at](const Chunk& c) { return c.start <= at; });
  if (chunk == chunks_.begin()) return {};
  --chunk;
  const auto behind = std::ranges::partition_point(
      chunk->after, [&](std::uint32_t ms) { return chunk->start + Moment(ms) <= at; });
  const std::size_t round = std::size_t(behind - chunk->after.begin()) - 1;
  const Column* column = chunk->Find(id);
  if (!column || at - chunk->At(round) > kPause) return {};
  const double value = ValueOf(*column, round);
  if (std::isnan(value)) return {};
  return value;
}

void LiveHistory::ForEachRound(const TimeSpan& span, std::vector<LiveId> ids,
                               const std::function<void(const LiveRound&)>& visit) const {
  std::ranges::sort(ids);
  for (auto chunk = ChunkAt(span.from); chunk != chunks_.end() && chunk->start <= span.to; ++chunk)
    for (std::size_t i = 0; i < chunk->after.size(); ++i) {
      const Moment at = chunk->At(i);
      if (at < span.from || at > span.to) continue;
      LiveRound round{{at + chunk->offset, chunk->offset}, {}};
      for (const LiveId id : ids) {
        const LiveSeries* series = Find(id);
        const Column* column = chunk->Find(id);
        const double number = column ? ValueOf(*column, i) : kGap;
        LiveValue& value = round.values.emplace_back(
            LiveValue{id, series ? series->name : "", series ? series->unit : "", {}, {}, {}});
        value.read.Note(!std::isnan(number), round.at.local);
        if (std::isnan(number)) continue;
        if (IsState(id.kind))
          value.on = number != 0;
        else
          value.number = number;
      }
      visit(round);
    }
}

}  // namespace ostrel
