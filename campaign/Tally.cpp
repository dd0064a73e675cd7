#include "Tally.h"

#include <cstdio>
#include <string_view>

#include "Faults.h"

namespace ostrel::campaign {
namespace {

constexpr std::array<std::string_view, kSteps> kStepNames{
    "open",     "read",      "write, guarded", "write, plain",        "live read",
    "clock",    "total",     "output",         "voice write",         "voice read",
    "firmware", "save file", "load file",      "restart after a kill"};

unsigned long long Shown(const std::atomic<std::uint64_t>& number) { return number.load(); }

}  // namespace

void Tally::Count(Step step, bool isDone, Duration took) {
  const auto place = static_cast<std::size_t>(step);
  ++(isDone ? done : failed).at(place);
  Raise(longestMs.at(place), static_cast<std::uint64_t>(took / std::chrono::milliseconds(1)));
}

void Raise(std::atomic<std::uint64_t>& number, std::uint64_t to) {
  std::uint64_t held = number;
  while (held < to && !number.compare_exchange_weak(held, to)) {
  }
}

void Print(const Tally& tally, double seconds) {
  std::printf("%-34s %10s %10s %14s\n", "step", "done", "failed", "longest, s");
  for (std::size_t i = 0; i < kSteps; ++i)
    std::printf("%-34s %10llu %10llu %14.1f\n", kStepNames.at(i).data(), Shown(tally.done.at(i)),
                Shown(tally.failed.at(i)), static_cast<double>(tally.longestMs.at(i)) / 1000);
  std::printf("\n%-34s %10s\n", "fault", "sessions");
  const auto& names = FaultNames();
  for (std::size_t i = 0; i < names.size(); ++i)
    std::printf("%-34s %10llu\n", names[i].c_str(), Shown(tally.faults.at(i)));
  std::printf("%-34s %10llu\n", "none", Shown(tally.clean));
  std::printf("\n%llu sessions in %.1f s, %.0f a second; %.1f h on their own clocks\n",
              Shown(tally.sessions), seconds, static_cast<double>(tally.sessions) / seconds,
              static_cast<double>(tally.virtualSeconds) / 3600);
  std::printf("damage bore a right check sum in %llu, and left a mixture %llu times\n",
              Shown(tally.forged), Shown(tally.mixes));
  std::printf("most memory of a session: %.1f MB\n",
              static_cast<double>(tally.mostOctets) / (1024 * 1024));
  std::printf("breaches: %llu\n", Shown(tally.breaches));
}

}  // namespace ostrel::campaign
