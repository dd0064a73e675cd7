#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace ostrel {

/// Lengths of time and points of time on a loop's own clock, in microseconds.
/// A point counts from the start of its loop.
using Duration = std::chrono::microseconds;
using TimePoint = std::chrono::microseconds;

/// A deadline that never comes.
inline constexpr TimePoint kNever = TimePoint::max();

/// A point `span` after another one; never when that lies beyond all points.
constexpr TimePoint Sum(TimePoint start, Duration span) {
  return span > kNever - start ? kNever : start + span;
}

/// Octets a second on the line: 9600 bit/s, eight data bits with a start and a stop bit.
inline constexpr int kLineOctetsPerSecond = 960;

/// How long the line needs for a number of octets.
constexpr Duration LineTime(std::size_t octets) {
  return Duration{static_cast<std::int64_t>(octets) * 1'000'000 / kLineOctetsPerSecond};
}

}  // namespace ostrel
