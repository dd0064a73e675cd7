#pragma once

#include <array>
#include <atomic>
#include <cstdint>

#include "platform/Time.h"

namespace ostrel::campaign {

/// What a session does with its logger and its files.
enum class Step {
  Open,
  Read,
  WriteGuarded,
  WritePlain,
  Live,
  Clock,
  Total,
  Output,
  VoiceWrite,
  VoiceRead,
  Firmware,
  Save,
  Load,
  Restart
};
inline constexpr std::size_t kSteps = 14;

/// Counts of a campaign, kept by all its processes at a time.
struct Tally {
  static constexpr std::size_t kMostKinds = 64;

  std::atomic<std::uint64_t> sessions, clean, breaches;
  std::atomic<std::uint64_t> virtualSeconds;
  std::atomic<std::uint64_t> forged;  ///< sessions in which damage bore a right check sum
  std::atomic<std::uint64_t> mixes;   ///< writings that left neither the old nor the new
  std::atomic<std::uint64_t> mostOctets;
  std::array<std::atomic<std::uint64_t>, kSteps> done, failed;
  std::array<std::atomic<std::uint64_t>, kSteps> longestMs;
  std::array<std::atomic<std::uint64_t>, kMostKinds> faults;

  void Count(Step step, bool isDone, Duration took);
};

/// Raises a number to another one.
void Raise(std::atomic<std::uint64_t>& number, std::uint64_t to);

/// Prints the counts of a campaign that took so long.
void Print(const Tally& tally, double seconds);

}  // namespace ostrel::campaign
